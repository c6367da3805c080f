#include "vqc/cmd/editors/dialogs/open_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/FileSB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/open.h"

namespace {

const WidgetRow rows[] = {
    {"open_dialog", XmCreateDialogShell, nullptr, OPEN_SHELL, {{CLOSED, open_do_hide}}},
    {"open_fsb",
     create_file_box,
     "open_dialog",
     OPEN_FSB,
     {{XmNokCallback, do_open}, {XmNcancelCallback, open_do_hide}, {XmNhelpCallback, vqc_do_help, "vqc_open"}}},
};

}  // namespace

Widget* create_open_dialog(Widget parent) { return build_dialog(parent, rows, OPEN_SLOTS); }
