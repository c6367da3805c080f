#include "vqc/cmd/editors/dialogs/savechanges_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/MessageB.h>
#include <Xm/PushB.h>

#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/save.h"

namespace {

const WidgetRow rows[] = {
    {"savechanges_dialog", XmCreateDialogShell, nullptr, SAVECHANGES_SHELL, {{CLOSED, savechanges_docancel}}},
    {"savechanges_messagebox",
     create_question_box,
     "savechanges_dialog",
     SAVECHANGES_BOX,
     {{XmNokCallback, savechanges_dosave},
      {XmNcancelCallback, savechanges_docancel},
      {XmNhelpCallback, vqc_do_help, "vqc_savechanges"}}},
    {"savechanges_nob",
     XmCreatePushButton,
     "savechanges_messagebox",
     NO_SLOT,
     {{XmNactivateCallback, savechanges_dodiscard}}},
    {"OK", found, "savechanges_messagebox"},
};

const WidgetLink links[] = {
    {"savechanges_messagebox", XmNdefaultButton, "OK"},
    {"savechanges_messagebox", XmNinitialFocus, "OK"},
};

}  // namespace

Widget* create_savechanges_dialog(Widget parent) { return build_dialog(parent, rows, SAVECHANGES_SLOTS, links); }
