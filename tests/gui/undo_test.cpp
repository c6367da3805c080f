#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/sink.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

namespace {

const char dial[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make_dial' resource_definitions='value', , 'settings', True; }\n"
    "widget 'Knob' { }\n"
    "enumeration 'Mode' { enumentry 'fast'{ } enumentry 'slow'{ } }\n"
    "family 'Athena' { widget='Dial' widget='Knob' enumeration='Mode' header='one.h' header='two.h' }\n"
    "family 'Demo' { widget='Dial' }\n";

class Undo : public Session {
 protected:
  void start_on_dial() { open_document(dial); }
  /// What Save would write.
  static std::string document() {
    StringSink text;
    save(edited_document, text);
    text.finish();
    return text.text();
  }
};

TEST_F(Undo, HasNothingToDoAtFirst) {
  start_on_dial();
  EXPECT_FALSE(is_sensitive("family_undob"));
  EXPECT_FALSE(is_sensitive("family_redob"));
  EXPECT_EQ("Undo", label("family_undob"));
  EXPECT_EQ("Redo", label("family_redob"));
  const std::string before = document();
  turn_to(main_shell());
  key("ctrl+z");
  key("ctrl+shift+z");
  EXPECT_EQ(before, document());
}

TEST_F(Undo, BringsADeletedFamilyBack) {
  start_on_dial();
  const std::string before = document();
  click_item("family_selection", "Athena");
  press_cancel("family_selection");
  EXPECT_EQ(Items{"Demo"}, items("family_selection"));
  EXPECT_EQ("Undo Delete family Athena", label("family_undob"));
  const std::string after = document();
  choose_menu("family_edit_cascade", "family_undob");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_EQ(Items{"Athena"}, selected("family_selection"));
  EXPECT_EQ("Athena", text("family_selection"));
  EXPECT_EQ(before, document());
  EXPECT_FALSE(dirty);
  EXPECT_FALSE(is_sensitive("family_undob"));
  EXPECT_EQ("Redo Delete family Athena", label("family_redob"));
  choose_menu("family_edit_cascade", "family_redob");
  EXPECT_EQ(after, document());
  EXPECT_TRUE(dirty);
}

TEST_F(Undo, WorksByKeysInEveryWindow) {
  start_on_dial();
  const std::string before = document();
  edit_family("Athena");
  click_item("widgetlist_selection", "Knob");
  press_cancel("widgetlist_selection");
  const std::string after = document();
  EXPECT_EQ(Items{"Dial"}, items("widgetlist_selection"));
  turn_to(widget("entity_dialog"));
  key("ctrl+z");
  EXPECT_EQ(before, document());
  EXPECT_EQ((Items{"Dial", "Knob"}), items("widgetlist_selection"));
  EXPECT_EQ(Items{"Knob"}, selected("widgetlist_selection"));
  key("ctrl+shift+z");
  EXPECT_EQ(after, document());
  key("ctrl+z");
  key("ctrl+y");
  EXPECT_EQ(after, document());
  EXPECT_EQ(Items{"Dial"}, items("widgetlist_selection"));
}

TEST_F(Undo, TakesTypingBackFirst) {
  start_on_dial();
  click_item("family_selection", "Demo");
  press_cancel("family_selection");
  click("family_selection.Text");
  type("Motif");
  key("ctrl+z");
  EXPECT_EQ("", text("family_selection"));
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  key("ctrl+z");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
}

TEST_F(Undo, ShowsTheFieldsOfAWidgetAsTheyWere) {
  start_on_dial();
  edit_family("Athena");
  click_item("widgetlist_selection", "Dial");
  press_ok("widgetlist_selection");
  enter("widgetedit_realise", "another");
  toggle("widgetedit_can_manage", false);
  press("widgetedit_applyb");
  EXPECT_EQ("Undo Change widget Dial", label("family_undob"));
  press("family_undob");
  EXPECT_EQ("make_dial", text("widgetedit_realise"));
  EXPECT_TRUE(is_set("widgetedit_can_manage"));
  press("family_redob");
  EXPECT_EQ("another", text("widgetedit_realise"));
  EXPECT_FALSE(is_set("widgetedit_can_manage"));
}

TEST_F(Undo, BringsAResourceBack) {
  start_on_dial();
  edit_family("Athena");
  click_item("widgetlist_selection", "Dial");
  press_ok("widgetlist_selection");
  click_item("we_resource_list", "value");
  press("we_resource_del_b");
  EXPECT_EQ("Undo Delete resource value", label("family_undob"));
  press("family_undob");
  EXPECT_EQ(Items{"value"}, items("we_resource_list"));
}

TEST_F(Undo, TakesBackAnOrderThatDoesNotCountAsAChange) {
  start_on_dial();
  click_item("family_selection", "Demo");
  press("family_uparrow");
  EXPECT_EQ((Items{"Demo", "Athena"}), items("family_selection"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("Undo Reorder families", label("family_undob"));
  press("family_undob");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(Undo, BringsBackTheDocumentThatWasOpenBefore) {
  start_on_dial();
  const std::string before = document();
  press("family_newb");
  EXPECT_EQ("Undo New Document", label("family_undob"));
  EXPECT_EQ(Items{}, items("family_selection"));
  press("family_undob");
  EXPECT_EQ(before, document());
  EXPECT_EQ("vqconfig: document.vqc", title());
  EXPECT_FALSE(dirty);
  folder.with("other.vqc", "VQconfig\nfamily 'Other' { }\n");
  open_file("other.vqc");
  EXPECT_EQ("Undo Open other.vqc", label("family_undob"));
  press("family_undob");
  EXPECT_EQ(before, document());
  EXPECT_EQ("vqconfig: document.vqc", title());
  press("family_redob");
  EXPECT_EQ(Items{"Other"}, items("family_selection"));
  EXPECT_EQ("vqconfig: other.vqc", title());
}

TEST_F(Undo, TakesAReadingBack) {
  start_on_dial();
  const std::string before = document();
  folder.with("more.vqc", "VQconfig\nfamily 'More' { }\nfamily 'Most' { }\nfamily 'Demo' { page='q' }\n");
  read_into("more.vqc");
  EXPECT_EQ("Undo Add family More and 1 more", label("family_undob"));
  press("family_undob");
  EXPECT_EQ(before, document());
}

TEST_F(Undo, KnowsWhichStateIsSaved) {
  start_on_dial();
  add_family("New");
  press("family_saveb");
  EXPECT_FALSE(dirty);
  press("family_undob");
  EXPECT_TRUE(dirty);
  press("family_redob");
  EXPECT_FALSE(dirty);
}

TEST_F(Undo, SomethingElseEndsWhatCouldBeDoneAgain) {
  start_on_dial();
  add_family("New");
  press("family_undob");
  EXPECT_TRUE(is_sensitive("family_redob"));
  add_family("Newer");
  EXPECT_FALSE(is_sensitive("family_redob"));
  EXPECT_EQ("Redo", label("family_redob"));
}

TEST_F(Undo, NamesWhatItWouldTakeBack) {
  start_on_dial();
  edit_family("Athena");
  enter("widgetlist_selection", "Scale");
  press_apply("widgetlist_selection");
  EXPECT_EQ("Undo Add widget Scale", label("family_undob"));
  press("family_stop_b");
  toggle("stop_frame", true);
  press("stop_list_apply");
  EXPECT_EQ("Undo Change stop list", label("family_undob"));
}

}  // namespace
