#include "vqc/cmd/editors/dialogs/stop_list_shell.h"

#include <Xm/DialogS.h>
#include <Xm/PushB.h>
#include <Xm/ScrolledW.h>
#include <Xm/SeparatoG.h>
#include <Xm/Separator.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/stop.h"

namespace {

const WidgetRow rows[] = {
    {"stop_list_shell", XmCreateDialogShell, nullptr, STOP_LIST_SHELL},
    {"stop_list_form",
     create_form,
     "stop_list_shell",
     STOP_LIST_FORM,
     {{XmNhelpCallback, vqc_do_help, "vqc_stop_list"}}},
    {"stop_list_fake_separator", XmCreateSeparatorGadget, "stop_list_form"},
    {"stop_list_apply", XmCreatePushButton, "stop_list_form", NO_SLOT, {{XmNactivateCallback, stop_list_do_apply}}},
    {"stop_list_close", XmCreatePushButton, "stop_list_form", NO_SLOT, {{XmNactivateCallback, stop_list_do_popdown}}},
    {"stop_list_help",
     XmCreatePushButton,
     "stop_list_form",
     NO_SLOT,
     {{XmNactivateCallback, vqc_do_help, "vqc_stop_list"}}},
    {"stop_list_separator", XmCreateSeparator, "stop_list_form"},
    {"stop_list_scrolled_window", XmCreateScrolledWindow, "stop_list_form"},
    {"stop_list_container", create_form, "stop_list_scrolled_window"},
    {"stop_list_composites", create_form, "stop_list_container"},
    {"stop_dialog", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 0},
    {"stop_frame", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 1},
    {"stop_message_box", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 2},
    {"stop_main_window", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 3},
    {"stop_drawing_area", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 4},
    {"stop_dialog_template", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 5},
    {"stop_menu_bar", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 6},
    {"stop_bulletin_board", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 7},
    {"stop_command", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 8},
    {"stop_pulldown_menu", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 9},
    {"stop_form", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 10},
    {"stop_selection_prompt", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 11},
    {"stop_radio_box", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 12},
    {"stop_paned_window", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 13},
    {"stop_selection_box", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 14},
    {"stop_row_column", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 15},
    {"stop_scrolled_window", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 16},
    {"stop_file_selection", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 17},
    {"stop_printshell", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 18},
    {"stop_grabshell", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 19},
    {"stop_container", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 20},
    {"stop_notebook", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 21},
    {"stop_spinbox", XmCreateToggleButton, "stop_list_composites", STOP_LIST_TOGGLES + 22},
    {"stop_list_section_separator", XmCreateSeparator, "stop_list_container"},
    {"stop_list_primitives", create_form, "stop_list_container"},
    {"stop_label", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 23},
    {"stop_cascade_button", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 24},
    {"stop_text_field", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 25},
    {"stop_push_button", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 26},
    {"stop_option_menu", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 27},
    {"stop_text", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 28},
    {"stop_toggle_button", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 29},
    {"stop_separator", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 30},
    {"stop_scrolled_text", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 31},
    {"stop_drawn_button", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 32},
    {"stop_scale", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 33},
    {"stop_list", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 34},
    {"stop_arrow_button", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 35},
    {"stop_scroll_bar", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 36},
    {"stop_scrolled_list", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 37},
    {"stop_combobox", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 38},
    {"stop_simplespinbox", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 39},
    {"stop_icongadget", XmCreateToggleButton, "stop_list_primitives", STOP_LIST_TOGGLES + 40},
};

const WidgetLink links[] = {
    {"stop_list_form", XmNdefaultButton, "stop_list_apply"},
    {"stop_list_form", XmNcancelButton, "stop_list_close"},
};

}  // namespace

Widget* create_stop_list_shell(Widget parent) { return build_dialog(parent, rows, STOP_LIST_SLOTS, links); }
