#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char sound[] =
    "VQconfig\n"
    "widget 'Dial' { include_filename='Dial.h' resource_definitions='value', , 'look', True; }\n"
    "alias 'XtRAngle' { to_name='XtRInt' }\n"
    "family 'First' { alias='XtRAngle' }\n"
    "family 'Second' { widget='Dial' page='look' }\n";

class ProblemsWindow : public Session {
 protected:
  static void open_window() {
    press("family_problemsb");
    ASSERT_TRUE(is_shown("problems_dialog"));
  }

  /// Waits until the window shows that.
  static void expect_problems(const char* summary, const Items& rows) {
    wait_for([&] { return items("problems_list") == rows; });
    EXPECT_EQ(rows, items("problems_list"));
    EXPECT_EQ(summary, label("problems_found"));
  }

  static void change_realise(const std::string& text) {
    edit_family("Second");
    edit_widget("Dial");
    enter("widgetedit_realise", text);
    press("widgetedit_applyb");
  }
};

const Items no_identifier = {"Warning: 'make dial' is no identifier of C (widget Dial, realise)"};

TEST_F(ProblemsWindow, SaysThatThereAreNone) {
  open_document(sound);
  open_window();
  expect_problems("There are no problems", {});
}

TEST_F(ProblemsWindow, ShowsWhatIsWrongWithTheDocumentThatIsOpened) {
  open_document("VQconfig\nalias 'A' { }\nfamily 'F' { alias='A' header='' }\n");
  open_window();
  expect_problems("2 warnings", {"Warning: the alias 'A' has no to_name (alias A)",
                                 "Warning: header = '' names nothing (code header  of F)"});
}

TEST_F(ProblemsWindow, FollowsWhatIsDoneInOtherWindows) {
  open_document(sound);
  open_window();
  change_realise("make dial");
  expect_problems("1 warning", no_identifier);
  enter("widgetedit_realise", "make_dial");
  press("widgetedit_applyb");
  expect_problems("There are no problems", {});
  press("family_undob");
  expect_problems("1 warning", no_identifier);
}

TEST_F(ProblemsWindow, IsNotNeededToSeeHowManyThereAre) {
  open_document(sound);
  change_realise("make dial");
  EXPECT_TRUE(wait_for([] { return so().find("   1 warning   ") != std::string::npos; })) << so();
  press("family_undob");
  EXPECT_TRUE(wait_for([] { return so().find("warning") == std::string::npos; })) << so();
}

TEST_F(ProblemsWindow, IsUpToDateWithinHalfASecond) {
  open_document(sound);
  open_window();
  settle();
  edit_family("Second");
  edit_widget("Dial");
  enter("widgetedit_realise", "make dial");
  press("widgetedit_applyb");
  EXPECT_TRUE(wait_for([] { return items("problems_list") == no_identifier; }, 0.5));
}

TEST_F(ProblemsWindow, LeadsToTheFieldByAClick) {
  open_document(sound);
  change_realise("make dial");
  press("widgetedit_closeb");
  open_window();
  expect_problems("1 warning", no_identifier);
  click_row("problems_list", 1);
  ASSERT_TRUE(is_shown("widgetedit_dialog"));
  EXPECT_EQ("make dial", text("widgetedit_realise"));
  EXPECT_EQ("widgetedit_realise", focus("widgetedit_dialog"));
}

TEST_F(ProblemsWindow, LeadsToARecordInItsFamily) {
  open_document(
      "VQconfig\nalias 'A' { }\nalias 'B' { to_name='C' }\nfamily 'E' { }\nfamily 'F' { alias='B' alias='A' }\n");
  open_window();
  expect_problems("1 warning", {"Warning: the alias 'A' has no to_name (alias A)"});
  select("problems_list", "Warning: the alias 'A' has no to_name (alias A)");
  press("problems_gob");
  ASSERT_TRUE(is_shown("entity_dialog"));
  EXPECT_EQ(Items{"F"}, selected("family_selection"));
  EXPECT_EQ(Items{"A"}, selected("aliaslist_selection"));
}

