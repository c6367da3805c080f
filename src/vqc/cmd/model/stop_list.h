#ifndef VQC_CMD_MODEL_STOP_LIST_H
#define VQC_CMD_MODEL_STOP_LIST_H

#include <cstddef>
#include <string_view>
#include <vector>

namespace vqc {

/// A widget class that can be left out: the toggle for it in the editor, its name, and where the editor lists it.
/// Applied classes are listed by column, and in one by their place in the table.
struct StopClass {
  const char* toggle;
  std::string_view name;
  int column;  // 1 to 3 of the containers, 4 to 6 of the primitives; the newer of either follow as 7 and 8
};

/// In the order of the toggles.
// clang-format off
inline constexpr StopClass stop_classes[] = {
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

/// The names between the commas of a stop list, as they stand. An empty list has none.
inline std::vector<std::string_view> classes_in(std::string_view stop_list) {
  std::vector<std::string_view> names;
  for (bool another = !stop_list.empty(); another;) {
    const std::size_t comma = stop_list.find(',');
    names.push_back(stop_list.substr(0, comma));
    another = comma != std::string_view::npos;
    if (another) stop_list.remove_prefix(comma + 1);
  }
  return names;
}

}  // namespace vqc

#endif
