#include "vqc/cmd/history/versions.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>

#include "support/files.h"
#include "support/process.h"

using namespace vqc;

namespace {

namespace fs = std::filesystem;

using namespace std::chrono_literals;
using std::chrono::days;
using std::chrono::system_clock;

using Texts = std::vector<std::string>;

const std::error_code kDone;

/// Half past twelve on a day in the middle of a month, by the user's clock.
system_clock::time_point half_past_twelve() {
  std::tm parts{};
  parts.tm_year = 2026 - 1900;
  parts.tm_mon = 5;
  parts.tm_mday = 17;
  parts.tm_hour = 12;
  parts.tm_min = 30;
  parts.tm_isdst = -1;
  return system_clock::from_time_t(std::mktime(&parts));
}

class VersionsTest : public testing::Test {
 protected:
  /// The contents of a file's versions that are there, newest first.
  Texts texts_of(const std::string& path) const {
    Texts texts;
    for (const Version& version : versions.of(path)) texts.push_back(versions.text(version).value_or("gone"));
    return texts;
  }
  /// Keeps a text that the document had a while ago.
  void keep_of(system_clock::duration age, const std::string& text) const { keep_of(age, text, document); }
  void keep_of(system_clock::duration age, const std::string& text, const std::string& path) const {
    ASSERT_EQ(kDone, versions.keep_text(path, text, Reason::before_save, now - age));
  }
  /// What is left of the document's versions.
  Texts thinned() const {
    EXPECT_EQ(kDone, versions.thin(now));
    return texts_of(document);
  }
  /// The files in the folder that have contents.
  std::size_t count_of_contents() const {
    std::size_t count = 0;
    for (const auto& entry : fs::directory_iterator(kept))
      count += entry.path().filename().string().size() >= 64 ? 1 : 0;
    return count;
  }
  std::string only_content() const {
    for (const auto& entry : fs::directory_iterator(kept)) {
      if (entry.path().filename().string().size() == 64) return entry.path();
    }
    return {};
  }

