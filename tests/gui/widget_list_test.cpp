#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char two_families[] =
    "VQconfig\nwidget 'Dial' {\nrealise='dial_realise'\n}\nwidget 'Knob' {\nrealise='knob_realise'\n}\n"
    "family 'A' {\nwidget='Knob'\nwidget='Dial'\n}\nfamily 'B' {\n}\n";

class WidgetList : public Session {
 protected:
  WidgetList() {
    open_document(two_families);
    edit_family("A");
  }

  void add(const std::string& name) {
    enter("widgetlist_selection", name);
    press_apply("widgetlist_selection");
  }
  void remove(const std::string& name) {
    enter("widgetlist_selection", name);
    press_cancel("widgetlist_selection");
  }
  void edit(const std::string& name) { edit_widget(name); }
  void expect_editor_shows(const char* name, const std::string& realise) {
    EXPECT_EQ(filled("widget_title", name), title("widgetedit_dialog"));
    EXPECT_EQ(realise, text("widgetedit_realise"));
    EXPECT_EQ(name != nullptr, is_sensitive("widgetedit_applyb"));
    EXPECT_EQ(name != nullptr, is_sensitive("widgetedit_undob"));
  }
};

TEST_F(WidgetList, FamiliesShareAWidget) {
  select("family_selection", "B");
  add("Dial");
  EXPECT_EQ(Items{"Dial"}, items("widgetlist_selection"));
  remove("Dial");
  EXPECT_NE("", saved_item("widget 'Dial'"));
  select("family_selection", "A");
  EXPECT_EQ((Items{"Knob", "Dial"}), items("widgetlist_selection"));
  remove("Dial");
  EXPECT_EQ("", saved_item("widget 'Dial'"));
}

TEST_F(WidgetList, AWidgetThatAnotherFamilyAddsKeepsItsFields) {
  select("family_selection", "B");
  add("Dial");
  edit("Dial");
  expect_editor_shows("Dial", "dial_realise");
}

TEST_F(WidgetList, EditOpensTheEditorOnTheWidget) {
  click_item("widgetlist_selection", "Dial");
  click("widgetlist_selection.OK");
  ASSERT_TRUE(is_shown("widgetedit_dialog"));
  expect_editor_shows("Dial", "dial_realise");
  EXPECT_FALSE(dirty);
}

TEST_F(WidgetList, EditOfANewNameAddsItAndOpensNothing) {
  edit("New");
  EXPECT_EQ((Items{"Knob", "Dial", "New"}), items("widgetlist_selection"));
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
}

TEST_F(WidgetList, TheFirstWidgetIsLoadedIntoTheEditorAndLaterOnesAreNot) {
  edit("Dial");
  select("family_selection", "B");
  expect_editor_shows(nullptr, "");
  add("Knob");
  expect_editor_shows("Knob", "knob_realise");
  add("Dial");
  expect_editor_shows("Knob", "knob_realise");
}

TEST_F(WidgetList, SelectingAWidgetLoadsIt) {
  edit("Dial");
  select("widgetlist_selection", "Knob");
  expect_editor_shows("Knob", "knob_realise");
}

TEST_F(WidgetList, DeletingTheShownWidgetClearsTheEditor) {
  edit("Dial");
  remove("Dial");
  expect_editor_shows(nullptr, "");
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(WidgetList, DeletingAnotherWidgetLeavesTheEditorAlone) {
  edit("Dial");
  remove("Knob");
  expect_editor_shows("Dial", "dial_realise");
}

TEST_F(WidgetList, AnotherFamilyClearsTheEditor) {
  edit("Dial");
  select("family_selection", "B");
  expect_editor_shows(nullptr, "");
}

TEST_F(WidgetList, TheSameFamilyAgainKeepsTheEditorAndTheName) {
  edit("Dial");
  enter("widgetlist_selection", "typed");
  select("family_selection", "A");
  expect_editor_shows("Dial", "dial_realise");
  EXPECT_EQ("typed", text("widgetlist_selection"));
}

TEST_F(WidgetList, DeletingTheFamilyClearsTheEditor) {
  edit("Dial");
  enter("family_selection", "A");
  press_cancel("family_selection");
  expect_editor_shows(nullptr, "");
}

TEST_F(WidgetList, NewWidgetsHaveTheDefaults) {
  add("New");
  EXPECT_EQ("widget 'New' {\n}\n", saved_item("widget 'New'"));
}

}  // namespace
