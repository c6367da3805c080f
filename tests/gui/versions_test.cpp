#include <Xm/List.h>

#include <chrono>
#include <filesystem>
#include <regex>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/editors/safety_net.h"

using namespace vqc;

namespace {

using std::chrono::hours;
using std::chrono::system_clock;

const char two_families[] = "VQconfig\nfamily 'Athena' {\n}\nfamily 'Demo' {\n}\n";
const char with_dial[] =
    "VQconfig\nwidget 'Dial' {\nrealise='make'\nresource_definitions='a', , 'p', True, VQC_FREE, VQC_FREE;\n}\n"
    "family 'Athena' {\nwidget='Dial'\n}\n";

class VersionsWindow : public Session {
 protected:
  /// Keeps a text as a version of a file, as old as that.
  void keep(const std::string& path, const std::string& text, Reason reason, hours age = hours(0)) const {
    ASSERT_FALSE(Versions(versions_folder()).keep_text(path, text, reason, system_clock::now() - age));
  }
  std::string document() const { return folder / "document.vqc"; }
  static std::string newest(const std::string& path) {
    const std::vector<Version> versions = Versions(versions_folder()).of(path);
    return versions.empty() ? "" : Versions(versions_folder()).text(versions.front()).value_or("");
  }

  static void open_window() {
    choose_menu("family_file_cascade", "family_versionsb");
    ASSERT_TRUE(is_shown("versions_dialog"));
  }
  /// What stands in a row; rows are counted from 1.
  static std::string row_text(std::size_t row) {
    const Items rows = items("versions_list");
    return row <= rows.size() ? rows[row - 1] : "no such row";
  }
  /// What differs, which stands behind the size as soon as it is known.
  static std::string words(std::size_t row) {
    const auto last_column = [row] {
      static const std::regex size_and_words(R"( (bytes|kB)  (.*)$)");
      std::smatch found;
      const std::string text = row_text(row);
      return std::regex_search(text, found, size_and_words) ? found[2].str() : "no words in " + text;
    };
    wait_for([&] { return !last_column().empty(); });
    return last_column();
  }
  static bool has(std::size_t row, const std::string& text) { return row_text(row).find(text) != std::string::npos; }
  static void choose(int row) { XmListSelectPos(widget("versions_list"), row, True); }
  static Items show() {
    press("versions_showb");
    return items("versions_text");
  }
  static std::string said() { return label("status_line.status_said"); }
};

TEST_F(VersionsWindow, ListsWhatTheDocumentHeldNewestFirst) {
  open_document(two_families);
  keep(document(), "VQconfig\nfamily 'Athena' {\n}\n", Reason::before_save, hours(3));
  keep(document(), with_dial, Reason::crash, hours(2));
  open_window();
  ASSERT_EQ(2U, items("versions_list").size());
  EXPECT_TRUE(has(1, resource_text("kept_crash")));
  EXPECT_TRUE(has(2, resource_text("kept_before_save")));
  EXPECT_TRUE(has(2, "29 bytes"));
  EXPECT_EQ(document(), label("versions_path"));
}

TEST_F(VersionsWindow, CanBeUsedByKeys) {
  open_document(two_families);
  keep(document(), with_dial, Reason::before_save, hours(3));
  keep(document(), two_families, Reason::before_save, hours(2));
  open_window();
  EXPECT_EQ("versions_list", focus("versions_dialog"));
  key("Down");
  key("Return");
  EXPECT_EQ(words(2), items("versions_text").front());
  key("Escape");
  EXPECT_FALSE(is_shown("versions_dialog"));
}

TEST_F(VersionsWindow, SaysInNumbersWhatDiffersFromNow) {
  open_document(two_families);
  keep(document(), two_families, Reason::before_save, hours(3));
  keep(document(), with_dial, Reason::before_save, hours(2));
  open_window();
  EXPECT_EQ("1 family fewer, 1 family changed, 1 widget more", words(1));
  EXPECT_EQ("no differences", words(2));
}

TEST_F(VersionsWindow, FollowsTheDocument) {
  open_document(two_families);
  keep(document(), two_families, Reason::before_save, hours(3));
  open_window();
  EXPECT_EQ("no differences", words(1));
  add_family("New");
  EXPECT_EQ("1 family fewer", words(1));
  press("family_undob");
  EXPECT_EQ("no differences", words(1));
  press("family_saveb");
  EXPECT_EQ(1U, items("versions_list").size());
  add_family("New");
  press("family_saveb");
  EXPECT_TRUE(has(1, resource_text("kept_before_save")));
  EXPECT_EQ("1 family fewer", words(1));
}

TEST_F(VersionsWindow, ShowsWhatDiffersByRecordAndField) {
  open_document(
      "VQconfig\nwidget 'Dial' {\nrealise='other'\nresource_definitions='a', , 'q', True, VQC_FREE, VQC_FREE;\n}\n"
      "family 'Athena' {\nwidget='Dial'\n}\nfamily 'Demo' {\n}\n");
  keep(document(), with_dial, Reason::before_save, hours(2));
  open_window();
  EXPECT_EQ(
      (Items{"1 family fewer, 1 widget changed, 1 resource changed", "- family Demo", "  resource a (widget Dial)",
             "  - page = 'q'", "  + page = 'p'", "  widget Dial", "  - realise = 'other'", "  + realise = 'make'"}),
      show());
}

TEST_F(VersionsWindow, WhatIsShownGoesWhenAnotherVersionIsChosen) {
  open_document(two_families);
  keep(document(), with_dial, Reason::before_save, hours(2));
  keep(document(), two_families, Reason::before_save, hours(1));
  open_window();
  choose(2);
  EXPECT_FALSE(show().empty());
  choose(1);
  EXPECT_TRUE(items("versions_text").empty());
  EXPECT_EQ(Items{"no differences"}, show());
}

TEST_F(VersionsWindow, RestoresTheDocumentAsAStepThatCanBeUndone) {
  open_document(two_families);
  keep(document(), with_dial, Reason::before_save, hours(2));
  open_window();
  click("versions_restoreb");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(document(), save_file.value_or(""));
  EXPECT_EQ(two_families, read_file(document()));
  EXPECT_NE(std::string::npos, said().find("Restored"));
  EXPECT_EQ("no differences", words(1));
  press("family_undob");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
  press("family_redob");
  press("family_saveb");
  EXPECT_NE(std::string::npos, read_file(document()).find("make"));
  EXPECT_EQ(two_families, newest(document()));
}

TEST_F(VersionsWindow, WhatWasNotSavedBeforeRestoringIsAVersionToo) {
  open_document(two_families);
  add_family("Unsaved");
  keep(document(), with_dial, Reason::before_save, hours(2));
  open_window();
  press("versions_restoreb");
  EXPECT_TRUE(has(1, resource_text("kept_not_saved")));
  EXPECT_NE(std::string::npos, newest(document()).find("'Unsaved'"));
}

TEST_F(VersionsWindow, WhatASessionHasKeptOfItselfComesBackWhole) {
  open_document(two_families);
  click_item("family_selection", "Demo");
  press("family_uparrow");  // an order, which no document that is only saved need have
  keep_unsaved();
  press("family_undob");
  ASSERT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  open_window();
  EXPECT_EQ("families in another order", words(1));
  press("versions_restoreb");
  EXPECT_EQ((Items{"Demo", "Athena"}), items("family_selection"));
}

TEST_F(VersionsWindow, RestoresNothingWhereNothingDiffers) {
  open_document(two_families);
  keep(document(), two_families, Reason::before_save, hours(2));
  open_window();
  press("versions_restoreb");
  EXPECT_FALSE(dirty);
  EXPECT_EQ(resource_text("versions_same"), said());
}

TEST_F(VersionsWindow, SaysWhatCannotBeRead) {
  open_document(two_families);
  keep(document(), "int main() { return 0; }\n", Reason::changed_outside, hours(3));
  keep(document(), "VQconfig\nfamily 'Athena' {\n}\nfamily {\n", Reason::before_save, hours(2));
  open_window();
  EXPECT_EQ("only the part before line 4 can be read", words(1));
  EXPECT_EQ("not a document", words(2));
  EXPECT_EQ("only the part before line 4 can be read", show().front());
  choose(2);
  press("versions_restoreb");
  EXPECT_EQ("not a document", said());
  EXPECT_FALSE(dirty);
  choose(1);
  press("versions_restoreb");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_NE(std::string::npos, said().find("line 4"));
}

TEST_F(VersionsWindow, HasTheVersionsOfDocumentsWithoutAName) {
  start();
  keep("", two_families, Reason::not_saved, hours(2));
  open_window();
  EXPECT_TRUE(words(1).starts_with("2 families more")) << words(1);
  press("versions_restoreb");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(save_file);
}

TEST_F(VersionsWindow, HasNothingToPressWhereNothingIsKept) {
  open_document(two_families);
  open_window();
  EXPECT_TRUE(items("versions_list").empty());
  EXPECT_FALSE(is_sensitive("versions_showb"));
  EXPECT_FALSE(is_sensitive("versions_restoreb"));
}

TEST_F(VersionsWindow, ShowsOfAGeneratedFileWhichLinesDiffer) {
  open_document(two_families);
  const std::string path = folder.with("document_stubs.c", "one\ntwo\nfour\n");
  keep(path, "one\ntwo\nthree\n\tfour\nfive\n", Reason::before_generation, hours(2));
  open_window();
  choose_option("versions_file_opt", "versions_stubsb");
  EXPECT_EQ(path, label("versions_path"));
  EXPECT_TRUE(has(1, resource_text("kept_before_generation")));
  EXPECT_EQ("3 lines more, 1 line fewer", words(1));
  EXPECT_EQ((Items{"3 lines more, 1 line fewer", "@@ -1,3 +1,5 @@", " one", " two", "-four", "+three", "+       four",
                   "+five"}),
            show());
}

TEST_F(VersionsWindow, RestoresAGeneratedFileAndKeepsWhatWasThere) {
  open_document("VQconfig\nconfig_name='settings.c'\nfamily 'Athena' {\n}\n");
  const std::string path = folder.with("settings.c", "now\n");
  keep(path, "then\n", Reason::before_generation, hours(2));
  open_window();
  choose_option("versions_file_opt", "versions_configb");
  press("versions_restoreb");
  EXPECT_EQ("then\n", read_file(path));
  EXPECT_EQ("now\n", newest(path));
  EXPECT_FALSE(dirty);
  EXPECT_NE(std::string::npos, said().find("settings.c"));
  EXPECT_EQ(2U, items("versions_list").size());
  EXPECT_EQ("1 line more, 1 line fewer", words(1));
  EXPECT_EQ("no differences", words(2));
}

TEST_F(VersionsWindow, RestoresAGeneratedFileThatIsGone) {
  open_document(two_families);
  const std::string path = folder / "document_code.c";
  keep(path, "then\n", Reason::before_generation, hours(2));
  open_window();
  choose_option("versions_file_opt", "versions_codeb");
  EXPECT_EQ("1 line more", words(1));
  press("versions_restoreb");
  EXPECT_EQ("then\n", read_file(path));
}

TEST_F(VersionsWindow, SaysWhyAFileCannotBeRestored) {
  open_document(two_families);
  const std::string path = folder / "document_code.c";
  keep(path, "then\n", Reason::before_generation, hours(2));
  std::filesystem::create_directory(path);
  open_window();
  choose_option("versions_file_opt", "versions_codeb");
  press("versions_restoreb");
  EXPECT_NE(std::string::npos, error_shown().find(path));
}

TEST_F(VersionsWindow, AFileThatHasNoNameYetHasNone) {
  start();
  open_window();
  choose_option("versions_file_opt", "versions_codeb");
  EXPECT_EQ(resource_text("versions_no_file"), label("versions_path"));
  EXPECT_TRUE(items("versions_list").empty());
}

TEST_F(VersionsWindow, OfVeryManyLinesTheFirstAreShown) {
  open_document(two_families);
  const std::string path = folder / "document_code.c";
  std::string text;
  for (int i = 0; i < 6000; ++i) text += "line " + std::to_string(i) + '\n';
  text += std::string(100'000, 'x') + '\n';
  keep(path, text, Reason::before_generation, hours(2));
  open_window();
  choose_option("versions_file_opt", "versions_codeb");
  EXPECT_EQ("6001 lines more", words(1));
  const Items lines = show();
  ASSERT_EQ(5001U, lines.size());
  EXPECT_EQ("... and 1003 lines more", lines.back());
}

}  // namespace