  TemporaryFolder folder;
  const std::string kept = folder / "state/versions";
  const std::string document = folder / "a.vqc";
  const Versions versions{kept};
  const system_clock::time_point now = half_past_twelve();
};

// Keeping.

TEST_F(VersionsTest, HaveWhatAFileHeld) {
  write_file(document, "one");
  EXPECT_EQ(kDone, versions.keep(document, Reason::before_save, now - 2min));
  write_file(document, "three");
  EXPECT_EQ(kDone, versions.keep(document, Reason::changed_outside, now - 1min));
  write_file(document, "now");

  const std::vector<Version> all = versions.of(document);
  ASSERT_EQ(2U, all.size());
  EXPECT_EQ(now - 1min, all[0].time);
  EXPECT_EQ(Reason::changed_outside, all[0].reason);
  EXPECT_EQ(5U, all[0].size);
  EXPECT_EQ("three", versions.text(all[0]));
  EXPECT_EQ(now - 2min, all[1].time);
  EXPECT_EQ(Reason::before_save, all[1].reason);
  EXPECT_EQ(3U, all[1].size);
  EXPECT_EQ("one", versions.text(all[1]));
}

TEST_F(VersionsTest, HaveEachReason) {
  const Reason reasons[] = {Reason::before_save, Reason::before_generation, Reason::crash, Reason::changed_outside,
                            Reason::not_saved};
  for (const Reason reason : reasons) {
    const std::string text = std::to_string(static_cast<int>(reason));
    EXPECT_EQ(kDone, versions.keep_text(document, text, reason, now));
    EXPECT_EQ(reason, versions.of(document).front().reason);
  }
}

TEST_F(VersionsTest, HoldAnyBytes) {
  const std::string bytes("\0\xFF\r\n\\\"", 6);
  write_file(document, bytes);
  EXPECT_EQ(kDone, versions.keep(document, Reason::before_save, now));
  EXPECT_EQ(Texts{bytes}, texts_of(document));
  EXPECT_EQ(kDone, versions.keep_text(document, "", Reason::before_save, now));
  EXPECT_EQ((Texts{"", bytes}), texts_of(document));
}

TEST_F(VersionsTest, AreNoneWhereThereIsNoFile) {
  EXPECT_EQ(kDone, versions.keep(document, Reason::before_save, now));
  EXPECT_EQ(kDone, versions.keep(document + "/below", Reason::before_save, now));
  EXPECT_EQ(kDone, versions.keep(folder.path(), Reason::before_save, now));
  EXPECT_EQ(kDone, versions.keep("/dev/null", Reason::before_save, now));
  EXPECT_EQ(0, mkfifo((folder / "pipe").c_str(), 0600));
  EXPECT_EQ(kDone, versions.keep(folder / "pipe", Reason::before_save, now));
  EXPECT_FALSE(fs::exists(kept));
}

TEST_F(VersionsTest, AreToldApartByTheirFiles) {
  keep_of(2min, "one", folder / "a.vqc");
  keep_of(1min, "two", folder / "b.vqc");
  EXPECT_EQ(Texts{"one"}, texts_of(folder / "a.vqc"));
  EXPECT_EQ(Texts{"two"}, texts_of(folder / "b.vqc"));
  EXPECT_EQ(Texts{}, texts_of(folder / "c.vqc"));
}

TEST_F(VersionsTest, AreOfOneFileUnderAllItsPaths) {
  write_file(document, "text");
  fs::create_symlink("a.vqc", folder / "link");
  keep_of(2min, "one", folder / "link");
  keep_of(1min, "two", folder / "missing/../a.vqc");
  const WorkingFolder working_folder(folder.path());
  EXPECT_EQ((Texts{"two", "one"}), texts_of("a.vqc"));
  EXPECT_EQ((Texts{"two", "one"}), texts_of("./link"));
}

TEST_F(VersionsTest, AreFoundUnderAPathOfAnyBytes) {
  const std::string path = folder / "100%\n\"\\ \xFF\xC3\xBC.vqc";
  keep_of(1min, "text", path);
  EXPECT_EQ(Texts{"text"}, texts_of(path));
}

TEST_F(VersionsTest, CanBeOfADocumentWithoutAFile) {
  EXPECT_EQ(kDone, versions.keep_text("", "text", Reason::not_saved, now));
  EXPECT_EQ(Texts{"text"}, texts_of(""));
  const WorkingFolder working_folder(folder.path());
  EXPECT_EQ(Texts{}, texts_of("."));
}

TEST_F(VersionsTest, AreNotKeptTwiceInARow) {
  keep_of(3min, "one");
  EXPECT_EQ(kDone, versions.keep_text(document, "one", Reason::crash, now));
  EXPECT_EQ(Texts{"one"}, texts_of(document));
  EXPECT_EQ(now, versions.of(document).front().time) << "until then the file had it";
  EXPECT_EQ(Reason::crash, versions.of(document).front().reason);
}

TEST_F(VersionsTest, AreAsOldAsTheyWereLastSeen) {
  keep_of(days(40), "one");
  keep_of(1min, "one");
  EXPECT_EQ(Texts{"one"}, thinned());
}

TEST_F(VersionsTest, ShareTheirContent) {
  keep_of(4min, "one");
  keep_of(3min, "two");
  keep_of(2min, "one");
  keep_of(1min, "one", folder / "b.vqc");
  EXPECT_EQ((Texts{"one", "two", "one"}), texts_of(document));
  EXPECT_EQ(Texts{"one"}, texts_of(folder / "b.vqc"));
  EXPECT_EQ(2U, count_of_contents());
}

TEST_F(VersionsTest, AreForTheUserAlone) {
  keep_of(1min, "text");
  for (const auto& entry : fs::directory_iterator(kept)) {
    EXPECT_EQ(fs::perms::owner_read | fs::perms::owner_write, entry.status().permissions()) << entry.path();
  }
  EXPECT_EQ(fs::perms::owner_all, fs::status(kept).permissions());
}

// Thinning.

TEST_F(VersionsTest, OfTheLastHourAllStay) {
  keep_of(60min, "a");
  keep_of(31min, "b");
  keep_of(30min, "c");
  keep_of(1s, "d");
  keep_of(0s, "e");
  EXPECT_EQ((Texts{"e", "d", "c", "b", "a"}), thinned());
}

TEST_F(VersionsTest, OfEachHourOfTheLastDayTheNewestStays) {
  keep_of(24h, "12:30 of the day before");
  keep_of(23h + 31min, "12:59");
  keep_of(23h + 30min, "13:00");
  keep_of(3h + 30min, "9:00");
  keep_of(2h + 45min, "9:45");
  keep_of(2h + 31min, "9:59");
  keep_of(2h + 30min, "10:00");
  keep_of(61min, "11:29");
  keep_of(60min, "11:30");
  EXPECT_EQ((Texts{"11:30", "10:00", "9:59", "13:00", "12:59"}), thinned());
}

TEST_F(VersionsTest, OfEachDayOfTheLastMonthTheNewestStays) {
  keep_of(days(32), "too old");
  keep_of(days(31) + 1min, "older than a month");
  keep_of(days(30), "30 days ago");
  keep_of(days(3) + 10h, "early");
  keep_of(days(3) + 2h, "later");
  keep_of(days(3), "latest");
  keep_of(days(2) - 11h, "of the end of a day");
  keep_of(days(1) + 1h, "of the day that began in the last one");
  EXPECT_EQ((Texts{"of the day that began in the last one", "of the end of a day", "latest", "30 days ago"}),
            thinned());
}

TEST_F(VersionsTest, OfOneFileStayWhateverIsKeptOfAnother) {
  keep_of(3h + 10min, "a");
  keep_of(3h + 5min, "b", folder / "b.vqc");
  EXPECT_EQ(Texts{"a"}, thinned());
  EXPECT_EQ(Texts{"b"}, texts_of(folder / "b.vqc"));
}

TEST_F(VersionsTest, AreThinnedTheSameATimeLater) {
  for (int age = 40; age > 1; --age) keep_of(days(age), std::to_string(age) + " days");
  for (int age = 30; age >= 0; --age) keep_of(std::chrono::hours(age), std::to_string(age) + " hours");
  const Texts once = thinned();
  EXPECT_EQ(25U + 30U, once.size()) << "from now to 24 hours ago, and from 2 days ago to 31";
  EXPECT_EQ(once, thinned());
}

TEST_F(VersionsTest, GoWithTheirContents) {
  keep_of(days(40), "old and gone");
  keep_of(days(39), "old and back");
  keep_of(1min, "old and back");
  keep_of(0min, "new");
  EXPECT_EQ(3U, count_of_contents());
  EXPECT_EQ((Texts{"new", "old and back"}), thinned());
  EXPECT_EQ(2U, count_of_contents());
}

TEST_F(VersionsTest, DoNotLeaveWhatNoVersionNames) {
  keep_of(1min, "text");
  write_file(kept + "/" + std::string(64, 'a'), "of a killed run");
  write_file(kept + "/" + std::string(64, 'b') + ".new", "of a killed");
  write_file(kept + "/notes", "somebody's");
  EXPECT_EQ(Texts{"text"}, thinned());
  EXPECT_EQ(1U, count_of_contents());
  EXPECT_TRUE(fs::exists(kept + "/notes"));
}

TEST_F(VersionsTest, TakeNoMoreRoomThanTheyMay) {
  const Versions small(kept, 10);
  keep_of(5min, "55555");
  keep_of(4min, "333");
  keep_of(3min, "1");
  keep_of(2min, "4444", folder / "b.vqc");
  keep_of(1min, "333");
  EXPECT_EQ(kDone, small.thin(now));
  EXPECT_EQ((Texts{"333", "1", "333"}), texts_of(document));
  EXPECT_EQ(Texts{"4444"}, texts_of(folder / "b.vqc"));
  EXPECT_EQ(3U, count_of_contents());
}

TEST_F(VersionsTest, AreNotOfWhatFindsNoRoomAtAll) {
  const Versions small(kept, 10);
  write_file(document, "eleven byte");
  EXPECT_EQ(std::errc::file_too_large, small.keep(document, Reason::before_save, now));
  EXPECT_EQ(std::errc::file_too_large, small.keep_text(document, "eleven byte", Reason::before_save, now));
  EXPECT_EQ(kDone, small.keep_text(document, "ten bytes.", Reason::before_save, now));
  EXPECT_EQ(kDone, small.thin(now));
  EXPECT_EQ(Texts{"ten bytes."}, texts_of(document));
}

TEST_F(VersionsTest, AreThinnedWhereThereAreNone) {
  EXPECT_EQ(kDone, versions.thin(now));
  EXPECT_FALSE(fs::exists(kept));
}

// What may be wrong with the folder.

TEST_F(VersionsTest, AreReadFromTheLinesThatCanBe) {
  keep_of(2min, "one");
  const std::string line = read_file(kept + "/index");
  const auto with = [&](std::string_view old, std::string_view other) {
    std::string changed = line;
    changed.replace(changed.find(old), old.size(), other);
    return changed;
  };
  write_file(kept + "/index", "\n{\n[]\nnull\n\xFF\n" + with("before_save", "no reason") +
                                  with("\"time\":", "\"time\":99999999999999") + with("\"time\":", "\"time\":-") +
                                  with("\"time\":", "\"time\":\"x\",\"other\":") +
                                  with("\"path\":\"", "\"path\":\"%G0") + with("\"content\":\"", "\"content\":\"../") +
                                  std::string(1000, '[') + "\n" + line + line.substr(0, line.size() / 2));
  EXPECT_EQ(Texts{"one"}, texts_of(document));
  keep_of(1min, "two");
  EXPECT_EQ((Texts{"two", "one"}), texts_of(document));
}

TEST_F(VersionsTest, AreGoneWithADamagedContent) {
  keep_of(3min, "one");
  write_file(only_content(), "not");
  EXPECT_EQ(Texts{"gone"}, texts_of(document));
  keep_of(2min, "one");
  EXPECT_EQ(Texts{"one"}, texts_of(document)) << "it is kept anew";
}

TEST_F(VersionsTest, AreNotListedWithoutTheirContent) {
  keep_of(3min, "one");
  fs::remove(only_content());
  keep_of(2min, "two");
  EXPECT_EQ(Texts{"two"}, texts_of(document));
  EXPECT_EQ(Texts{"two"}, thinned());
}

TEST_F(VersionsTest, FollowNoLinks) {
  keep_of(3min, "one");
  const std::string content = only_content();
  const std::string target = folder.with("target", "one");
  fs::remove(content);
  fs::create_symlink(target, content);
  EXPECT_EQ(Texts{}, texts_of(document));
  fs::rename(kept + "/index", folder / "moved");
  fs::create_symlink(folder / "moved", kept + "/index");
  EXPECT_EQ(std::errc::too_many_symbolic_link_levels, versions.keep_text(document, "two", Reason::crash, now));
  EXPECT_EQ(std::errc::too_many_symbolic_link_levels, versions.thin(now));
  fs::remove(kept + "/index");
  fs::remove(kept + "/lock");
  fs::create_symlink(target, kept + "/lock");
  EXPECT_EQ(std::errc::too_many_symbolic_link_levels, versions.keep_text(document, "two", Reason::crash, now));
  EXPECT_EQ("one", read_file(target));
}

TEST_F(VersionsTest, StayWhileTheirIndexCannotBeRead) {
  const AsSomebody somebody(folder.path());
  keep_of(days(32), "one");
  chmod((kept + "/index").c_str(), 0);
  EXPECT_EQ(std::errc::permission_denied, versions.keep_text(document, "two", Reason::crash, now));
  EXPECT_EQ(std::errc::permission_denied, versions.thin(now));
  EXPECT_EQ(Texts{}, texts_of(document));
  chmod((kept + "/index").c_str(), 0600);
  EXPECT_EQ(Texts{"one"}, texts_of(document));
}

TEST_F(VersionsTest, AreNotKeptInAFolderThatIsALink) {
  fs::create_directory(folder / "elsewhere");
  fs::create_symlink(folder / "elsewhere", folder / "link");
  EXPECT_NE(kDone, Versions(folder / "link").keep_text(document, "text", Reason::crash, now));
  EXPECT_TRUE(fs::is_empty(folder / "elsewhere"));
}

TEST_F(VersionsTest, SayWhyTheyCannotBeKept) {
  write_file(document, "text");
  const std::string file = folder.with("file", "");
  EXPECT_EQ(std::errc::not_a_directory, Versions(file).keep(document, Reason::before_save, now));
  EXPECT_EQ(std::errc::no_such_file_or_directory, Versions({}).keep(document, Reason::before_save, now));
  EXPECT_EQ(std::errc::not_a_directory, Versions(file).thin(now));
  EXPECT_TRUE(Versions(file).of(document).empty());
}

TEST_F(VersionsTest, SayThatTheirFolderCannotBeWritten) {
  const AsSomebody somebody(folder.path());
  write_file(document, "text");
  keep_of(1min, "one");
  chmod(kept.c_str(), 0500);
  EXPECT_EQ(std::errc::permission_denied, versions.keep(document, Reason::before_save, now));
  EXPECT_EQ(Texts{"one"}, texts_of(document));
  chmod(kept.c_str(), 0700);
  chmod(document.c_str(), 0);
  EXPECT_EQ(std::errc::permission_denied, versions.keep(document, Reason::before_save, now));
}

TEST_F(VersionsTest, StayWhereANewOneFindsNoRoom) {
  keep_of(1min, "one");
  {
    const RoomForFiles little(5000);
    EXPECT_EQ(std::errc::file_too_large,
              versions.keep_text(document, std::string(6000, 'x'), Reason::before_save, now));
  }
  EXPECT_EQ(Texts{"one"}, texts_of(document));
  EXPECT_EQ(1U, count_of_contents());
  {
    const RoomForFiles little(read_file(kept + "/index").size() + 10);
    EXPECT_EQ(std::errc::file_too_large, versions.keep_text(document, "two", Reason::before_save, now));
  }
  EXPECT_EQ(Texts{"one"}, thinned());
  EXPECT_EQ(1U, count_of_contents());
}

// Several processes, and those that are killed.

TEST_F(VersionsTest, OfManyProcessesAtOnceAreAllKept) {
  std::vector<pid_t> processes;
  for (int process = 0; process < 4; ++process) {
    processes.push_back(in_process([&] {
      for (int i = 0; i < 10; ++i) {
        const std::string text = std::to_string(process) + " " + std::to_string(i);
        if (versions.keep_text(document, text, Reason::before_save, now)) throw std::runtime_error("not kept");
        if (versions.thin(now)) throw std::runtime_error("not thinned");
      }
    }));
  }
  for (const pid_t process : processes) {
    int status = -1;
    waitpid(process, &status, 0);
    EXPECT_EQ(0, status);
  }
  Texts texts = texts_of(document);
  std::ranges::sort(texts);
  EXPECT_EQ(40U, texts.size());
  EXPECT_EQ(texts.end(), std::ranges::adjacent_find(texts));
  EXPECT_EQ(texts.end(), std::ranges::find(texts, "gone"));
}

TEST_F(VersionsTest, AreWholeWheneverAProcessIsKilled) {
  int with_new = 0;
  int without_oldest = 0;
  for (int n = 1;; n += 3) {  // each round costs some waiting for the disk
    fs::remove_all(kept);
    keep_of(days(40), "oldest");
    keep_of(2min, "old");
    const bool was_killed = killed_at_stop(n, [&] {
      versions.keep_text(document, "new", Reason::before_save, now);
      versions.thin(now);
    });
    const Texts texts = texts_of(document);
    const bool has_new = texts.front() == "new";
    const bool has_oldest = texts.back() == "oldest";
    with_new += has_new ? 1 : 0;
    without_oldest += has_oldest ? 0 : 1;
    EXPECT_EQ(1 + (has_new ? 1 : 0) + (has_oldest ? 1 : 0), std::ssize(texts));
    EXPECT_EQ("old", texts[has_new ? 1 : 0]);
    const Texts left = has_new ? Texts{"new", "old"} : Texts{"old"};
    EXPECT_EQ(left, thinned());
    EXPECT_EQ(left.size(), count_of_contents());
    if (!was_killed) break;
  }
  EXPECT_LT(1, with_new);
  EXPECT_LT(1, without_oldest);
}

}  // namespace
