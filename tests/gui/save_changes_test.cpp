#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The question before New, Open and Exit when the document has changed.

namespace {

const char clean[] = "VQconfig\nfamily 'Athena' {\n}\n";

class SaveChanges : public Session {
 protected:
  void change_named() {
    open_document(clean);
    add_family("Extra");
  }
  void change_unnamed() {
    start();
    add_family("Extra");
  }
  std::string file() const { return read_file(folder / "document.vqc"); }
  static bool mentions_extra(const std::string& document) {
    return document.find("family 'Extra' {\n") != std::string::npos;
  }
};

TEST_F(SaveChanges, DiscardEndsWithoutWriting) {
  change_named();
  choose_menu("family_file_cascade", "family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_FALSE(exit_status);
  click("savechanges_nob");
  EXPECT_EQ(0, exit_status);
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  EXPECT_EQ(clean, file());
}

TEST_F(SaveChanges, OkSavesAndEnds) {
  change_named();
  press("family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  click("savechanges_messagebox.OK");
  EXPECT_EQ(0, exit_status);
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  EXPECT_TRUE(mentions_extra(file()));
}

TEST_F(SaveChanges, CancelKeepsTheSession) {
  change_named();
  press("family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  click("savechanges_messagebox.Cancel");
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  EXPECT_FALSE(exit_status);
  EXPECT_TRUE(dirty);
  EXPECT_EQ(clean, file());
}

TEST_F(SaveChanges, EscapeCancels) {
  change_named();
  press("family_exitb");
  ASSERT_TRUE(has_keyboard("savechanges_dialog"));
  key("Escape");
  EXPECT_FALSE(is_shown("savechanges_dialog"));
  EXPECT_FALSE(exit_status);
}

TEST_F(SaveChanges, ReturnSaves) {
  change_named();
  press("family_exitb");
  ASSERT_TRUE(has_keyboard("savechanges_dialog"));
  key("Return");
  EXPECT_EQ(0, exit_status);
  EXPECT_TRUE(mentions_extra(file()));
}

TEST_F(SaveChanges, ACancelledOperationDoesNotFollowALaterSave) {
  change_named();
  press("family_exitb");
  press_cancel("savechanges_messagebox");
  press("family_saveb");
  EXPECT_FALSE(exit_status);
  EXPECT_FALSE(dirty);
}

TEST_F(SaveChanges, AnUnnamedDocumentIsGivenANameThenTheProgramEnds) {
  change_unnamed();
  press("family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  click("savechanges_messagebox.OK");
  ASSERT_TRUE(is_shown("save_dialog"));
  EXPECT_EQ(resource_text("save_title"), title("save_dialog"));
  EXPECT_FALSE(exit_status);
  choose_file("save_fsb", folder / "mine.vqc");
  EXPECT_EQ(0, exit_status);
  EXPECT_TRUE(mentions_extra(read_file(folder / "mine.vqc")));
}

TEST_F(SaveChanges, CancelOfTheSaveDialogDropsTheOperation) {
  change_unnamed();
  press("family_exitb");
  press_ok("savechanges_messagebox");
  ASSERT_TRUE(is_shown("save_dialog"));
  press_cancel("save_fsb");
  EXPECT_FALSE(exit_status);
  save_as(folder / "mine.vqc");
  EXPECT_FALSE(exit_status);
  EXPECT_FALSE(dirty);
}

TEST_F(SaveChanges, AFailedSaveKeepsTheSessionAndTheDocument) {
  change_unnamed();
  press("family_exitb");
  press_ok("savechanges_messagebox");
  choose_file("save_fsb", folder / "no such folder/mine.vqc");
  EXPECT_NE("", error_shown());
  EXPECT_FALSE(exit_status);
  EXPECT_TRUE(dirty);
  EXPECT_EQ(Items{"Extra"}, items("family_selection"));
}

TEST_F(SaveChanges, DiscardThenOpenShowsTheOpenDialog) {
  change_named();
  choose_menu("family_file_cascade", "family_openb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_FALSE(is_shown("open_dialog"));
  click("savechanges_nob");
  EXPECT_TRUE(is_shown("open_dialog"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(clean, file());
}

TEST_F(SaveChanges, SaveThenOpenShowsTheOpenDialog) {
  change_named();
  press("family_openb");
  press_ok("savechanges_messagebox");
  EXPECT_TRUE(is_shown("open_dialog"));
  EXPECT_TRUE(mentions_extra(file()));
}

TEST_F(SaveChanges, DiscardThenNewEmptiesTheDocument) {
  change_named();
  choose_menu("family_file_cascade", "family_newb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_EQ((Items{"Athena", "Extra"}), items("family_selection"));
  click("savechanges_nob");
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_EQ("vqconfig", title());
  EXPECT_FALSE(dirty);
  EXPECT_EQ(clean, file());
}

TEST_F(SaveChanges, SaveThenNewEmptiesTheDocument) {
  change_named();
  press("family_newb");
  press_ok("savechanges_messagebox");
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_EQ("vqconfig", title());
  EXPECT_FALSE(save_file);
  EXPECT_TRUE(mentions_extra(file()));
}

TEST_F(SaveChanges, AskingLeavesAnOpenSaveAsBoxOpen) {
  change_named();
  press("family_saveasb");
  press("family_exitb");
  EXPECT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_TRUE(is_shown("save_dialog"));
  press_cancel("savechanges_messagebox");
  ASSERT_TRUE(is_shown("save_dialog"));
  choose_file("save_fsb", folder / "mine.vqc");
  EXPECT_FALSE(exit_status);
  EXPECT_EQ("vqconfig: mine.vqc", title());
}

TEST_F(SaveChanges, ASaveAsBoxClosesWithTheDocumentThatItWasToSave) {
  change_named();
  press("family_saveasb");
  press("family_newb");
  press("savechanges_nob");
  EXPECT_FALSE(is_shown("save_dialog"));
  add_family("Later");
  save_as(folder / "later.vqc");
  EXPECT_EQ(Items{"Later"}, items("family_selection"));
}

TEST_F(SaveChanges, TheQuestionHasToBeAnsweredFirst) {
  change_named();
  press("family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  move_aside("savechanges_dialog");
  click_in_vain("family_selection.Cancel");
  EXPECT_EQ((Items{"Athena", "Extra"}), items("family_selection"));
}

TEST_F(SaveChanges, ClosingTheMainWindowIsExit) {
  change_named();
  close_main_window();
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_FALSE(exit_status);
  press("savechanges_nob");
  EXPECT_EQ(0, exit_status);
}

TEST_F(SaveChanges, ClosingTheMainWindowOfACleanDocumentEnds) {
  open_document(clean);
  close_main_window();
  EXPECT_EQ(0, exit_status);
}

TEST_F(SaveChanges, APathWithPercentSignsIsShownAsItStands) {
  const std::string path = folder.with("50%s%d%n.vqc", clean);
  start({path});
  add_family("Extra");
  press("family_exitb");
  EXPECT_NE(std::string::npos, message("savechanges_messagebox").find(path)) << message("savechanges_messagebox");
  EXPECT_EQ("vqconfig: 50%s%d%n.vqc", title());
}

struct Question {
  const char* command;
  const char* named;
  const char* unnamed;
};
void PrintTo(const Question& question, std::ostream* stream) { *stream << question.command; }

class QuestionBefore : public SaveChanges, public testing::WithParamInterface<Question> {};

TEST_P(QuestionBefore, ANamedDocumentTellsItsPath) {
  change_named();
  press(GetParam().command);
  EXPECT_EQ(filled(GetParam().named, (folder / "document.vqc").c_str()), message("savechanges_messagebox"));
}

TEST_P(QuestionBefore, AnUnnamedDocument) {
  change_unnamed();
  press(GetParam().command);
  EXPECT_EQ(resource_text(GetParam().unnamed), message("savechanges_messagebox"));
}

const Question questions[] = {{"family_openb", "sbf_open", "sbu_open"},
                              {"family_newb", "sbf_new", "sbu_new"},
                              {"family_exitb", "sbf_exit", "sbu_exit"}};
INSTANTIATE_TEST_SUITE_P(Of, QuestionBefore, testing::ValuesIn(questions),
                         [](const testing::TestParamInfo<Question>& row) { return std::string(row.param.command); });

}  // namespace
