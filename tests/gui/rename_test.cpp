#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/sink.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make' resource_definitions='limit', 'chooser', 'look', True, 'value', , 'look', True; }\n"
    "widget 'Knob' { realise='make' }\n"
    "enumeration 'Mode' { enumentry 'fast' { } enumentry 'slow' { } }\n"
    "converter 'XtRMode' { proc_name='add_mode' dialog='chooser' }\n"
    "popup 'chooser' { }\n"
    "family 'First' { widget='Knob' widget='Dial' enumeration='Mode' page='look' popup='chooser' converter='XtRMode' }\n"
    "family 'Second' { widget='Dial' }\n";

class RenameDialog : public Session {
 protected:
  RenameDialog() { open_document(document); }

  static std::string saved_now() {
    StringSink text;
    save(edited_document, text);
    text.finish();
    return text.text();
  }
  /// Presses F2 in a window, types a name and Return.
  static void rename_in(const std::string& shell, const std::string& name) {
    turn_to(widget(shell));
    key("F2");
    ASSERT_TRUE(has_keyboard("rename_dialog"));
    type(name);
    key("Return");
  }
  static bool is_closed() {
    return wait_for([] { return !is_viewable(widget("rename_dialog")); });
  }
};

TEST_F(RenameDialog, RenamesAFamilyInItsPlace) {
  click_item("family_selection", "First");
  key("F2");
  ASSERT_TRUE(has_keyboard("rename_dialog"));
  EXPECT_EQ("family First", label("rename_old"));
  EXPECT_EQ("First", text("rename_name"));
  type("Zero");
  key("Return");
  EXPECT_TRUE(is_closed());
  EXPECT_EQ((Items{"Zero", "Second"}), items("family_selection"));
  EXPECT_EQ(Items{"Zero"}, selected("family_selection"));
  EXPECT_EQ("Zero", text("family_selection"));
  EXPECT_TRUE(dirty);
}

TEST_F(RenameDialog, RenamesAWidgetInAllFamilies) {
  edit_family("First");
  click_item("widgetlist_selection", "Dial");
  rename_in("entity_dialog", "Meter");
  EXPECT_TRUE(is_closed());
  EXPECT_EQ("Renamed widget Dial to Meter, which is named in 2 other places", label("status_said"));
  EXPECT_EQ((Items{"Knob", "Meter"}), items("widgetlist_selection"));
  EXPECT_EQ(Items{"Meter"}, selected("widgetlist_selection"));
  EXPECT_EQ(Names{"Meter"}, saved_names("Second", "widget"));
}

TEST_F(RenameDialog, IsOneStepOfUndo) {
  const std::string before = saved_now();
  edit_family("First");
  edit_widget("Dial");
  click_item("we_resource_list", "limit");
  click("widgetedit_page_t");
  rename_in("widgetedit_dialog", "view");
  EXPECT_EQ("Undo Rename page look to view", label("family_undob"));
  const std::string after = saved_now();
  EXPECT_EQ(std::string::npos, after.find("'look'"));
  press("family_undob");
  EXPECT_EQ(before, saved_now());
  EXPECT_EQ("Redo Rename page look to view", label("family_redob"));
  press("family_redob");
  EXPECT_EQ(after, saved_now());
}

TEST_F(RenameDialog, ShowsTheNewNameInTheFields) {
  edit_family("First");
  edit_widget("Dial");
  click_item("we_resource_list", "limit");
  click("widgetedit_page_t");
  rename_in("widgetedit_dialog", "view");
  EXPECT_EQ("limit", text("we_resource_t"));
  EXPECT_EQ("view", text("widgetedit_page_t"));
  click("widgetedit_realise");
  rename_in("widgetedit_dialog", "create");
  EXPECT_EQ("create", text("widgetedit_realise"));
  EXPECT_EQ("create", std::string(widget_ptr("Knob")->realise.view()));
}

TEST_F(RenameDialog, RenamesAResourceAndSortsItAnew) {
  edit_family("First");
  edit_widget("Dial");
  click_item("we_resource_list", "limit");
  rename_in("widgetedit_dialog", "zone");
  EXPECT_EQ((Items{"value", "zone"}), items("we_resource_list"));
  EXPECT_EQ("zone", text("we_resource_t"));
  EXPECT_EQ("look", text("widgetedit_page_t"));
}

TEST_F(RenameDialog, RenamesAnEntryInItsPlace) {
  edit_family("First");
  edit_enumeration("Mode");
  click_item("enumedit_selection", "fast");
  rename_in("enumedit_dialog", "zippy");
  EXPECT_EQ((Items{"zippy", "slow"}), items("enumedit_selection"));
}

TEST_F(RenameDialog, SaysWhyItRefuses) {
  const std::string before = saved_now();
  edit_family("First");
  click_item("widgetlist_selection", "Dial");
  rename_in("entity_dialog", "Knob");
  EXPECT_EQ("There is another Knob already", label("status_said"));
  EXPECT_TRUE(is_shown("rename_dialog"));
  enter("rename_name", "2x");
  press("rename_okb");
  EXPECT_NE(std::string::npos, label("status_said").find("2x")) << label("status_said");
  enter("rename_name", "");
  press("rename_okb");
  EXPECT_EQ("A name is needed", label("status_said"));
  enter("rename_name", "Dial");
  press("rename_okb");
  EXPECT_EQ("It is called Dial already", label("status_said"));
  EXPECT_TRUE(is_shown("rename_dialog"));
  press("rename_closeb");
  EXPECT_EQ(before, saved_now());
  EXPECT_FALSE(dirty);
}

TEST_F(RenameDialog, RefusesWhatTheBuilderKnows) {
  edit_family("First");
  edit_widget("Dial");
  press("widgetedit_page_b");
  click_item("pageedit_selection", "display");
  rename_in("pageedit_dialog", "show");
  EXPECT_EQ("The builder knows display by this name", label("status_said"));
  EXPECT_NE(nullptr, page_ptr("display"));
}

TEST_F(RenameDialog, NeedsSomethingThatIsChosen) {
  turn_to(main_shell());
  key("F2");
  ASSERT_TRUE(is_shown("rename_dialog"));
  EXPECT_EQ(resource_text("rename_nothing"), label("rename_old"));
  enter("rename_name", "any");
  press("rename_okb");
  EXPECT_EQ(resource_text("rename_nothing"), label("status_said"));
}

TEST_F(RenameDialog, RefusesWhatHasGoneMeanwhile) {
  click_item("family_selection", "Second");
  press("family_renameb");
  press_cancel("family_selection");
  enter("rename_name", "Third");
  press("rename_okb");
  EXPECT_EQ("Second is no longer there", label("status_said"));
  EXPECT_EQ(Items{"First"}, items("family_selection"));
}

TEST_F(RenameDialog, WaitsWhileAQuestionIsOpen) {
  add_family("Third");
  press("family_exitb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  turn_to(widget("savechanges_dialog"));
  key("F2");
  EXPECT_FALSE(find_widget("rename_dialog"));
}

TEST_F(RenameDialog, TakesTheKeyOnlyAlone) {
  turn_to(main_shell());
  key("shift+F2");
  key("ctrl+F2");
  EXPECT_FALSE(find_widget("rename_dialog"));
}

}  // namespace
