#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>
#include <vector>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/outside.h"
#include "gui/session.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/history/journal.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

namespace {

const char two_families[] = "VQconfig\nfamily 'Athena' {\n}\nfamily 'Demo' {\n}\n";

/// A session in a home directory of its own.
class SafetyNet : public Session {
 protected:
  std::vector<Version> versions_of(const std::string& path) const { return Versions(versions_folder()).of(path); }
  std::string newest(const std::string& path) const {
    const std::vector<Version> versions = versions_of(path);
    return versions.empty() ? "" : Versions(versions_folder()).text(versions.front()).value_or("");
  }
};

TEST_F(SafetyNet, KeepsWhatSavingReplaces) {
  open_document(two_families);
  add_family("New");
  press("family_saveb");
  const auto versions = versions_of(folder / "document.vqc");
  ASSERT_EQ(1U, versions.size());
  EXPECT_EQ(Reason::before_save, versions.front().reason);
  EXPECT_EQ(two_families, newest(folder / "document.vqc"));
}

TEST_F(SafetyNet, KeepsWhatGenerationReplaces) {
  open_document(two_families);
  folder.with("stubs.c", "what a person wrote\n");
  press("family_genstubs_b");
  choose_file("gen_fsb", folder / "stubs.c");
  EXPECT_NE("what a person wrote\n", read_file(folder / "stubs.c"));
  EXPECT_EQ("what a person wrote\n", newest(folder / "stubs.c"));
}

TEST_F(SafetyNet, KeepsAnOrderThatWasNotSaved) {
  open_document(two_families);
  click_item("family_selection", "Demo");
  press("family_uparrow");
  press("family_exitb");
  ASSERT_TRUE(exit_status);
  end_safety_net();  // as the end of the program does
  const auto versions = versions_of(folder / "document.vqc");
  ASSERT_EQ(1U, versions.size());
  EXPECT_EQ(Reason::not_saved, versions.front().reason);
  const std::string text = newest(folder / "document.vqc");
  EXPECT_LT(text.find("family 'Demo'"), text.find("family 'Athena'"));
  EXPECT_TRUE(Journal::abandoned(journals_folder()).empty());
}

TEST_F(SafetyNet, RestoresWhatAKilledSessionHasLeft) {
  const std::string path = folder.with("document.vqc", two_families);
  leave_state(path, "VQconfig\nfamily 'Motif' { }\n");
  start({path});
  EXPECT_TRUE(is_shown("recovery_dialog"));
  EXPECT_NE(std::string::npos, message("recovery_messagebox").find(path));
  press_ok("recovery_messagebox");
  EXPECT_EQ(Items{"Motif"}, items("family_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(two_families, read_file(path));
  EXPECT_FALSE(is_shown("recovery_dialog"));
  EXPECT_TRUE(Journal::abandoned(journals_folder()).empty());
  EXPECT_EQ("VQconfig\nfamily 'Motif' { }\n", newest(path));
  press("family_undob");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(SafetyNet, WhatIsDiscardedIsStillAVersion) {
  const std::string path = folder.with("document.vqc", two_families);
  leave_state(path, "VQconfig\nfamily 'Motif' { }\n");
  start({path});
  press("recovery_discardb");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_TRUE(Journal::abandoned(journals_folder()).empty());
  EXPECT_EQ("VQconfig\nfamily 'Motif' { }\n", newest(path));
}

TEST_F(SafetyNet, WhatWaitsIsAskedAboutAgain) {
  const std::string path = folder.with("document.vqc", two_families);
  leave_state(path, "VQconfig\nfamily 'Motif' { }\n");
  start({path});
  press_cancel("recovery_messagebox");
  EXPECT_FALSE(is_shown("recovery_dialog"));
  EXPECT_EQ(1U, Journal::abandoned(journals_folder()).size());
}

TEST_F(SafetyNet, AsksNothingAboutAnotherDocument) {
  leave_state(folder.with("other.vqc", two_families), "VQconfig\nfamily 'Motif' { }\n");
  open_document(two_families);
  EXPECT_FALSE(is_shown("recovery_dialog"));
  EXPECT_EQ(1U, Journal::abandoned(journals_folder()).size());
}

TEST_F(SafetyNet, AsksNothingAboutWhatIsSaved) {
  Document document;
  Diagnostics findings;
  load(Source::from_text(two_families), document, findings);
  StringSink text;
  save_whole(document, text);
  text.finish();
  const std::string path = folder.with("document.vqc", text.text());
  leave_state(path, text.text());
  start({path});
  EXPECT_FALSE(is_shown("recovery_dialog"));
  EXPECT_TRUE(Journal::abandoned(journals_folder()).empty());
}

TEST_F(SafetyNet, OffersWhatHadNoFileToASessionWithoutOne) {
  leave_state("", "VQconfig\nfamily 'Motif' { }\n");
  start();
  EXPECT_TRUE(is_shown("recovery_dialog"));
  press_ok("recovery_messagebox");
  EXPECT_EQ(Items{"Motif"}, items("family_selection"));
  EXPECT_EQ("vqconfig", title());
}

TEST_F(SafetyNet, OpeningADocumentAsksAboutWhatAKilledSessionHasLeftOfIt) {
  const std::string path = folder.with("other.vqc", two_families);
  leave_state(path, "VQconfig\nfamily 'Motif' { }\n");
  open_document("VQconfig\n");
  EXPECT_FALSE(is_shown("recovery_dialog"));
  open_file(path);
  EXPECT_TRUE(is_shown("recovery_dialog"));
  press_ok("recovery_messagebox");
  EXPECT_EQ(Items{"Motif"}, items("family_selection"));
  EXPECT_TRUE(dirty);
}

TEST_F(SafetyNet, OpeningADocumentSaysThatAnotherSessionIsThere) {
  const std::string path = folder.with("other.vqc", two_families);
  const Journal other(journals_folder(), path);
  open_document("VQconfig\n");
  EXPECT_EQ("", error_shown());
  open_file(path);
  EXPECT_EQ(filled("other_session", path.c_str()), error_shown());
}

TEST_F(SafetyNet, SaysThatAnotherSessionIsThere) {
  const std::string path = folder.with("document.vqc", two_families);
  const Journal other(journals_folder(), path);
  start({path});
  EXPECT_EQ(filled("other_session", path.c_str()), error_shown());
}

TEST_F(SafetyNet, GoesOnWithoutAPlaceForIt) {
  const char* home = std::getenv("HOME");
  const std::filesystem::path state = std::filesystem::path(home) / ".local";
  std::ofstream(state) << "a file where a folder should be";
  open_document(two_families);
  add_family("New");
  press("family_saveb");
  EXPECT_FALSE(dirty);
  EXPECT_EQ("", error_shown());
  EXPECT_NE(two_families, read_file(folder / "document.vqc"));
}

TEST_F(SafetyNet, AKilledProgramLosesAtMostTheLastAction) {
  const std::string path = folder.with("document.vqc", two_families);
  OtherDisplay display;
  {
    RunningProgram program({path}, display.name());
    ASSERT_NE(Window{0}, display.wait_for_window("vqconfig: document.vqc"));
    display.focus("vqconfig: document.vqc");
    display.type("motif");
    display.key("Return");
    std::this_thread::sleep_for(std::chrono::seconds(2));
  }  // which kills it
  const auto left = Journal::abandoned(journals_folder());
  ASSERT_EQ(1U, left.size());
  EXPECT_EQ(path, left.front().document);
  EXPECT_NE(std::string::npos, left.front().text.find("family 'motif'"));
}

/// How many of the families that were added are in a state that was left; -1 when others are, or in another order.
int families_in(const std::string& text, int added) {
  Document document;
  Diagnostics findings;
  load_whole(Source::from_text(text), document, findings);
  int count = 0;
  for (const Family& family : document.families) {
    if (family.name.view() != std::string(1, static_cast<char>('a' + count))) return -1;
    ++count;
  }
  return count <= added ? count : -1;
}

TEST_F(SafetyNet, AKillAtAnyMomentLosesNoMoreThanWhatWasDoneLast) {
  using Clock = std::chrono::steady_clock;
  const std::string path = folder.with("document.vqc", "VQconfig\n");
  std::mt19937 random{20261122};
  for (int round = 0; round < 10; ++round) {
    OtherDisplay display;
    std::vector<Clock::time_point> actions;
    Clock::time_point killed;
    {
      RunningProgram program({path}, display.name());
      ASSERT_NE(Window{0}, display.wait_for_window("vqconfig: document.vqc"));
      display.focus("vqconfig: document.vqc");
      const auto end = Clock::now() + std::chrono::milliseconds(500 + random() % 5500);
      while (Clock::now() < end) {
        display.key("a", true);
        display.type(std::string(1, static_cast<char>('a' + actions.size())));
        display.key("Return");
        actions.push_back(Clock::now());
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
      }
      killed = Clock::now();
    }
    const auto is_kept = [&](Clock::time_point time) { return killed - time > std::chrono::milliseconds(2500); };
    const auto left = Journal::abandoned(journals_folder());
    const int found = left.empty() ? 0 : families_in(left.front().text, static_cast<int>(actions.size()));
    EXPECT_GE(found, static_cast<int>(std::ranges::count_if(actions, is_kept))) << "round " << round;
    for (const AbandonedJournal& journal : left) journal.remove();
  }
}

}  // namespace
