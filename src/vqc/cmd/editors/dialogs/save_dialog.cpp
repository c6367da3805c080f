#include "vqc/cmd/editors/dialogs/save_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/FileSB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/save.h"

namespace {

const WidgetRow rows[] = {
    {"save_dialog", XmCreateDialogShell, nullptr, SAVE_SHELL, {{CLOSED, save_do_hide}}},
    {"save_fsb",
     create_file_box,
     "save_dialog",
     SAVE_FSB,
     {{XmNokCallback, do_save}, {XmNcancelCallback, save_do_hide}, {XmNhelpCallback, vqc_do_help, "vqc_save"}}},
};

}  // namespace

Widget* create_save_dialog(Widget parent) { return build_dialog(parent, rows, SAVE_SLOTS); }
