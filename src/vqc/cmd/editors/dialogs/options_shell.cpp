#include "vqc/cmd/editors/dialogs/options_shell.h"

#include <Xm/DialogS.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/Separator.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include "vqc/cmd/editors/options.h"

namespace {

const WidgetRow rows[] = {
    {"options_shell", XmCreateDialogShell, nullptr, OPTIONS_SHELL},
    {"options_form", create_form, "options_shell", OPTIONS_FORM, {{XmNhelpCallback, options_help_callback}}},
    {"options_ok", XmCreatePushButton, "options_form", NO_SLOT, {{XmNactivateCallback, options_ok_callback}}},
    {"options_reset", XmCreatePushButton, "options_form", NO_SLOT, {{XmNactivateCallback, options_reset_callback}}},
    {"options_cancel", XmCreatePushButton, "options_form", NO_SLOT, {{XmNactivateCallback, options_cancel_callback}}},
    {"options_help", XmCreatePushButton, "options_form", NO_SLOT, {{XmNactivateCallback, options_help_callback}}},
    {"options_separator_2", XmCreateSeparator, "options_form"},
    {"options_verbose_code",
     XmCreateToggleButton,
     "options_form",
     OPTIONS_VERBOSE,
     {{XmNvalueChangedCallback, options_verbose_changed_callback}}},
    {"options_comment_code",
     XmCreateToggleButton,
     "options_form",
     OPTIONS_COMMENT,
     {{XmNvalueChangedCallback, options_comment_changed_callback}}},
    {"options_data_frame", XmCreateFrame, "options_form"},
    {"options_data_label", XmCreateLabel, "options_data_frame"},
    {"options_data_form", create_form, "options_data_frame"},
    {"family_table_text", XmCreateTextField, "options_data_form", OPTIONS_FAMILY_TABLE},
    {"family_table_label", XmCreateLabel, "options_data_form"},
    {"family_names_text", XmCreateTextField, "options_data_form", OPTIONS_FAMILY_NAMES},
    {"family_names_label", XmCreateLabel, "options_data_form"},
    {"xwidget_array_text", XmCreateTextField, "options_data_form", OPTIONS_XWIDGETS},
    {"xwidget_array_label", XmCreateLabel, "options_data_form"},
    {"enumeration_array_text", XmCreateTextField, "options_data_form", OPTIONS_ENUMERATIONS},
    {"enumeration_array_label", XmCreateLabel, "options_data_form"},
    {"alias_array_text", XmCreateTextField, "options_data_form", OPTIONS_ALIASES},
    {"alias_array_label", XmCreateLabel, "options_data_form"},
    {"converter_array_text", XmCreateTextField, "options_data_form", OPTIONS_CONVERTERS},
    {"converter_array_label", XmCreateLabel, "options_data_form"},
    {"popup_array_text", XmCreateTextField, "options_data_form", OPTIONS_POPUPS},
    {"popup_array_label", XmCreateLabel, "options_data_form"},
    {"stop_list_array_text", XmCreateTextField, "options_data_form", OPTIONS_STOP_LIST},
    {"stop_list_array_label", XmCreateLabel, "options_data_form"},
    {"family_count_text", XmCreateTextField, "options_data_form", OPTIONS_FAMILY_COUNT},
    {"family_count_label", XmCreateLabel, "options_data_form"},
    {"page_names_text", XmCreateTextField, "options_data_form", OPTIONS_PAGE_NAMES},
    {"page_names_label", XmCreateLabel, "options_data_form"},
    {"options_separator_1", XmCreateSeparator, "options_data_form"},
};

const WidgetLink links[] = {
    {"options_form", XmNdefaultButton, "options_ok"},
    {"options_form", XmNcancelButton, "options_cancel"},
    {"options_form", XmNinitialFocus, "family_table_text"},
};

}  // namespace

Widget* create_options_shell(Widget parent) { return build_dialog(parent, rows, OPTIONS_SLOTS, links); }
