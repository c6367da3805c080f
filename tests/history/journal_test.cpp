#include "vqc/cmd/history/journal.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/files.h"
#include "support/process.h"

using namespace vqc;

namespace {

namespace fs = std::filesystem;

using std::chrono::system_clock;
using Texts = std::vector<std::string>;

const std::error_code kDone;

class JournalTest : public testing::Test {
 protected:
  /// The texts that are offered, newest first.
  Texts offered() const {
    Texts texts;
    for (const AbandonedJournal& journal : Journal::abandoned(journals)) texts.push_back(journal.text);
    return texts;
  }
  std::size_t count_of_files() const {
    std::error_code missing;
    const fs::directory_iterator files(journals, missing);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
  }
  /// Leaves a journal as a session does that ends badly.
  void abandon(const std::string& path, const std::string& text) const {
    Journal journal(journals, path);
    ASSERT_EQ(kDone, journal.write(text));
  }

  TemporaryFolder folder;
  const std::string journals = folder / "state/sessions";
  const std::string document = folder / "a.vqc";
};

// A session.

TEST_F(JournalTest, IsOfferedWhenItsSessionIsGone) {
  const auto before = std::chrono::floor<std::chrono::milliseconds>(system_clock::now());
  abandon(document, "first line\n\nthird\n");
  const std::vector<AbandonedJournal> found = Journal::abandoned(journals);
  ASSERT_EQ(1U, found.size());
  EXPECT_EQ(document, found[0].document);
  EXPECT_LE(before, found[0].time);
  EXPECT_GE(system_clock::now(), found[0].time);
  EXPECT_EQ("first line\n\nthird\n", found[0].text);
}

TEST_F(JournalTest, IsNotOfferedWhileItsSessionLives) {
  Journal journal(journals, document);
  EXPECT_EQ(kDone, journal.write("text"));
  EXPECT_EQ(Texts{}, offered());
  EXPECT_EQ(kDone, journal.write("more"));
}

TEST_F(JournalTest, HasTheLastState) {
  {
    Journal journal(journals, document);
    EXPECT_EQ(kDone, journal.write("a long state"));
    EXPECT_EQ(kDone, journal.write("short"));
  }
  EXPECT_EQ(Texts{"short"}, offered());
}

TEST_F(JournalTest, HoldsAnyBytes) {
  const std::string bytes("\0\n\xFF\r", 4);
  for (const std::string& text : {bytes, std::string()}) {
    abandon(document, text);
    EXPECT_EQ(Texts{text}, offered());
    Journal::abandoned(journals).at(0).remove();
  }
}

TEST_F(JournalTest, KnowsADocumentByAnyName) {
  const std::string path = folder / "100%\n\"\\ \xFF\xC3\xBC.vqc";
  abandon(path, "text");
  EXPECT_EQ(path, Journal::abandoned(journals).at(0).document);
}

TEST_F(JournalTest, CanBeOfADocumentWithoutAFile) {
  abandon("", "text");
  EXPECT_EQ("", Journal::abandoned(journals).at(0).document);
}

TEST_F(JournalTest, IsOfTheDocumentThatItWasLastWrittenFor) {
  {
    Journal journal(journals);
    EXPECT_EQ(kDone, journal.write("one"));
    EXPECT_EQ(kDone, journal.set_document(document));
    EXPECT_EQ(kDone, journal.write("two"));
    EXPECT_EQ(kDone, journal.set_document(folder / "b.vqc"));
  }
  const std::vector<AbandonedJournal> found = Journal::abandoned(journals);
  EXPECT_EQ(document, found.at(0).document);
  EXPECT_EQ("two", found.at(0).text);
}

TEST_F(JournalTest, LeavesNothingWhenItEndsWell) {
  Journal journal(journals, document);
  EXPECT_EQ(kDone, journal.write("text"));
  journal.end();
  EXPECT_EQ(0U, count_of_files());
  journal.end();
  EXPECT_EQ(Texts{}, offered());
}

TEST_F(JournalTest, GoesOnAfterItsEnd) {
  {
    Journal journal(journals, document);
    journal.end();
    EXPECT_EQ(kDone, journal.write("text"));
    EXPECT_EQ(Texts{}, offered());
  }
  EXPECT_EQ(Texts{"text"}, offered());
}

TEST_F(JournalTest, IsNoneBeforeItIsWritten) {
  { const Journal journal(journals, document); }
  EXPECT_EQ(Texts{}, offered());
  EXPECT_EQ(0U, count_of_files()) << "what the session had left has been tidied up";
}

TEST_F(JournalTest, IsForTheUserAlone) {
  abandon(document, "text");
  EXPECT_EQ(fs::perms::owner_all, fs::status(journals).permissions());
  for (const auto& entry : fs::directory_iterator(journals)) {
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, entry.status().permissions()) << entry.path();
  }
}

