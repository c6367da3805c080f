#include <algorithm>
#include <filesystem>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/leafnm.h"

using namespace vqc;

namespace {

const char athena[] = "VQconfig\nwidget 'Label' {\n}\nfamily 'Athena' {\nwidget='Label'\n}\n";
const char demo[] = "VQconfig\nfamily 'Demo' {\n}\n";

class FileCommands : public Session {
 protected:
  /// A document with a name, then changed.
  void change_document() {
    open_document(athena);
    add_family("Extra");
    ASSERT_TRUE(dirty);
  }
};

TEST_F(FileCommands, NewOnACleanDocumentEmptiesItAtOnce) {
  open_document("VQconfig\ncode_name='c.c'\nstop_list='XmForm'\nfamily 'Athena' {\n}\n");
  choose_menu("family_file_cascade", "family_newb");
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_EQ("vqconfig", title());
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(FileCommands, NewLeavesNoRecordBehind) {
  open_document(
      "VQconfig\nwidget 'W' {\n}\nenumeration 'E' {\n}\nheader 'h'\ncheader 'c'\nfamily_header 'f'\n"
      "alias 'A' {\n}\nconverter 'C' {\n}\npopup 'P' {\n}\npage 'G'\n");
  press("family_newb");
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(FileCommands, NewLeavesNoFamilyCurrent) {
  open_document(athena);
  edit_family("Athena");
  press("family_newb");
  EXPECT_EQ(nullptr, family_getcurrent());
  EXPECT_EQ("", text("family_selection"));
  EXPECT_EQ(filled("family_title", nullptr), title("entity_dialog"));
  EXPECT_EQ(Items(), items("widgetlist_selection"));
}

TEST_F(FileCommands, NewClearsTheOptionsEvenIfTheirDialogWasNeverSeen) {
  open_document("VQconfig\ngenerate_popup_string='my_popups'\nfamily 'F' {\n}\n");
  press("family_newb");
  EXPECT_EQ("popups", vqc_get_popups_variable());
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(FileCommands, OpenReplacesTheDocument) {
  open_document(athena);
  const std::string other = folder.with("demo.vqc", demo);
  choose_menu("family_file_cascade", "family_openb");
  ASSERT_TRUE(is_shown("open_dialog"));
  enter("open_fsb", other);
  click("open_fsb.OK");
  EXPECT_FALSE(is_shown("open_dialog"));
  EXPECT_EQ(Items{"Demo"}, items("family_selection"));
  EXPECT_EQ("vqconfig: demo.vqc", title());
  EXPECT_EQ(other, save_file.value_or(""));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(nullptr, family_getcurrent());
  EXPECT_EQ("", saved_item("widget 'Label'"));
}

TEST_F(FileCommands, OpenTakesTheStopListOfTheNewDocumentOnly) {
  open_document("VQconfig\nstop_list='XmForm'\n");
  open_file(folder.with("demo.vqc", demo));
  EXPECT_FALSE(edited_document.excluded_classes);
}

TEST_F(FileCommands, OpenThatIsCancelledChangesNothing) {
  open_document(athena);
  press("family_openb");
  press_cancel("open_fsb");
  EXPECT_FALSE(is_shown("open_dialog"));
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
}

TEST_F(FileCommands, AFileThatCannotBeOpenedLeavesTheModelUnnamedAndClean) {
  open_document(athena);
  open_file("missing.vqc");
  EXPECT_NE(std::string::npos, error_shown().find(folder / "missing.vqc")) << error_shown();
  EXPECT_NE(std::string::npos, error_shown().find("No such file or directory")) << error_shown();
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
  EXPECT_FALSE(is_shown("open_dialog"));
}

TEST_F(FileCommands, AFileThatIsNoDocumentLeavesAnEmptyUnnamedModel) {
  open_document(athena);
  open_file(folder.with("letter.vqc", "Dear Sir\n"));
  EXPECT_EQ(resource_text("bad_save_file"), error_shown());
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, ASyntaxErrorKeepsWhatWasReadBeforeIt) {
  open_document(demo);
  open_file(folder.with("half.vqc", "VQconfig\nfamily 'Whole' {\n}\nfamily 12 {\n}\nfamily 'Never' {\n}\n"));
  EXPECT_NE(std::string::npos, error_shown().find(resource_text("se_string"))) << error_shown();
  EXPECT_NE(std::string::npos, error_shown().find("4")) << error_shown();
  EXPECT_EQ(Items{"Whole"}, items("family_selection"));
  EXPECT_EQ("vqconfig: half.vqc", title());
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, OnlyTheFirstSyntaxErrorOfASessionIsShown) {
  start();
  const std::string half = folder.with("half.vqc", "VQconfig\nfamily 12 {\n}\n");
  open_file(half);
  press_cancel("error_messageb");
  open_file(half);
  EXPECT_EQ("", error_shown());
}

TEST_F(FileCommands, ReadAddsToTheDocumentAndLeavesItsName) {
  open_document(athena);
  const std::string other = folder.with("demo.vqc", demo);
  choose_menu("family_file_cascade", "family_readb");
  ASSERT_TRUE(is_shown("read_dialog"));
  enter("read_fsb", other);
  click("read_fsb.OK");
  EXPECT_FALSE(is_shown("read_dialog"));
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_EQ(folder / "document.vqc", save_file.value_or(""));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(nullptr, family_getcurrent());
}

TEST_F(FileCommands, ReadAsksNoQuestion) {
  change_document();
  press("family_readb");
  EXPECT_TRUE(is_shown("read_dialog"));
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  press_cancel("read_fsb");
  EXPECT_FALSE(is_shown("read_dialog"));
}

TEST_F(FileCommands, ReadOfAMissingFileIsReportedAndChangesNothing) {
  open_document(athena);
  read_into("missing.vqc");
  EXPECT_NE(std::string::npos, error_shown().find("missing.vqc"));
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_EQ(folder / "document.vqc", save_file.value_or(""));
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, ReadOfWhatIsThereAlreadyLeavesTheDocumentClean) {
  open_document(demo);
  read_into(folder.with("same.vqc", "VQconfig\n"));
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, SaveOfANamedDocumentWritesWithoutADialog) {
  change_document();
  choose_menu("family_file_cascade", "family_saveb");
  EXPECT_FALSE(find_widget("save_dialog"));
  EXPECT_FALSE(dirty);
  EXPECT_NE(std::string::npos, read_file(folder / "document.vqc").find("family 'Extra' {\n"));
}

TEST_F(FileCommands, SaveOfAnUnnamedDocumentAsksForAName) {
  start();
  add_family("F");
  choose_menu("family_file_cascade", "family_saveb");
  ASSERT_TRUE(is_shown("save_dialog"));
  EXPECT_EQ(resource_text("save_title"), title("save_dialog"));
  enter("save_fsb", folder / "mine.vqc");
  click("save_fsb.OK");
  EXPECT_FALSE(is_shown("save_dialog"));
  EXPECT_EQ("vqconfig: mine.vqc", title());
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(read_file(folder / "mine.vqc").starts_with("VQconfig\n"));
}

TEST_F(FileCommands, SaveAsAlwaysAsksAndRenamesTheDocument) {
  change_document();
  choose_menu("family_file_cascade", "family_saveasb");
  ASSERT_TRUE(is_shown("save_dialog"));
  EXPECT_EQ(resource_text("save_as_title"), title("save_dialog"));
  choose_file("save_fsb", folder / "copy.vqc");
  EXPECT_EQ("vqconfig: copy.vqc", title());
  EXPECT_FALSE(dirty);
  EXPECT_EQ(athena, read_file(folder / "document.vqc"));
  add_family("Later");
  press("family_saveb");
  EXPECT_NE(std::string::npos, read_file(folder / "copy.vqc").find("family 'Later' {\n"));
}

TEST_F(FileCommands, SaveAsThatIsCancelledWritesNothing) {
  change_document();
  press("family_saveasb");
  press_cancel("save_fsb");
  EXPECT_FALSE(is_shown("save_dialog"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(athena, read_file(folder / "document.vqc"));
}

TEST_F(FileCommands, ExitOnACleanDocumentEndsAtOnce) {
  open_document(athena);
  choose_menu("family_file_cascade", "family_exitb");
  EXPECT_EQ(0, exit_status);
  EXPECT_FALSE(find_widget("savechanges_dialog"));
}

TEST_F(FileCommands, AFileBoxShowsWhatIsThereWheneverItIsShown) {
  start({"-xrm", "*pattern: *.vqc"});
  press("family_openb");
  EXPECT_EQ(0, std::ranges::count(items("open_fsb"), folder / "late.vqc"));
  press_cancel("open_fsb");
  folder.with("late.vqc", demo);
  press("family_openb");
  EXPECT_EQ(1, std::ranges::count(items("open_fsb"), "late.vqc") +
                   std::ranges::count(items("open_fsb"), folder / "late.vqc"));
}

/// What a file box shows: the folder, and the name that it offers.
std::vector<std::string> shown_in(const std::string& box) { return {text(box + ".DirText"), text(box)}; }

using Shown = std::vector<std::string>;

TEST_F(FileCommands, TheFileBoxesOpenInTheFolderOfTheDocument) {
  std::filesystem::create_directory(folder / "sub");
  start({folder.with("sub/mine.vqc", demo)});
  press("family_openb");
  EXPECT_EQ((Shown{folder / "sub/", ""}), shown_in("open_fsb"));
  EXPECT_EQ(Items{"mine.vqc"}, items("open_fsb"));
  press("family_readb");
  EXPECT_EQ((Shown{folder / "sub/", ""}), shown_in("read_fsb"));
  press("family_saveasb");
  EXPECT_EQ((Shown{folder / "sub/", "mine.vqc"}), shown_in("save_fsb"));
}

TEST_F(FileCommands, TheFileBoxesOpenInTheWorkingDirectoryWhileThereIsNoName) {
  start();
  for (const auto& [command, box] : {std::pair("family_openb", "open_fsb"), std::pair("family_readb", "read_fsb"),
                                     std::pair("family_saveb", "save_fsb"), std::pair("family_saveasb", "save_fsb")}) {
    press(command);
    EXPECT_EQ((Shown{folder.path() + "/", ""}), shown_in(box)) << command;
  }
}

TEST_F(FileCommands, AFileBoxComesBackToTheFolderOfTheDocument) {
  std::filesystem::create_directory(folder / "sub");
  open_document(demo);
  press("family_openb");
  enter("open_fsb.DirText", folder / "sub");
  press_apply("open_fsb");
  ASSERT_EQ((Shown{folder / "sub/", ""}), shown_in("open_fsb"));
  press_cancel("open_fsb");
  press("family_openb");
  EXPECT_EQ((Shown{folder.path() + "/", ""}), shown_in("open_fsb"));
  choose_file("open_fsb", folder.with("sub/other.vqc", demo));
  press("family_openb");
  EXPECT_EQ((Shown{folder / "sub/", ""}), shown_in("open_fsb"));
}

TEST_F(FileCommands, ADocumentNamedFromTheWorkingDirectoryHasItsFolder) {
  std::filesystem::create_directory(folder / "sub");
  folder.with("sub/mine.vqc", demo);
  start({"sub/mine.vqc"});
  press("family_saveasb");
  EXPECT_EQ((Shown{folder / "sub/", "mine.vqc"}), shown_in("save_fsb"));
  press_ok("save_fsb");
  EXPECT_EQ(folder / "sub/mine.vqc", save_file.value_or(""));
}

TEST_F(FileCommands, TheFileBoxesOpenSomewhereWhenTheFolderHasGone) {
  std::filesystem::create_directory(folder / "sub");
  start({folder.with("sub/mine.vqc", demo)});
  std::filesystem::remove_all(folder / "sub");
  press("family_saveasb");
  EXPECT_EQ("mine.vqc", text("save_fsb"));
  choose_file("save_fsb", folder / "mine.vqc");
  EXPECT_EQ("vqconfig: mine.vqc", title());
}

TEST_F(FileCommands, TypingReplacesTheNameThatSaveAsOffers) {
  open_document(demo);
  for (const char* name : {"first.vqc", "second.vqc"}) {
    press("family_saveasb");
    ASSERT_TRUE(has_keyboard("save_dialog"));
    EXPECT_EQ(leafnm(save_file->c_str()), text("save_fsb"));
    type(name);
    EXPECT_EQ(name, text("save_fsb"));
    key("Return");
    EXPECT_EQ(folder / name, save_file.value_or(""));
  }
}

TEST_F(FileCommands, ANameThatSaveAsOffersAndCannotShowIsTakenAsItIs) {
  start({folder.with("d\xfc.vqc", demo)});
  add_family("Extra");
  press("family_saveasb");
  EXPECT_EQ("d?.vqc", text("save_fsb"));
  press_ok("save_fsb");
  EXPECT_EQ(folder / "d\xfc.vqc", save_file.value_or(""));
  EXPECT_NE(demo, read_file(folder / "d\xfc.vqc"));
}

/// What a file box says when its user has typed nothing.
void expect_no_file_told() { EXPECT_TRUE(error_shown().ends_with("\nNo such file or directory")) << error_shown(); }

TEST_F(FileCommands, OpenWithoutANameIsToldAndCloses) {
  open_document(athena);
  press("family_openb");
  ASSERT_TRUE(is_shown("open_dialog"));
  click("open_fsb.OK");
  expect_no_file_told();
  EXPECT_FALSE(is_shown("open_dialog"));
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_FALSE(save_file);
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, ReadWithoutANameIsToldAndCloses) {
  open_document(athena);
  press("family_readb");
  ASSERT_TRUE(is_shown("read_dialog"));
  click("read_fsb.OK");
  expect_no_file_told();
  EXPECT_FALSE(is_shown("read_dialog"));
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ(folder / "document.vqc", save_file.value_or(""));
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, SaveWithoutANameIsToldAndCloses) {
  change_document();
  press("family_saveasb");
  ASSERT_TRUE(has_keyboard("save_dialog"));
  key("Delete");
  click("save_fsb.OK");
  expect_no_file_told();
  EXPECT_FALSE(is_shown("save_dialog"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_EQ(athena, read_file(folder / "document.vqc"));
  save_as(folder / "document.vqc");
  EXPECT_FALSE(dirty);
}

TEST_F(FileCommands, AFolderInTheNameFieldIsToldAndCloses) {
  open_document(athena);
  std::filesystem::create_directory(folder / "sub");
  press("family_readb");
  enter("read_fsb", "sub");
  press_ok("read_fsb");
  EXPECT_NE(std::string::npos, error_shown().find(folder / "sub")) << error_shown();
  EXPECT_NE(std::string::npos, error_shown().find("Is a directory")) << error_shown();
  EXPECT_FALSE(is_shown("read_dialog"));
}

TEST_F(FileCommands, AcceleratorsReachTheFileMenu) {
  open_document(athena);
  add_family("Extra");
  click("family_selection.Text");
  key("ctrl+s");
  EXPECT_FALSE(dirty);
  key("ctrl+o");
  EXPECT_TRUE(is_shown("open_dialog"));
  press_cancel("open_fsb");
  click("family_selection.Text");
  key("ctrl+shift+s");
  EXPECT_TRUE(is_shown("save_dialog"));
  press_cancel("save_fsb");
  click("family_selection.Text");
  key("ctrl+n");
  EXPECT_EQ(Items(), items("family_selection"));
  key("ctrl+q");
  EXPECT_EQ(0, exit_status);
}

}  // namespace
