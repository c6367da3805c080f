// The stop list dialog: a toggle for each widget class that can be left out.

#include "vqc/cmd/editors/stop.h"

#include <Xm/DialogS.h>
#include <Xm/PushB.h>
#include <Xm/ScrolledW.h>
#include <Xm/SeparatoG.h>
#include <Xm/Separator.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_options.h"
#include "vqc/cmd/editors/kit/session_hooks.h"

namespace vqc::editors {

namespace {

/// A widget class that can be left out. Applied classes are listed by column, and in one by their place in the table.
struct StopClass {
  const char* toggle;
  std::string_view name;
  int column;  // 1 to 3 of the containers, 4 to 6 of the primitives; the newer of either follow as 7 and 8
};

/// In the order of the toggles.
// clang-format off
constexpr StopClass stop_classes[] = {
    {"stop_dialog",           "XmDialogShell",     1},
    {"stop_frame",            "XmFrame",           2},
    {"stop_message_box",      "XmMessageBox",      3},
    {"stop_main_window",      "XmMainWindow",      1},
    {"stop_drawing_area",     "XmDrawingArea",     2},
    {"stop_dialog_template",  "XmDialogTemplate",  3},
    {"stop_menu_bar",         "XmMenuBar",         1},
    {"stop_bulletin_board",   "XmBulletinBoard",   2},
    {"stop_command",          "XmCommand",         3},
    {"stop_pulldown_menu",    "XmPulldownMenu",    1},
    {"stop_form",             "XmForm",            2},
    {"stop_selection_prompt", "XmSelectionPrompt", 3},
    {"stop_radio_box",        "XmRadioBox",        1},
    {"stop_paned_window",     "XmPanedWindow",     2},
    {"stop_selection_box",    "XmSelectionBox",    3},
    {"stop_row_column",       "XmRowColumn",       1},
    {"stop_scrolled_window",  "XmScrolledWindow",  2},
    {"stop_file_selection",   "XmFileSelection",   3},
    {"stop_printshell",       "XmPrintShell",      7},
    {"stop_grabshell",        "XmGrabShell",       7},
    {"stop_container",        "XmContainer",       7},
    {"stop_notebook",         "XmNotebook",        7},
    {"stop_spinbox",          "XmSpinBox",         7},
    {"stop_label",            "XmLabel",           4},
    {"stop_cascade_button",   "XmCascadeButton",   5},
    {"stop_text_field",       "XmTextField",       6},
    {"stop_push_button",      "XmPushButton",      4},
    {"stop_option_menu",      "XmOptionMenu",      5},
    {"stop_text",             "XmText",            6},
    {"stop_toggle_button",    "XmToggleButton",    4},
    {"stop_separator",        "XmSeparator",       5},
    {"stop_scrolled_text",    "XmScrolledText",    6},
    {"stop_drawn_button",     "XmDrawnButton",     4},
    {"stop_scale",            "XmScale",           5},
    {"stop_list",             "XmList",            6},
    {"stop_arrow_button",     "XmArrowButton",     4},
    {"stop_scroll_bar",       "XmScrollBar",       5},
    {"stop_scrolled_list",    "XmScrolledList",    6},
    {"stop_combobox",         "XmComboBox",        8},
    {"stop_simplespinbox",    "XmSimpleSpinBox",   8},
    {"stop_icongadget",       "XmIconGadget",      8},
};
// clang-format on

constexpr bool is_container(const StopClass& each) { return each.column <= 3 || each.column == 7; }

enum Slot { SHELL, FORM, TOGGLES, SLOTS = TOGGLES + static_cast<int>(std::size(stop_classes)) };

// clang-format off
const WidgetRow frame_rows[] = {
    {"stop_list_shell",             XmCreateDialogShell,     nullptr,                     {}, SHELL},
    {"stop_list_form",              create_form,             "stop_list_shell",           on_help("vqc_stop_list"), FORM},
    {"stop_list_fake_separator",    XmCreateSeparatorGadget, "stop_list_form"},
    {"stop_list_apply",             XmCreatePushButton,      "stop_list_form",            on_press(stop_list_do_apply)},
    {"stop_list_close",             XmCreatePushButton,      "stop_list_form",            on_press(stop_list_do_popdown)},
    {"stop_list_help",              XmCreatePushButton,      "stop_list_form",            on_press(vqc_do_help, "vqc_stop_list")},
    {"stop_list_separator",         XmCreateSeparator,       "stop_list_form"},
    {"stop_list_scrolled_window",   XmCreateScrolledWindow,  "stop_list_form"},
    {"stop_list_container",         create_form,             "stop_list_scrolled_window"},
    {"stop_list_composites",        create_form,             "stop_list_container"},
};

const WidgetRow primitives_rows[] = {
    {"stop_list_section_separator", XmCreateSeparator,       "stop_list_container"},
    {"stop_list_primitives",        create_form,             "stop_list_container"},
};

const WidgetLink links[] = {
    {"stop_list_form", XmNdefaultButton, "stop_list_apply"},
    {"stop_list_form", XmNcancelButton,  "stop_list_close"},
};
// clang-format on

Widget toggle_of(const StopClass& each) { return stop_list_shell[TOGGLES + (&each - stop_classes)]; }

/// The toggles of the containers, or those of the primitives.
DialogPart toggles_in(const char* form, bool containers) {
  DialogPart toggles;
  for (const StopClass& each : stop_classes) {
    const int slot = TOGGLES + static_cast<int>(&each - stop_classes);
    if (is_container(each) == containers) toggles.rows.push_back({each.toggle, XmCreateToggleButton, form, {}, slot});
  }
  return toggles;
}

/// The order in which applied classes are listed.
std::vector<const StopClass*> listed_classes() {
  std::vector<const StopClass*> classes;
  for (const StopClass& each : stop_classes) classes.push_back(&each);
  std::ranges::stable_sort(classes, {}, &StopClass::column);
  return classes;
}

/// Whether a document's comma-separated list has the class.
bool excluded(std::string_view classes, std::string_view name) {
  while (!classes.empty()) {
    const std::size_t comma = classes.find(',');
    if (classes.substr(0, comma) == name) return true;
    classes.remove_prefix(comma == std::string_view::npos ? classes.size() : comma + 1);
  }
  return false;
}

}  // namespace

Widget* create_stop_list_shell(Widget parent) {
  return build_dialog(parent,
                      {part(frame_rows, links), toggles_in("stop_list_composites", true), part(primitives_rows),
                       toggles_in("stop_list_primitives", false)},
                      SLOTS);
}

void stoplist_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(stop_list_shell, create_stop_list_shell)) return;
  show_stop_list();
  show_dialog(stop_list_shell[FORM]);
}

void stop_list_do_apply(Widget, XtPointer, XtPointer) {
  std::string classes;
  for (const StopClass* each : listed_classes()) {
    if (!gettoggle(toggle_of(*each))) continue;
    if (!classes.empty()) classes += ',';
    classes += each->name;
  }
  stop_list_set(classes.empty() ? Name(nullptr) : Name(classes));
}

void stop_list_do_popdown(Widget, XtPointer, XtPointer) { hide_dialog(stop_list_shell[FORM]); }

void stop_list_set(Name classes) {
  edited_document.excluded_classes = edited_document.keep(classes);
  show_stop_list();
}

void show_stop_list() {
  if (!stop_list_shell) return;
  for (const StopClass& each : stop_classes)
    settoggle(toggle_of(each), excluded(edited_document.excluded_classes.view(), each.name));
}

}  // namespace vqc::editors
