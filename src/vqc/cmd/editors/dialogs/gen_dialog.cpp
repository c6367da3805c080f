#include "vqc/cmd/editors/dialogs/gen_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/FileSB.h>
#include <Xm/RowColumn.h>
#include <Xm/ScrolledW.h>

#include "vqc/cmd/editors/gendlg.h"
#include "vqc/cmd/editors/kit/session_hooks.h"

namespace {

const WidgetRow rows[] = {
    {"gen_dialog", XmCreateDialogShell, nullptr, GEN_SHELL, {{CLOSED, gen_do_hide}}},
    {"gen_fsb",
     create_modal_file_box,
     "gen_dialog",
     GEN_FSB,
     {{XmNokCallback, gen_do_generate}, {XmNcancelCallback, gen_do_hide}, {XmNhelpCallback, vqc_do_help, "vqc_gen"}}},
    {"gen_families", XmCreateScrolledWindow, "gen_fsb"},
    {"gen_toggles", XmCreateRowColumn, "gen_families", GEN_TOGGLES},
};

}  // namespace

Widget* create_gen_dialog(Widget parent) { return build_dialog(parent, rows, GEN_SLOTS); }
