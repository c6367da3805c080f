#include "vqc/cmd/editors/dialogs/resource_warn_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/MessageB.h>
#include <Xm/PushB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/widgetedit.h"

namespace {

const WidgetRow rows[] = {
    {"resource_warn_dialog", XmCreateDialogShell, nullptr, RESOURCE_WARN_SHELL},
    {"resource_warn_msg",
     create_question_box,
     "resource_warn_dialog",
     RESOURCE_WARN_BOX,
     {{XmNokCallback, resource_apply}, {XmNhelpCallback, vqc_do_help, "vqc_w_edit"}}},
    {"resource_warn_ignoreb",
     XmCreatePushButton,
     "resource_warn_msg",
     NO_SLOT,
     {{XmNactivateCallback, resource_ignore}}},
    {"OK", found, "resource_warn_msg"},
};

const WidgetLink links[] = {
    {"resource_warn_msg", XmNdefaultButton, "OK"},
    {"resource_warn_msg", XmNinitialFocus, "OK"},
};

}  // namespace

Widget* create_resource_warn_dialog(Widget parent) { return build_dialog(parent, rows, RESOURCE_WARN_SLOTS, links); }
