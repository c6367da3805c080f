#include "vqc/cmd/editors/dialogs/popupedit_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/SelectioB.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/popuplist.h"

namespace {

const WidgetRow rows[] = {
    {"popupedit_dialog", XmCreateDialogShell, nullptr, POPUPEDIT_SHELL},
    {"popupedit_selection",
     create_editor_box,
     "popupedit_dialog",
     POPUPEDIT_BOX,
     {{XmNapplyCallback, popuplist_do_apply},
      {XmNcancelCallback, popuplist_do_hide},
      {XmNhelpCallback, vqc_do_help, "vqc_popup_edit"}}},
    {"Help", found_button, "popupedit_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_popup_edit"}}},
    {"*ItemsList", found, "popupedit_selection", NO_SLOT, {{XmNbrowseSelectionCallback, popuplist_do_display}}},
    {"OK", unwanted, "popupedit_selection"},
    {"Apply", found, "popupedit_selection"},
    {"popupedit_work_area", create_form, "popupedit_selection"},
    {"dialog_init", XmCreateTextField, "popupedit_work_area", POPUPEDIT_INIT},
    {"converter_dialogue_init_l", XmCreateLabel, "popupedit_work_area"},
    {"dialog_update", XmCreateTextField, "popupedit_work_area", POPUPEDIT_UPDATE},
    {"converter_dialogue_update_l", XmCreateLabel, "popupedit_work_area"},
    {"popupedit_applytb",
     XmCreatePushButton,
     "popupedit_work_area",
     NO_SLOT,
     {{XmNactivateCallback, popuplist_do_add}}},
    {"popupedit_deletetb",
     XmCreatePushButton,
     "popupedit_work_area",
     NO_SLOT,
     {{XmNactivateCallback, popuplist_do_delete}}},
};

}  // namespace

Widget* create_popupedit_dialog(Widget parent) { return build_dialog(parent, rows, POPUPEDIT_SLOTS); }
