#include "vqc/cmd/editors/dialogs/pageedit_dialog.h"

#include <Xm/ArrowB.h>
#include <Xm/DialogS.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/SelectioB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/pagelist.h"

namespace {

const WidgetRow rows[] = {
    {"pageedit_dialog", XmCreateDialogShell, nullptr, PAGEEDIT_SHELL},
    {"pageedit_selection",
     create_editor_box,
     "pageedit_dialog",
     PAGEEDIT_BOX,
     {{XmNapplyCallback, pagelist_do_apply},
      {XmNcancelCallback, pagelist_do_hide},
      {XmNhelpCallback, vqc_do_help, "vqc_page_edit"}}},
    {"Help", found_button, "pageedit_selection", NO_SLOT, {{XmNactivateCallback, vqc_do_help, "vqc_page_edit"}}},
    {"*ItemsList", found, "pageedit_selection", NO_SLOT, {{XmNbrowseSelectionCallback, pagelist_do_display}}},
    {"OK", unwanted, "pageedit_selection"},
    {"Apply", found, "pageedit_selection"},
    {"pageedit_work_area", create_form, "pageedit_selection"},
    {"pageedit_up_arrow", XmCreateArrowButton, "pageedit_work_area", NO_SLOT, {{XmNactivateCallback, pagelist_do_up}}},
    {"pageedit_down_arrow",
     XmCreateArrowButton,
     "pageedit_work_area",
     NO_SLOT,
     {{XmNactivateCallback, pagelist_do_down}}},
    {"pageedit_updateb", XmCreatePushButton, "pageedit_work_area", NO_SLOT, {{XmNactivateCallback, pagelist_do_add}}},
    {"pageedit_removeb",
     XmCreatePushButton,
     "pageedit_work_area",
     NO_SLOT,
     {{XmNactivateCallback, pagelist_do_delete}}},
};

}  // namespace

Widget* create_pageedit_dialog(Widget parent) { return build_dialog(parent, rows, PAGEEDIT_SLOTS); }