// What sessions have left.

TEST_F(JournalTest, IsOfferedNewestFirst) {
  for (const char* text : {"old", "newer", "newest"}) {
    abandon(document, text);
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  EXPECT_EQ((Texts{"newest", "newer", "old"}), offered());
}

TEST_F(JournalTest, IsOfferedAgainUntilItIsRemoved) {
  abandon(document, "text");
  EXPECT_EQ(Texts{"text"}, offered());
  EXPECT_EQ(Texts{"text"}, offered());
  Journal::abandoned(journals).at(0).remove();
  EXPECT_EQ(Texts{}, offered());
  EXPECT_EQ(0U, count_of_files());
}

TEST_F(JournalTest, IsRemovedAlone) {
  abandon(document, "one");
  abandon(document, "two");
  for (const AbandonedJournal& each : Journal::abandoned(journals)) {
    if (each.text == "one") each.remove();
  }
  EXPECT_EQ(Texts{"two"}, offered());
}

TEST_F(JournalTest, IsOfferedToOneSessionAtATime) {
  abandon(document, "text");
  {
    const std::vector<AbandonedJournal> claimed = Journal::abandoned(journals);
    EXPECT_EQ(1U, claimed.size());
    EXPECT_EQ(Texts{}, offered());
  }
  EXPECT_EQ(Texts{"text"}, offered());
}

TEST_F(JournalTest, IsOfferedByOneOfManyThatStart) {
  constexpr int kJournals = 20;
  for (int i = 0; i < kJournals; ++i) abandon(document, std::to_string(i));
  std::vector<pid_t> processes;
  for (int process = 0; process < 4; ++process) {
    processes.push_back(in_process([&] {
      for (const AbandonedJournal& each : Journal::abandoned(journals)) {
        write_file(folder / (each.text + " by " + std::to_string(process)), "");
        each.remove();
      }
    }));
  }
  for (const pid_t process : processes) waitpid(process, nullptr, 0);
  for (const std::string& text : offered()) write_file(folder / (text + " left"), "");
  int found = 0;
  for (const auto& entry : fs::directory_iterator(folder.path())) found += entry.is_regular_file() ? 1 : 0;
  EXPECT_EQ(kJournals, found) << "each of them once";
}

// Other sessions.

TEST_F(JournalTest, SeesAnotherSessionOnTheSameDocument) {
  const Journal other(journals, document);
  const Journal mine(journals, folder / "b.vqc");
  EXPECT_TRUE(mine.others_on(document));
  EXPECT_FALSE(mine.others_on(folder / "c.vqc"));
  EXPECT_FALSE(mine.others_on(folder / "b.vqc")) << "this is the session itself";
  EXPECT_FALSE(mine.others_on(""));
}

TEST_F(JournalTest, SeesItUnderAnyPath) {
  write_file(document, "text");
  fs::create_symlink(document, folder / "link");
  const Journal other(journals, folder / "link");
  const Journal mine(journals);
  const WorkingFolder working_folder(folder.path());
  EXPECT_TRUE(mine.others_on("a.vqc"));
  EXPECT_TRUE(mine.others_on("missing/../a.vqc"));
}

TEST_F(JournalTest, SeesItWhereItHasGone) {
  Journal other(journals, folder / "a document with quite a long name.vqc");
  const Journal mine(journals);
  EXPECT_EQ(kDone, other.set_document(document));
  EXPECT_TRUE(mine.others_on(document));
  EXPECT_FALSE(mine.others_on(folder / "a document with quite a long name.vqc"));
}

TEST_F(JournalTest, SeesNoSessionThatIsGone) {
  abandon(document, "text");
  { Journal(journals, document).end(); }
  const Journal mine(journals);
  EXPECT_FALSE(mine.others_on(document));
  const std::vector<AbandonedJournal> claimed = Journal::abandoned(journals);
  EXPECT_FALSE(mine.others_on(document)) << "to offer its state is not to edit it";
}

TEST_F(JournalTest, SeesNoSessionWhoseProcessWasKilled) {
  const pid_t process = in_process([&] {
    const Journal other(journals, document);
    write_file(folder / "ready", "");
    pause();
  });
  while (!fs::exists(folder / "ready")) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  const Journal mine(journals);
  EXPECT_TRUE(mine.others_on(document));
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  EXPECT_FALSE(mine.others_on(document));
}

// What may be wrong with the folder.

TEST_F(JournalTest, IsNotMadeOfWhatIsNone) {
  abandon(document, "text");
  const std::string head = "{\"format\":1,\"time\":1000}\n";
  write_file(journals + "/1.journal", "");
  write_file(journals + "/2.journal", "text\nmore");
  write_file(journals + "/3.journal", "[]\n");
  write_file(journals + "/4.journal", "{\"format\":2,\"time\":1000}\nof a later program");
  write_file(journals + "/5.journal", "{\"format\":\"1\",\"time\":1000}\n");
  write_file(journals + "/6.journal", "{\"format\":1,\"time\":-1}\n");
  fs::create_directory(journals + "/7.journal");
  fs::create_symlink(folder.with("target", head + "linked"), journals + "/8.journal");
  write_file(journals + "/9.session", "");
  write_file(journals + "/notes", "somebody's");
  EXPECT_EQ(Texts{"text"}, offered());
  write_file(journals + "/10.journal", head + "whole");
  EXPECT_EQ((Texts{"text", "whole"}), offered());
  EXPECT_TRUE(fs::exists(journals + "/4.journal"));
  EXPECT_TRUE(fs::exists(journals + "/notes"));
  EXPECT_FALSE(fs::exists(journals + "/9.session"));
}

TEST_F(JournalTest, SaysWhyItCannotBeWritten) {
  const std::string file = folder.with("file", "");
  Journal in_file(file, document);
  EXPECT_EQ(std::errc::not_a_directory, in_file.write("text"));
  EXPECT_EQ(std::errc::not_a_directory, in_file.set_document(document));
  EXPECT_FALSE(in_file.others_on(document));
  in_file.end();
  EXPECT_EQ(std::errc::no_such_file_or_directory, Journal({}).write("text"));
  EXPECT_TRUE(Journal::abandoned(file).empty());
  EXPECT_TRUE(Journal::abandoned({}).empty());
}

TEST_F(JournalTest, IsWrittenAsSoonAsItCanBe) {
  const AsSomebody somebody(folder.path());
  fs::create_directories(journals);
  chmod(journals.c_str(), 0500);
  {
    Journal journal(journals, document);
    EXPECT_EQ(std::errc::permission_denied, journal.write("one"));
    chmod(journals.c_str(), 0700);
    EXPECT_EQ(kDone, journal.write("two"));
    EXPECT_TRUE(Journal(journals).others_on(document));
  }
  EXPECT_EQ(Texts{"two"}, offered());
}

TEST_F(JournalTest, StaysAsItWasWhereTheNextFindsNoRoom) {
  {
    Journal journal(journals, document);
    EXPECT_EQ(kDone, journal.write("one"));
    const RoomForFiles little(5000);
    EXPECT_EQ(std::errc::file_too_large, journal.write(std::string(6000, 'x')));
  }
  EXPECT_EQ(Texts{"one"}, offered());
  EXPECT_EQ(2U, count_of_files());
}

TEST_F(JournalTest, SurvivesThatItsFolderIsRemoved) {
  Journal journal(journals, document);
  EXPECT_EQ(kDone, journal.write("one"));
  fs::remove_all(journals);
  EXPECT_EQ(kDone, journal.write("two"));
  EXPECT_EQ(Texts{}, offered()) << "its session lives";
  EXPECT_TRUE(Journal(journals).others_on(document));
}

// Kills.

/// The n-th state of a session: so long that it is not written at once.
std::string state(int n) { return std::to_string(n) + std::string(static_cast<std::size_t>(50000 + n), "xyz"[n % 3]); }

/// A session that writes states 1, 2, 3 and so on, and reports each that it has written, until it is killed.
class BusySession {
 public:
  explicit BusySession(const std::string& journals, const std::string& document) {
    if (pipe(reports_) != 0) throw std::runtime_error("no pipe");
    process_ = in_process([&] {
      Journal journal(journals, document);
      for (int n = 1;; ++n) {
        if (journal.write(state(n)) || ::write(reports_[1], &n, sizeof n) != sizeof n)
          throw std::runtime_error("stuck");
        usleep(200);
      }
    });
    close(reports_[1]);
  }
  BusySession(const BusySession&) = delete;
  BusySession& operator=(const BusySession&) = delete;
  ~BusySession() { close(reports_[0]); }

  /// Waits for that many reports, and then for some microseconds. Kills it. Gives the last state that it reported.
  int killed_after(int reports, useconds_t pause) {
    int last = 0;
    while (reports-- > 0) report(last);
    usleep(pause);
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
    while (report(last)) continue;
    return last;
  }

 private:
  bool report(int& n) const { return read(reports_[0], &n, sizeof n) == sizeof n; }

  pid_t process_;
  int reports_[2];
};

TEST_F(JournalTest, IsWholeWheneverItsSessionIsKilled) {
  std::minstd_rand random(1);
  for (int round = 0; round < 300; ++round) {
    const int reports = static_cast<int>(random() % 4);
    const auto pause = static_cast<useconds_t>(random() % (reports > 0 ? 3000 : 20000));
    const int reported = BusySession(journals, document).killed_after(reports, pause);
    ASSERT_LE(reports, reported);
    const std::vector<AbandonedJournal> found = Journal::abandoned(journals);
    ASSERT_GE(1U, found.size());
    ASSERT_TRUE(reported == 0 || found.size() == 1);
    for (const AbandonedJournal& each : found) {
      const std::string& text = each.text;
      ASSERT_TRUE(text == state(reported) || text == state(reported + 1)) << reported << ": " << text.substr(0, 99);
      each.remove();
    }
    offered();  // which tidies up
    ASSERT_EQ(0U, count_of_files());
  }
}

TEST_F(JournalTest, IsWholeWhereverItsSessionIsKilled) {
  int offered_new = 0;
  for (int n = 1;; ++n) {
    const bool was_killed = killed_at_stop(n, [&] {
      Journal journal(journals, document);
      journal.write("one");
      journal.write("two");
      journal.end();
    });
    if (!was_killed) break;
    const std::vector<AbandonedJournal> found = Journal::abandoned(journals);
    ASSERT_GE(1U, found.size());
    for (const AbandonedJournal& each : found) {
      EXPECT_TRUE(each.text == "one" || each.text == "two") << each.text;
      offered_new += each.text == "two" ? 1 : 0;
      each.remove();
    }
    offered();
    ASSERT_EQ(0U, count_of_files());
  }
  EXPECT_EQ(Texts{}, offered());
  EXPECT_EQ(0U, count_of_files());
  EXPECT_LT(1, offered_new);
}

}  // namespace
