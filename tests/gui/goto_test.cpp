#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make_dial' resource_definitions='yodel', , 'look', True, 'yolk', , , True; }\n"
    "widget 'AsciiClock' { }\n"
    "widget 'Alone' { }\n"
    "enumeration 'Mode' { enumentry 'fast' { } }\n"
    "family 'First' { widget='Dial' page='look' }\n"
    "family 'Second' { widget='AsciiClock' widget='Dial' enumeration='Mode' }\n";

class GoTo : public Session {
 protected:
  GoTo() {
    open_document(document);
    turn_to(main_shell());
    key("ctrl+k");
  }

  static void expect_hits(const Items& hits) { EXPECT_EQ(hits, items("goto_list")); }
};

TEST_F(GoTo, FindsWhileOneTypes) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  expect_hits({});
  type("yo");
  expect_hits({"resource yolk of Dial", "resource yodel of Dial"});
  EXPECT_EQ("2 found", label("goto_found"));
  EXPECT_EQ(Items{"resource yolk of Dial"}, selected("goto_list"));
  type("d");
  expect_hits({"resource yodel of Dial"});
  key("BackSpace");
  EXPECT_EQ(2U, items("goto_list").size());
  type("x");
  expect_hits({});
  EXPECT_EQ("0 found", label("goto_found"));
}

TEST_F(GoTo, GoesThereOnReturnAndCloses) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("asc");
  expect_hits({"widget AsciiClock"});
  key("Return");
  EXPECT_TRUE(wait_for([] { return !is_viewable(widget("goto_dialog")); }));
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("Widget: AsciiClock", title("widgetedit_dialog"));
  EXPECT_EQ(Items{"Second"}, selected("family_selection"));
}

TEST_F(GoTo, ChoosesByTheArrowKeysWhileTheFieldHasTheKeyboard) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("yo");
  key("Down");
  EXPECT_EQ(Items{"resource yodel of Dial"}, selected("goto_list"));
  EXPECT_EQ("goto_name", focus("goto_dialog"));
  key("Down");
  EXPECT_EQ(Items{"resource yodel of Dial"}, selected("goto_list")) << "it is the last";
  key("Up");
  EXPECT_EQ(Items{"resource yolk of Dial"}, selected("goto_list"));
  key("Down");
  key("Return");
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("yodel", text("we_resource_t"));
}

TEST_F(GoTo, TellsApartWhatIsCalledTheSame) {
  open_file(folder.with(
      "twins.vqc",
      "VQconfig\nwidget 'A' { resource_definitions='hue of B', , , True; }\n"
      "widget 'B of A' { resource_definitions='hue', , , True; }\nfamily 'F' { widget='A' widget='B of A' }\n"));
  enter("goto_name", "hue");
  expect_hits({"resource hue of B of A", "resource hue of B of A"});
  click("goto_name");
  key("Down");
  key("Return");
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("hue of B", text("we_resource_t")) << "the shorter name comes first";
}

TEST_F(GoTo, ClosesOnEscape) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("asc");
  key("Escape");
  EXPECT_TRUE(wait_for([] { return !is_viewable(widget("goto_dialog")); }));
  EXPECT_FALSE(find_widget("widgetedit_dialog"));
}

TEST_F(GoTo, GoesToWhatIsClicked) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("mode");
  click_item("goto_list", "enumeration Mode");
  EXPECT_TRUE(is_shown("enumedit_dialog"));
  EXPECT_TRUE(wait_for([] { return !is_viewable(widget("goto_dialog")); }));
}

TEST_F(GoTo, StaysOpenWhereThereIsNoWay) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("alone");
  key("Return");
  EXPECT_EQ("No family has Alone", label("status_said"));
  EXPECT_TRUE(is_shown("goto_dialog"));
  enter("goto_name", "nothing");
  press("goto_gob");
  EXPECT_EQ(resource_text("goto_nothing"), label("status_said"));
  EXPECT_TRUE(is_shown("goto_dialog"));
}

TEST_F(GoTo, KnowsWhatHasBeenAddedWhileItIsOpen) {
  add_family("Third");
  enter("goto_name", "third");
  expect_hits({"family Third"});
  press("family_undob");
  enter("goto_name", "thir");
  expect_hits({});
}

TEST_F(GoTo, OpensWithWhatWasTypedLast) {
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  type("asc");
  key("Escape");
  wait_for([] { return !is_viewable(widget("goto_dialog")); });
  turn_to(main_shell());
  choose_menu("family_edit_cascade", "family_gotob");
  ASSERT_TRUE(has_keyboard("goto_dialog"));
  expect_hits({"widget AsciiClock"});
  type("mode");
  EXPECT_EQ("mode", text("goto_name")) << "typing replaces it";
}

TEST_F(GoTo, SaysHowManyItDoesNotShow) {
  for (int i = 0; i < 301; ++i) family_add("many" + std::to_string(i));
  session_hooks.acted();
  enter("goto_name", "many");
  EXPECT_EQ(300U, items("goto_list").size());
  EXPECT_EQ("301 found, of which the best 300 are shown", label("goto_found"));
}

}  // namespace
