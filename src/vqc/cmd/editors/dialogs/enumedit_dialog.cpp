#include "vqc/cmd/editors/dialogs/enumedit_dialog.h"

#include <Xm/ArrowB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/SelectioB.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/editors/kit/session_hooks.h"

namespace {

const WidgetRow rows[] = {
    {"enumedit_dialog", XmCreateDialogShell, nullptr, ENUMEDIT_SHELL},
    {"enumedit_selection",
     create_editor_box,
     "enumedit_dialog",
     ENUMEDIT_BOX,
     {{XmNokCallback, enumentry_do_update},
      {XmNapplyCallback, enumentry_do_add},
      {XmNcancelCallback, enumentry_do_delete},
      {XmNhelpCallback, vqc_do_help, "vqc_enum_edit"}}},
    {"Help", found_button, "enumedit_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_enum_edit"}}},
    {"*ItemsList", found, "enumedit_selection", NO_SLOT, {{XmNbrowseSelectionCallback, enumentry_do_display}}},
    {"enumedit_work_form", create_form, "enumedit_selection"},
    {"enumedit_arrowbox", XmCreateRowColumn, "enumedit_work_form"},
    {"enumedit_uparrow", XmCreateArrowButton, "enumedit_arrowbox", NO_SLOT, {{XmNactivateCallback, enumentry_do_up}}},
    {"enumedit_downarrow",
     XmCreateArrowButton,
     "enumedit_arrowbox",
     NO_SLOT,
     {{XmNactivateCallback, enumentry_do_down}}},
    {"enumedit_type", XmCreateTextField, "enumedit_work_form", ENUMEDIT_TYPE},
    {"enumedit_type_l", XmCreateLabel, "enumedit_work_form"},
    {"enumedit_code_symbol", XmCreateTextField, "enumedit_work_form", ENUMEDIT_CODE_SYMBOL},
    {"enumedit_code_symbol_l", XmCreateLabel, "enumedit_work_form"},
    {"enumedit_resfile_symbol", XmCreateTextField, "enumedit_work_form", ENUMEDIT_RESFILE_SYMBOL},
    {"enumedit_resfile_symbol_l", XmCreateLabel, "enumedit_work_form"},
    {"enumedit_quitb", XmCreatePushButton, "enumedit_selection", NO_SLOT, {{XmNactivateCallback, enumedit_do_hide}}},
};

const WidgetLink links[] = {
    {"enumedit_selection", XmNcancelButton, "enumedit_quitb"},  // Escape must not delete
};

}  // namespace

Widget* create_enumedit_dialog(Widget parent) { return build_dialog(parent, rows, ENUMEDIT_SLOTS, links); }
