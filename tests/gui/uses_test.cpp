#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make' abstract='make'\n"
    "resource_definitions='limit', 'chooser', 'look', True, 'value', , 'look', True; }\n"
    "widget 'Knob' { realise='make' }\n"
    "enumeration 'Mode' { enumentry 'fast' { } }\n"
    "converter 'XtRMode' { proc_name='add_mode' dialog='chooser' }\n"
    "popup 'chooser' { dialog_init='make_chooser' }\n"
    "family 'First' { widget='Dial' enumeration='Mode' page='look' header='dial.h' }\n"
    "family 'Second' { widget='Knob' widget='Dial' converter='XtRMode' popup='chooser' }\n";

class Uses : public Session {
 protected:
  Uses() { open_document(document); }

  static void expect_uses(const char* name, const char* found, const Items& users) {
    ASSERT_TRUE(is_shown("uses_dialog"));
    EXPECT_EQ(name, text("uses_name"));
    EXPECT_EQ(found, label("uses_found"));
    EXPECT_EQ(users, items("uses_list"));
  }
};

TEST_F(Uses, AreOfWhatIsSelectedInTheWindow) {
  edit_family("Second");
  click_item("widgetlist_selection", "Dial");
  turn_to(widget("entity_dialog"));
  key("ctrl+u");
  expect_uses("Dial", "widget Dial: used by 2 families", {"family First, widget", "family Second, widget"});
}

TEST_F(Uses, AreOfTheShownPageOfTheFamily) {
  edit_family("Second");
  choose_menu("entity_viewb", "entity_opt_converters_t");
  click_item("converter_selection", "XtRMode");
  choose_menu("entity_viewb", "entity_usesb");
  expect_uses("XtRMode", "converter XtRMode: used by 1 family", {"family Second, converter"});
}

TEST_F(Uses, AreOfWhatTheFieldWithTheKeyboardNames) {
  edit_family("First");
  edit_widget("Dial");
  select("we_resource_list", "limit");
  click("widgetedit_page_t");
  key("ctrl+u");
  expect_uses("look", "page look: used by 2 resources, 1 family",
              {"resource limit of Dial, page", "resource value of Dial, page", "family First, page"});
  turn_to(widget("widgetedit_dialog"));
  click("widgetedit_realise");
  key("ctrl+u");
  expect_uses("make", "procedure make: used by 3 widgets",
              {"widget Dial, realise", "widget Dial, abstract", "widget Knob, realise"});
  turn_to(widget("widgetedit_dialog"));
  click("widgetedit_largeicon");
  key("ctrl+u");
  EXPECT_EQ("Dial", text("uses_name")) << "what the field names is no thing of the document";
}

TEST_F(Uses, AreOfTheChosenResourceAndEntry) {
  edit_family("First");
  edit_widget("Dial");
  click_item("we_resource_list", "limit");
  key("ctrl+u");
  expect_uses("limit", "Nobody uses resource limit of Dial", {});
  edit_enumeration("Mode");
  click_item("enumedit_selection", "fast");
  key("ctrl+u");
  expect_uses("fast", "Nobody uses entry fast of Mode", {});
}

TEST_F(Uses, AreOfThePickedPopup) {
  edit_family("First");
  edit_widget("Dial");
  select("we_resource_list", "limit");
  press("widgetedit_popup_b");
  turn_to(widget("popupedit_dialog"));
  key("ctrl+u");
  expect_uses("chooser", "popup chooser: used by 1 resource, 1 converter, 1 family",
              {"resource limit of Dial, popup", "converter XtRMode, dialog", "family Second, popup"});
}

TEST_F(Uses, AreOfANameThatIsTyped) {
  choose_menu("family_edit_cascade", "family_usesb");
  ASSERT_TRUE(is_shown("uses_dialog"));
  EXPECT_EQ(resource_text("uses_unasked"), label("uses_found"));
  has_keyboard("uses_dialog");
  type("make_chooser");
  key("Return");
  expect_uses("make_chooser", "procedure make_chooser: used by 1 popup", {"popup chooser, dialog_init"});
  enter("uses_name", "nothing");
  press("uses_showb");
  expect_uses("nothing", "Nobody uses nothing", {});
}

TEST_F(Uses, LeadToTheUsers) {
  enter("family_selection", "First");
  press("family_usesb");
  enter("uses_name", "look");
  press("uses_showb");
  click_item("uses_list", "resource value of Dial, page");
  ASSERT_TRUE(is_shown("widgetedit_dialog"));
  EXPECT_EQ("value", text("we_resource_t"));
  EXPECT_EQ("widgetedit_page_t", focus("widgetedit_dialog"));
}

TEST_F(Uses, LeadToTheThingInTheFamilyThatHasIt) {
  press("family_usesb");
  enter("uses_name", "Dial");
  press("uses_showb");
  select("uses_list", "family Second, widget");
  press("uses_gob");
  EXPECT_EQ(Items{"Second"}, selected("family_selection"));
  EXPECT_EQ(Items{"Dial"}, selected("widgetlist_selection"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(Uses, AreOnlySelectedByTheArrowKeys) {
  press("family_usesb");
  enter("uses_name", "make");
  press("uses_showb");
  is_shown("uses_dialog");
  turn_to(widget("uses_dialog"));
  tab_to("uses_form", "uses_list");
  key("Down");
  EXPECT_EQ(1U, selected("uses_list").size());
  EXPECT_FALSE(find_widget("widgetedit_dialog")) << "no window has been opened";
  key("Return");
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(Uses, FollowTheDocument) {
  press("family_usesb");
  enter("uses_name", "Dial");
  press("uses_showb");
  ASSERT_EQ(2U, items("uses_list").size());
  edit_family("Second");
  click_item("widgetlist_selection", "Dial");
  press_cancel("widgetlist_selection");
  EXPECT_EQ(Items{"family First, widget"}, items("uses_list"));
  press("family_undob");
  EXPECT_EQ(2U, items("uses_list").size());
}

TEST_F(Uses, SayThatNoneIsSelected) {
  press("family_usesb");
  press("uses_gob");
  EXPECT_EQ(resource_text("uses_unselected"), label("status_said"));
}

}  // namespace
