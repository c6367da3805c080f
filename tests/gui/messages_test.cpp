#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/message.h"

using namespace vqc;

// The error box.

namespace {

class ErrorBox : public Session {
 protected:
  ErrorBox() { start(); }
};

TEST_F(ErrorBox, ShowsTheTextOfAMessage) {
  EXPECT_EQ(1, error_show("bad_save_file"));
  EXPECT_EQ(resource_text("bad_save_file"), error_shown());
  EXPECT_NE("bad_save_file", error_shown());
}

TEST_F(ErrorBox, ShowsTheNameOfAMessageThatHasNoText) {
  EXPECT_EQ(1, error_show("no_such_message"));
  EXPECT_EQ("no_such_message", error_shown());
}

TEST_F(ErrorBox, ArgumentsOfAMessageThatHasNoTextAreLeftOut) {
  error_show_2s("no_such_message", "a", "b");
  EXPECT_EQ("no_such_message", error_shown());
}

TEST_F(ErrorBox, FillsInArguments) {
  error_show_1s("file_write_fail", "50%s full");
  EXPECT_EQ(filled("file_write_fail", "50%s full"), error_shown());
  error_show_1s("file_write_fail", nullptr);
  EXPECT_EQ(filled("file_write_fail", ""), error_shown());
}

TEST_F(ErrorBox, TheSecondMessageReplacesTheFirst) {
  error_show("first_message");
  error_show("second_message");
  EXPECT_EQ("second_message", error_shown());
}

TEST_F(ErrorBox, ASyntaxErrorWithoutANameIsUnknown) {
  vq_syntax_error(7, nullptr);
  EXPECT_NE(std::string::npos, error_shown().find("<unknown error>"));
  EXPECT_NE(std::string::npos, error_shown().find("7"));
}

TEST_F(ErrorBox, OffersCancelAndHelpOnly) {
  error_show("message");
  ASSERT_TRUE(is_shown("error_dialog"));
  EXPECT_FALSE(is_viewable(widget("error_messageb.OK")));
  EXPECT_TRUE(is_viewable(widget("error_messageb.Cancel")));
  EXPECT_TRUE(is_viewable(widget("error_messageb.Help")));
}

TEST_F(ErrorBox, CancelClosesIt) {
  error_show("message");
  ASSERT_TRUE(is_shown("error_dialog"));
  click("error_messageb.Cancel");
  EXPECT_FALSE(is_shown("error_dialog"));
  error_show("again");
  EXPECT_EQ("again", error_shown());
}

TEST_F(ErrorBox, EscapeClosesIt) {
  error_show("message");
  ASSERT_TRUE(has_keyboard("error_dialog"));
  key("Escape");
  EXPECT_FALSE(is_shown("error_dialog"));
}

TEST_F(ErrorBox, WorkGoesOnWhileItIsShown) {
  error_show("message");
  ASSERT_TRUE(is_shown("error_dialog"));
  move_aside("error_dialog");
  click("family_selection.Text");
  type("F");
  click("family_selection.Apply");
  EXPECT_EQ(Items{"F"}, items("family_selection"));
  EXPECT_TRUE(is_shown("error_dialog"));
}

/// Closes the error box with the mouse, though another dialog has to be answered first.
void read_and_close_error(const std::string& text) {
  EXPECT_EQ(text, error_shown());
  EXPECT_TRUE(has_keyboard("error_dialog"));
  click("error_messageb.Cancel");
  EXPECT_FALSE(is_shown("error_dialog"));
}

class ErrorDuringAQuestion : public ErrorBox {
 protected:
  static void ask() {
    add_family("F");
    press("family_exitb");
    ASSERT_TRUE(is_shown("savechanges_dialog"));
  }
  static void expect_question_still_first() {
    ASSERT_TRUE(is_shown("savechanges_dialog"));
    move_aside("savechanges_dialog");
    enter("family_selection", "Another");
    click_in_vain("family_selection.Apply");
    EXPECT_EQ(Items{"F"}, items("family_selection"));
    click("savechanges_messagebox.Cancel");
    EXPECT_FALSE(is_shown("savechanges_dialog"));
    click("family_selection.Apply");
    EXPECT_EQ((Items{"F", "Another"}), items("family_selection"));
  }
};

TEST_F(ErrorDuringAQuestion, IsReadAndClosedAtOnce) {
  ask();
  error_show("message");
  read_and_close_error("message");
  expect_question_still_first();
}

TEST_F(ErrorDuringAQuestion, IsReadAndClosedThoughAnEarlierErrorWasUp) {
  error_show("first_message");
  ask();
  error_show("second_message");
  read_and_close_error("second_message");
  expect_question_still_first();
}

TEST_F(ErrorDuringAQuestion, TheSecondReplacesTheFirst) {
  ask();
  error_show("first_message");
  error_show("second_message");
  read_and_close_error("second_message");
  expect_question_still_first();
}

TEST_F(ErrorDuringAQuestion, LaterErrorsDoNotHaveToBeAnsweredFirst) {
  ask();
  error_show("message");
  press_cancel("error_messageb");
  press_cancel("savechanges_messagebox");
  error_show("later_message");
  ASSERT_TRUE(is_shown("error_dialog"));
  move_aside("error_dialog");
  enter("family_selection", "Another");
  click("family_selection.Apply");
  EXPECT_EQ((Items{"F", "Another"}), items("family_selection"));
  EXPECT_TRUE(is_shown("error_dialog"));
}

TEST_F(ErrorBox, OfHelpThatIsMissingIsClosedBeforeTheGenerateBox) {
  session_hooks.help = [](Widget, const char*) { error_show("no_help_topic"); };
  press("family_genconfigb");
  ASSERT_TRUE(is_shown("gen_dialog"));
  click("gen_fsb.Help");
  read_and_close_error(resource_text("no_help_topic"));
  click("gen_fsb.Cancel");
  EXPECT_FALSE(is_shown("gen_dialog"));
}

}  // namespace
