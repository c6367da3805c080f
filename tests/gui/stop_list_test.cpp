#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

struct StopRow {
  const char* toggle;
  const char* class_name;
};

// In the order in which they are stored.
const StopRow stops[] = {
    {"stop_dialog", "XmDialogShell"},
    {"stop_main_window", "XmMainWindow"},
    {"stop_menu_bar", "XmMenuBar"},
    {"stop_pulldown_menu", "XmPulldownMenu"},
    {"stop_radio_box", "XmRadioBox"},
    {"stop_row_column", "XmRowColumn"},
    {"stop_frame", "XmFrame"},
    {"stop_drawing_area", "XmDrawingArea"},
    {"stop_bulletin_board", "XmBulletinBoard"},
    {"stop_form", "XmForm"},
    {"stop_paned_window", "XmPanedWindow"},
    {"stop_scrolled_window", "XmScrolledWindow"},
    {"stop_message_box", "XmMessageBox"},
    {"stop_dialog_template", "XmDialogTemplate"},
    {"stop_command", "XmCommand"},
    {"stop_selection_prompt", "XmSelectionPrompt"},
    {"stop_selection_box", "XmSelectionBox"},
    {"stop_file_selection", "XmFileSelection"},
    {"stop_label", "XmLabel"},
    {"stop_push_button", "XmPushButton"},
    {"stop_toggle_button", "XmToggleButton"},
    {"stop_drawn_button", "XmDrawnButton"},
    {"stop_arrow_button", "XmArrowButton"},
    {"stop_cascade_button", "XmCascadeButton"},
    {"stop_option_menu", "XmOptionMenu"},
    {"stop_separator", "XmSeparator"},
    {"stop_scale", "XmScale"},
    {"stop_scroll_bar", "XmScrollBar"},
    {"stop_text_field", "XmTextField"},
    {"stop_text", "XmText"},
    {"stop_scrolled_text", "XmScrolledText"},
    {"stop_list", "XmList"},
    {"stop_scrolled_list", "XmScrolledList"},
    {"stop_printshell", "XmPrintShell"},
    {"stop_grabshell", "XmGrabShell"},
    {"stop_container", "XmContainer"},
    {"stop_notebook", "XmNotebook"},
    {"stop_spinbox", "XmSpinBox"},
    {"stop_combobox", "XmComboBox"},
    {"stop_simplespinbox", "XmSimpleSpinBox"},
    {"stop_icongadget", "XmIconGadget"},
};
static_assert(std::size(stops) == 41);

class StopList : public Session {
 protected:
  void edit(const std::string& header = "") {
    open_document("VQconfig\n" + header + "family 'F' {\n}\n");
    press("family_stop_b");
    ASSERT_TRUE(is_shown("stop_list_shell"));
  }
  static Names toggles_set() {
    Names set;
    for (const auto& [toggle, class_name] : stops) {
      if (is_set(toggle)) set.push_back(class_name);
    }
    return set;
  }
  static std::string saved_list() {
    const std::string document = saved();
    const std::string key = "\nstop_list = ";
    const std::size_t begin = document.find(key);
    if (begin == std::string::npos) return "";
    return document.substr(begin + key.size(), document.find('\n', begin + 1) - begin - key.size());
  }
};

TEST_F(StopList, OpensFromTheEditMenuWithEverythingOff) {
  start();
  choose_menu("family_edit_cascade", "family_stop_b");
  ASSERT_TRUE(is_shown("stop_list_shell"));
  EXPECT_EQ(Names(), toggles_set());
}

TEST_F(StopList, ShowsTheListOfTheDocument) {
  edit("stop_list = 'XmList,XmForm,XmIconGadget'\n");
  EXPECT_EQ((Names{"XmForm", "XmList", "XmIconGadget"}), toggles_set());
}

TEST_F(StopList, OnlyAWholeNameCounts) {
  edit("stop_list = ' XmList,XmForm ,xmframe,XmTextFieldX,XmText,'\n");
  EXPECT_EQ(Names{"XmText"}, toggles_set());
}

TEST_F(StopList, EachToggleStandsForItsClass) {
  edit();
  for (const auto& [name, class_name] : stops) {
    toggle(name, true);
    press("stop_list_apply");
    toggle(name, false);
    EXPECT_EQ(class_name, edited_document.excluded_classes.view()) << name;
  }
}

TEST_F(StopList, ApplyWithTheMouseStoresAndStaysOpen) {
  edit();
  click("stop_frame");
  click("stop_label");
  click("stop_list_apply");
  EXPECT_TRUE(is_shown("stop_list_shell"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("'XmFrame,XmLabel'", saved_list());
}

TEST_F(StopList, ClassesAreStoredInTheirOrder) {
  edit();
  std::string expected;
  for (auto row = std::rbegin(stops); row != std::rend(stops); ++row) toggle(row->toggle, true);
  for (const auto& [toggle, class_name] : stops) expected += (expected.empty() ? "'" : ",") + std::string(class_name);
  press("stop_list_apply");
  EXPECT_EQ(expected + "'", saved_list());
}

TEST_F(StopList, AListThatWasReadIsPutInOrderByApply) {
  edit("stop_list = 'XmList,XmForm'\n");
  EXPECT_EQ("'XmList,XmForm'", saved_list());
  press("stop_list_apply");
  EXPECT_EQ("'XmForm,XmList'", saved_list());
}

TEST_F(StopList, ApplyDropsClassesThatHaveNoToggle) {
  edit("stop_list = 'Unknown,XmForm'\n");
  press("stop_list_apply");
  EXPECT_EQ("'XmForm'", saved_list());
}

TEST_F(StopList, ApplyWithEverythingOffStoresNone) {
  edit("stop_list = 'XmForm'\n");
  toggle("stop_form", false);
  press("stop_list_apply");
  EXPECT_FALSE(edited_document.excluded_classes);
  EXPECT_EQ("", saved_list());
}

TEST_F(StopList, CloseLosesWhatWasNotApplied) {
  edit("stop_list = 'XmForm'\n");
  toggle("stop_list", true);
  click("stop_list_close");
  EXPECT_FALSE(is_shown("stop_list_shell"));
  EXPECT_EQ("'XmForm'", saved_list());
  press("family_stop_b");
  EXPECT_EQ(Names{"XmForm"}, toggles_set());
}

TEST_F(StopList, NewSetsEveryToggleOff) {
  edit("stop_list = 'XmForm'\n");
  press("family_newb");
  EXPECT_EQ(Names(), toggles_set());
  press("stop_list_close");
  press("family_stop_b");
  EXPECT_EQ(Names(), toggles_set());
}

TEST_F(StopList, AnotherDocumentSetsTheToggles) {
  edit("stop_list = 'XmForm'\n");
  open_file(folder.with("other.vqc", "VQconfig\nstop_list = 'XmScale'\n"));
  EXPECT_EQ(Names{"XmScale"}, toggles_set());
}

}  // namespace
