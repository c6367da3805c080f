#include "vqc/cmd/history/journal_writer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <thread>

#include "support/document.h"
#include "support/files.h"
#include "vqc/cmd/history/timeline.h"

using namespace vqc;

namespace {

using namespace std::chrono_literals;

class JournalWriterTest : public DocumentTest {
 protected:
  std::filesystem::path place() const { return folder / "journals"; }

  /// The text that would be offered after the session.
  std::string offered() const {
    const auto journals = Journal::abandoned(place());
    return journals.size() == 1 ? journals.front().text : "";
  }

  TemporaryFolder folder;
};

/// Waits until something is true, for at most a second: as long as a state may take to be on the disk.
template <class Condition>
bool within_a_second(Condition condition) {
  const auto end = std::chrono::steady_clock::now() + 1s;
  while (!condition() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(10ms);
  return condition();
}

TEST_F(JournalWriterTest, LeavesTheLastStateOfASessionThatIsGone) {
  {
    JournalWriter writer{Journal(place(), "/tmp/a.vqc")};
    read_document("VQconfig\nfamily 'F' { }\nalias 'A' { to_name='it\\'s' }\n");
    Timeline timeline(document, {});
    writer.take(timeline.now().state, "/tmp/a.vqc");
    document.ensure(document.families, "G");
    timeline.note(document, {});
    writer.take(timeline.now().state, "/tmp/a.vqc");
    std::this_thread::sleep_for(1s);
    document.clear();  // whatever becomes of the document
  }
  Document again;
  Diagnostics findings;
  load_whole(Source::from_text(offered()), again, findings);
  EXPECT_TRUE(findings.empty());
  EXPECT_TRUE(again.families.find("F"));
  EXPECT_TRUE(again.families.find("G"));
  EXPECT_EQ("it's", again.aliases.find("A")->to_name.view());
}

TEST_F(JournalWriterTest, WritesWithinASecondWhileTheSessionGoesOn) {
  JournalWriter writer{Journal(place())};
  document.ensure(document.families, "F");
  writer.take(capture(document, nullptr), {});
  const auto has_journal = [&] {
    for (const auto& entry : std::filesystem::directory_iterator(place())) {
      if (entry.path().extension() == ".journal" && read_file(entry.path()).find("'F'") != std::string::npos)
        return true;
    }
    return false;
  };
  EXPECT_TRUE(within_a_second(has_journal));
  EXPECT_FALSE(writer.failure());
}

TEST_F(JournalWriterTest, LeavesNothingOfASessionThatEndedWell) {
  JournalWriter writer{Journal(place())};
  document.ensure(document.families, "F");
  writer.take(capture(document, nullptr), {});
  std::this_thread::sleep_for(500ms);
  writer.end();
  EXPECT_TRUE(Journal::abandoned(place()).empty());
  EXPECT_TRUE(!std::filesystem::exists(place()) || std::filesystem::is_empty(place()));
}

TEST_F(JournalWriterTest, SaysWhyNothingCanBeWritten) {
  folder.with("journals", "a file where a folder should be");
  JournalWriter writer{Journal(place())};
  document.ensure(document.families, "F");
  writer.take(capture(document, nullptr), {});
  EXPECT_TRUE(within_a_second([&] { return static_cast<bool>(writer.failure()); }));
}

}  // namespace
