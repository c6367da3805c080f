#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/editors/safety_net.h"

using namespace vqc;

namespace {

const char dial[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make_dial' resource_definitions='value', , , True; }\n"
    "widget 'Knob' { }\n"
    "enumeration 'Mode' { enumentry 'fast'{ code_symbol='FAST' } enumentry 'slow'{ code_symbol='SLOW' } }\n"
    "family 'Athena' { widget='Dial' widget='Knob' enumeration='Mode' page='settings' }\n"
    "family 'Demo' { widget='Dial' }\n";

/// Whether a fact stands on the right of the main window's line.
bool shows_fact(const std::string& fact) { return so().find(fact) != std::string::npos; }

class StatusLine : public Session {
 protected:
  void start_on_dial() { open_document(dial); }
};

TEST_F(StatusLine, SaysWhatAnActionHasDone) {
  start_on_dial();
  EXPECT_EQ("Opened document.vqc", said());
  add_family("New");
  EXPECT_EQ("Added family New", said());
  press_cancel("family_selection");
  EXPECT_EQ("Deleted family New", said());
  press("family_undob");
  EXPECT_EQ("Undone: Delete family New", said());
  press("family_redob");
  EXPECT_EQ("Redone: Delete family New", said());
  press("family_saveb");
  EXPECT_EQ("Saved document.vqc", said());
}

TEST_F(StatusLine, SaysItInEveryWindow) {
  start_on_dial();
  edit_family("Athena");
  edit_enumeration("Mode");
  edit_widget("Dial");
  press("widgetedit_popup_b");
  press("widgetedit_page_b");
  press("family_stop_b");
  enter("family_selection", "New");
  press_apply("family_selection");
  for (const char* window : {"family_form", "entity_form", "widgetedit_form", "enumedit_selection",
                             "popupedit_selection", "pageedit_selection", "stop_list_form"}) {
    EXPECT_EQ("Added family New", said(window)) << window;
  }
}

TEST_F(StatusLine, SaysWhyNothingWasDone) {
  start_on_dial();
  enter("family_selection", "Demo");
  press_apply("family_selection");
  EXPECT_EQ("There already: family Demo", said());
  enter("family_selection", "Motif");
  press_cancel("family_selection");
  EXPECT_EQ("Not there: family Motif", said());
  enter("family_selection", "");
  press_apply("family_selection");
  EXPECT_EQ("Type a name first", said());
  press("family_uparrow");
  EXPECT_EQ("Select one name in the list first", said());
  click_item("family_selection", "Athena");
  press("family_uparrow");
  EXPECT_EQ("It is the first already", said());
  press("family_downarrow");
  EXPECT_EQ("Reordered families", said());
  press("family_downarrow");
  EXPECT_EQ("It is the last already", said());
}

TEST_F(StatusLine, SaysThatFieldsHaveChangedNothing) {
  start_on_dial();
  edit_family("Athena");
  edit_widget("Dial");
  press("widgetedit_applyb");
  EXPECT_EQ("Nothing has changed: widget Dial", said("widgetedit_form"));
  select("we_resource_list", "value");
  press("we_resource_upd_b");
  press("we_resource_upd_b");
  EXPECT_EQ("Nothing has changed: resource value", said("widgetedit_form"));
  enter("widgetedit_counter_t", "value_count");
  press("we_resource_upd_b");
  EXPECT_EQ("Changed resource value", said("widgetedit_form"));
  enter("we_resource_t", "missing");
  press("we_resource_del_b");
  EXPECT_EQ("Not there: resource missing", said("widgetedit_form"));
}

TEST_F(StatusLine, SaysWhatThePickersDo) {
  start_on_dial();
  edit_family("Athena");
  edit_widget("Dial");
  press("widgetedit_page_b");
  enter("pageedit_selection", "settings");
  press("pageedit_updateb");
  EXPECT_EQ("There already: page settings", said("pageedit_selection"));
  press_apply("pageedit_selection");
  EXPECT_EQ("Put into the field: page settings", said("pageedit_selection"));
  enter("pageedit_selection", "margins");
  press("pageedit_removeb");
  EXPECT_EQ("It is predefined and stays: page margins", said("pageedit_selection"));
  enter("pageedit_selection", "missing");
  press("pageedit_removeb");
  EXPECT_EQ("Not in this family: page missing", said("pageedit_selection"));
}

TEST_F(StatusLine, SaysWhatTheButtonsWouldDo) {
  start_on_dial();
  click_item("family_selection", "Demo");
  EXPECT_EQ("Edit, Delete: family Demo", said());
  click("family_selection.Text");
  key("ctrl+a");
  type("demos");
  EXPECT_EQ("Add: family demos (new)", said());
  key("ctrl+a");
  type("new");
  key("Return");
  EXPECT_EQ("Added family new", said());
}

TEST_F(StatusLine, HeadersAreAddedByTheOnlyButtonThatDoes) {
  start_on_dial();
  edit_family("Athena");
  toggle("entity_opt_code_headers_t", true);
  turn_to(widget("entity_dialog"));
  click("codeheaderlist_selection.Text");
  type("one.h");
  EXPECT_EQ("Add: code header one.h (new)", said("entity_form"));
  key("Return");
  click_item("codeheaderlist_selection", "one.h");
  EXPECT_EQ("Delete: code header one.h, used by 1 family", said("entity_form"));
}

TEST_F(StatusLine, SaysWhoUsesWhatIsAboutToBeDeleted) {
  start_on_dial();
  edit_family("Athena");
  click_item("widgetlist_selection", "Dial");
  EXPECT_EQ("Edit, Delete: widget Dial, used by 2 families", said("entity_form"));
  EXPECT_EQ("Opened document.vqc", said()) << "where there is no such list";
}

TEST_F(StatusLine, SaysHowManyLinesAGenerationHasWritten) {
  start_on_dial();
  const std::string path = folder.with("stubs.c", "one\ntwo\n");
  press("family_genstubs_b");
  choose_file("gen_fsb", path);
  const std::string text = read_file(path);
  const std::string lines = std::to_string(std::ranges::count(text, '\n'));
  EXPECT_EQ("Wrote stubs.c: " + lines + " lines, " + lines + " changed", said());
  press("family_genstubs_b");
  choose_file("gen_fsb", path);
  EXPECT_EQ("Wrote stubs.c: " + lines + " lines, 0 changed", said());
  write_file(path, text + "one\ntwo\n");
  press("family_genstubs_b");
  choose_file("gen_fsb", path);
  EXPECT_EQ("Wrote stubs.c: " + lines + " lines, 2 changed", said()) << "two have gone";
}

TEST_F(StatusLine, ShowsTheDocumentItsMarkAndTheNumberOfThings) {
  start_on_dial();
  EXPECT_EQ("document.vqc   2 in the list", so());
  add_family("New");
  EXPECT_EQ("document.vqc ●   3 in the list", so());
  edit_family("Athena");
  EXPECT_EQ("document.vqc ●   2 in the list", so("entity_form"));
  edit_widget("Dial");
  EXPECT_EQ("document.vqc ●   1 in the list", so("widgetedit_form"));
  press("family_saveb");
  EXPECT_EQ("document.vqc   3 in the list", so());
  press("family_newb");
  EXPECT_EQ("No name yet   0 in the list", so());
}

TEST_F(StatusLine, NamesWhatTheMarkOfChangeLeavesOut) {
  start_on_dial();
  click_item("family_selection", "Demo");
  press("family_uparrow");
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(shows_fact("Order changed, not saved"));
  press("family_undob");
  EXPECT_FALSE(shows_fact("not saved"));
  press("family_redob");
  EXPECT_TRUE(shows_fact("Order changed, not saved"));
  press("family_saveb");
  EXPECT_FALSE(shows_fact("not saved"));
  press("family_stop_b");
  toggle("stop_form", true);
  press("stop_list_apply");
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(shows_fact("Not saved: stop list"));
}

TEST_F(StatusLine, SaysHowFarADocumentWasRead) {
  open_document("VQconfig\nfamily 'Athena' { }\nfamily { }\n");
  EXPECT_TRUE(shows_fact("Only the part before line 3 was read"));
  press("family_saveb");
  EXPECT_FALSE(shows_fact("Only the part"));
}

TEST_F(StatusLine, ADocumentThatWasReadWholeSaysNothingOfThat) {
  open_document("VQconfig\nfamily 'Athena' { }\nfamily { }\n");
  open_file(folder.with("whole.vqc", dial));
  EXPECT_FALSE(shows_fact("Only the part"));
  EXPECT_TRUE(shows_fact("whole.vqc"));
}

TEST_F(StatusLine, SaysThatAFileCanOnlyBeRead) {
  const std::string path = folder.with("document.vqc", dial);
  chmod(path.c_str(), 0444);
  start({path});
  EXPECT_TRUE(shows_fact("Read-only"));
}

TEST_F(StatusLine, SaysThatTheFileWasChangedOutsideWhenAWindowGetsTheKeyboard) {
  start_on_dial();
  press("family_stop_b");
  write_file(folder / "document.vqc", "VQconfig\nfamily 'Other' { }\n");
  turn_to(main_shell());
  EXPECT_TRUE(wait_for([] { return said() == "Somebody else has changed document.vqc since it was read"; }));
  press("family_saveb");
  EXPECT_EQ("Saved document.vqc; what somebody else had written is kept: File > Versions", said());
  const Versions versions(versions_folder());
  const std::vector<Version> kept = versions.of(folder / "document.vqc");
  ASSERT_EQ(1U, kept.size());
  EXPECT_EQ(Reason::changed_outside, kept.front().reason);
  EXPECT_EQ("VQconfig\nfamily 'Other' { }\n", versions.text(kept.front()));
  press("family_saveb");
  EXPECT_EQ("Saved document.vqc", said());
}

TEST_F(StatusLine, SaysOnceThatNothingCanBeKept) {
  const std::filesystem::path home = std::getenv("HOME");
  std::ofstream(home / ".local") << "a file where a folder should be";
  start_on_dial();
  EXPECT_EQ("Nothing can be kept in " + (home / ".local/state/vqconfig").string() + ": Not a directory", said());
  add_family("New");
  press("family_saveb");
  EXPECT_EQ("Saved document.vqc", said());
}

}  // namespace