TEST_F(ProblemsWindow, IsOnlySelectedInByTheArrowKeys) {
  open_document("VQconfig\nalias 'A' { }\nalias 'B' { }\nfamily 'F' { alias='A' alias='B' }\n");
  open_window();
  expect_problems("2 warnings", {"Warning: the alias 'A' has no to_name (alias A)",
                                 "Warning: the alias 'B' has no to_name (alias B)"});
  has_keyboard("problems_dialog");
  tab_to("problems_form", "problems_list");
  key("Down");
  EXPECT_EQ(1U, selected("problems_list").size());
  EXPECT_FALSE(find_widget("entity_dialog")) << "no window has been opened";
  key("Return");
  EXPECT_TRUE(is_shown("entity_dialog"));
}

TEST_F(ProblemsWindow, ExplainsTheSelectedProblem) {
  open_document("VQconfig\nalias 'A' { }\nfamily 'F' { alias='A' }\n");
  open_window();
  expect_problems("1 warning", {"Warning: the alias 'A' has no to_name (alias A)"});
  press("problems_explainb");
  EXPECT_EQ(resource_text("problems_unselected"), label("status_said"));
  EXPECT_EQ("", text("problems_text"));
  select("problems_list", "Warning: the alias 'A' has no to_name (alias A)");
  press("problems_explainb");
  const std::string explanation = text("problems_text");
  EXPECT_EQ(0U, explanation.find("Warning: the alias 'A' has no to_name (alias A)\n"));
  EXPECT_NE(std::string::npos, explanation.find("An alias is edited as the type that to_name gives"));
  EXPECT_NE(std::string::npos, explanation.find("    alias 'XtRFontStruct' { }\n"));
  EXPECT_NE(std::string::npos, explanation.find("Mended:"));
}

TEST_F(ProblemsWindow, KeepsWhatIsSelectedWhileItIsThere) {
  open_document("VQconfig\nalias 'A' { }\nalias 'B' { }\nfamily 'F' { alias='A' alias='B' }\n");
  open_window();
  const std::string a = "Warning: the alias 'A' has no to_name (alias A)";
  const std::string b = "Warning: the alias 'B' has no to_name (alias B)";
  expect_problems("2 warnings", {a, b});
  select("problems_list", b);
  edit_family("F");
  toggle("entity_opt_aliases_t", true);
  select("aliaslist_selection", "A");
  enter("aliaslist_to_name", "C");
  press_ok("aliaslist_selection");
  expect_problems("1 warning", {b});
  EXPECT_EQ(Items{b}, selected("problems_list"));
}

TEST_F(ProblemsWindow, HasAllErrorsOfAFileThatWasNotReadWholeUntilItIsSaved) {
  open_document("VQconfig\nfamily 'F' { }\nalias 'A' { to_name 'B' }\npopup 'p' { dialog_int='a' }\n");
  press("error_messageb.Cancel");
  open_window();
  const Items rows = {
      "Error: expected '=' (line 3, column 20): alias 'A' { to_name 'B' }",
      "Error: 'dialog_int' cannot stand here (line 4, column 13): popup 'p' { dialog_int='a' }",
      "Warning: no family has the alias 'A' (alias A)",
      "Warning: the alias 'A' has no to_name (alias A)",
  };
  expect_problems("2 errors, 2 warnings", rows);
  click_row("problems_list", 1);
  EXPECT_EQ(resource_text("problem_without_spot"), label("status_said"));
  press("family_saveb");
  expect_problems("2 warnings", {rows[2], rows[3]});
}

TEST_F(ProblemsWindow, OpensFromTheMenuOfTheFamilyAndByItsKey) {
  open_document(sound);
  edit_family("First");
  choose_menu("entity_viewb", "entity_problemsb");
  EXPECT_TRUE(is_shown("problems_dialog"));
  press("problems_closeb");
  EXPECT_FALSE(is_shown("problems_dialog"));
  turn_to(widget("entity_dialog"));
  key("ctrl+p");
  EXPECT_TRUE(is_shown("problems_dialog"));
}

}  // namespace
