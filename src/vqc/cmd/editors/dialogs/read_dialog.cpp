#include "vqc/cmd/editors/dialogs/read_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/FileSB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/read.h"

namespace {

const WidgetRow rows[] = {
    {"read_dialog", XmCreateDialogShell, nullptr, READ_SHELL, {{CLOSED, read_do_hide}}},
    {"read_fsb",
     create_file_box,
     "read_dialog",
     READ_FSB,
     {{XmNokCallback, do_read}, {XmNcancelCallback, read_do_hide}, {XmNhelpCallback, vqc_do_help, "vqc_read"}}},
};

}  // namespace

Widget* create_read_dialog(Widget parent) { return build_dialog(parent, rows, READ_SLOTS); }
