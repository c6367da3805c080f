#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/message.h"

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

}  // namespace
