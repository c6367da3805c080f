#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char dial[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make_dial' resource_definitions='value', , , True; }\n"
    "widget 'Knob' { }\n"
    "alias 'Colour' { to_name='Pixel' }\n"
    "alias 'Tint' { }\n"
    "enumeration 'Mode' { enumentry 'fast'{ } enumentry 'slow'{ } }\n"
    "family 'Athena' { widget='Dial' widget='Knob' alias='Colour' alias='Tint' enumeration='Mode' }\n";

Pixel background(const std::string& field) {
  Pixel colour = 0;
  XtVaGetValues(widget(field), XmNbackground, &colour, nullptr);
  return colour;
}

class Unapplied : public Session {
 protected:
  void edit_dial() {
    open_document(dial);
    edit_family("Athena");
    edit_widget("Dial");
    plain_ = background("widgetedit_realise");
  }
  bool is_marked(const std::string& field) const { return background(field) != plain_; }

 private:
  Pixel plain_ = 0;
};

TEST_F(Unapplied, MarksAFieldThatIsTypedInAndSaysSoBesideItsButton) {
  edit_dial();
  EXPECT_EQ("", label("widgetedit_not_applied"));
  turn_to(widget("widgetedit_dialog"));
  tab_to("widgetedit_dialog", "widgetedit_realise");
  type("x");
  EXPECT_TRUE(is_marked("widgetedit_realise"));
  EXPECT_FALSE(is_marked("widgetedit_abstract"));
  EXPECT_EQ("not applied", label("widgetedit_not_applied"));
  EXPECT_EQ("", label("we_resource_not_updated"));
  press("widgetedit_applyb");
  EXPECT_FALSE(is_marked("widgetedit_realise"));
  EXPECT_EQ("", label("widgetedit_not_applied"));
}

TEST_F(Unapplied, TypingTheOldTextAgainTakesTheMarkAway) {
  edit_dial();
  enter("widgetedit_realise", "make_a_dial");
  EXPECT_TRUE(is_marked("widgetedit_realise"));
  enter("widgetedit_realise", "make_dial");
  EXPECT_FALSE(is_marked("widgetedit_realise"));
  EXPECT_EQ("", label("widgetedit_not_applied"));
}

TEST_F(Unapplied, MarksTogglesAndMenusToo) {
  edit_dial();
  toggle("widgetedit_can_manage", false);
  EXPECT_EQ("not applied", label("widgetedit_not_applied"));
  select("we_resource_list", "value");
  choose_option("widgetedit_free_get_opt", "widgetedit_get_free_b");
  EXPECT_EQ("not applied", label("we_resource_not_updated"));
  press("we_resource_upd_b");
  EXPECT_EQ("", label("we_resource_not_updated"));
  EXPECT_EQ("not applied", label("widgetedit_not_applied"));
}

TEST_F(Unapplied, ATypeIsAppliedWithoutAValueToo) {
  open_document(dial);
  edit_family("Athena");
  edit_enumeration("Mode");
  enter("enumedit_type", "XtRMode");
  enter("enumedit_code_symbol", "FAST");
  EXPECT_EQ("not applied", label("enumedit_not_applied"));
  enter("enumedit_selection", "");
  press_ok("enumedit_selection");
  EXPECT_NE(std::string::npos, saved_item("enumeration 'Mode'").find("XtRMode"));
  EXPECT_EQ("not applied", label("enumedit_not_applied")) << "the symbol is in no value";
  enter("enumedit_code_symbol", "");
  EXPECT_EQ("", label("enumedit_not_applied"));
}

TEST_F(Unapplied, UndoBringsBackWhatWasLeft) {
  edit_dial();
  enter("widgetedit_realise", "make_a_dial");
  toggle("widgetedit_can_manage", false);
  click_item("widgetlist_selection", "Knob");
  EXPECT_EQ("", text("widgetedit_realise"));
  EXPECT_EQ("Left unapplied fields; Undo brings them back", said("widgetedit_form"));
  EXPECT_EQ("Undo Leave Fields That Were Not Applied", label("family_undob"));
  press("family_undob");
  EXPECT_EQ("Widget: Dial", title("widgetedit_dialog"));
  EXPECT_EQ("make_a_dial", text("widgetedit_realise"));
  EXPECT_FALSE(is_set("widgetedit_can_manage"));
  EXPECT_EQ("not applied", label("widgetedit_not_applied"));
  EXPECT_FALSE(dirty);
  press("family_redob");
  EXPECT_EQ("Widget: Knob", title("widgetedit_dialog"));
  EXPECT_EQ("", text("widgetedit_realise"));
}

TEST_F(Unapplied, WhatIsBroughtBackCanBeApplied) {
  edit_dial();
  enter("widgetedit_realise", "make_a_dial");
  click_item("widgetlist_selection", "Knob");
  press("family_undob");
  press("widgetedit_applyb");
  EXPECT_NE(std::string::npos, saved_item("widget 'Dial'").find("make_a_dial"));
}

TEST_F(Unapplied, AnUndoOfSomethingElseKeepsWhatIsTyped) {
  edit_dial();
  add_family("New");
  edit_family("Athena");
  click_item("widgetlist_selection", "Dial");
  enter("widgetedit_realise", "make_a_dial");
  press("family_undob");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  press("family_redob");
  EXPECT_EQ((Items{"Athena", "New"}), items("family_selection"));
  EXPECT_EQ("make_a_dial", text("widgetedit_realise"));
}

TEST_F(Unapplied, AppliedFieldsComeBackAsTheyWere) {
  edit_dial();
  enter("widgetedit_realise", "make_a_dial");
  press("widgetedit_applyb");
  EXPECT_EQ("Undo Change widget Dial", label("family_undob"));
  press("family_undob");
  EXPECT_EQ("make_dial", text("widgetedit_realise"));
  EXPECT_EQ("", label("widgetedit_not_applied"));
}

TEST_F(Unapplied, WorksForAliases) {
  open_document(dial);
  edit_family("Athena");
  toggle("entity_opt_aliases_t", true);
  click_item("aliaslist_selection", "Colour");
  enter("aliaslist_to_name", "Int");
  EXPECT_EQ("not applied", label("aliaslist_not_applied"));
  click_item("aliaslist_selection", "Tint");
  EXPECT_EQ("", label("aliaslist_not_applied"));
  press("family_undob");
  EXPECT_EQ(Items{"Colour"}, selected("aliaslist_selection"));
  EXPECT_EQ("Int", text("aliaslist_to_name"));
  press_ok("aliaslist_selection");
  EXPECT_EQ("", label("aliaslist_not_applied"));
}

TEST_F(Unapplied, WorksForFamilyInitialisationAndTheStopList) {
  open_document(dial);
  edit_family("Athena");
  toggle("entity_opt_family_init_t", true);
  enter("familyinit_init_text", "start");
  EXPECT_EQ("not applied", label("familyinit_not_applied"));
  press("familyinit_applyb");
  EXPECT_EQ("", label("familyinit_not_applied"));
  press("family_stop_b");
  toggle("stop_form", true);
  EXPECT_EQ("not applied", label("stop_list_not_applied"));
  press("stop_list_apply");
  EXPECT_EQ("", label("stop_list_not_applied"));
}

}  // namespace
