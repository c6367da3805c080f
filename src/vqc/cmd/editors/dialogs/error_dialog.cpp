#include "vqc/cmd/editors/dialogs/error_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/MessageB.h>

#include "vqc/cmd/editors/error.h"
#include "vqc/cmd/editors/kit/session_hooks.h"

namespace {

const WidgetRow rows[] = {
    {"error_dialog", XmCreateDialogShell, nullptr, ERROR_SHELL},
    {"error_messageb",
     XmCreateMessageBox,
     "error_dialog",
     ERROR_BOX,
     {{XmNokCallback, error_do_hide}, {XmNcancelCallback, error_do_hide}, {XmNhelpCallback, vqc_do_help, "vqc_error"}}},
    {"OK", unwanted, "error_messageb"},
    {"Cancel", found, "error_messageb"},
};

const WidgetLink links[] = {{"error_messageb", XmNdefaultButton, "Cancel"}};

}  // namespace

Widget* create_error_dialog(Widget parent) { return build_dialog(parent, rows, ERROR_SLOTS, links); }
