#include "vqc/cmd/editors/dialogs/about_dialog.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>

#include "vqc/cmd/editors/aboutdlg.h"

namespace {

const WidgetRow rows[] = {
    {"about_dialog", XmCreateDialogShell, nullptr, ABOUT_SHELL},
    {"about_form", create_form, "about_dialog", ABOUT_FORM},
    {"about_name", XmCreateLabel, "about_form", ABOUT_NAME},
    {"about_version", XmCreateLabel, "about_form", ABOUT_VERSION},
    {"about_ok", XmCreatePushButton, "about_form", NO_SLOT, {{XmNactivateCallback, about_do_hide}}},
};

const WidgetLink links[] = {
    {"about_form", XmNdefaultButton, "about_ok"},
    {"about_form", XmNcancelButton, "about_ok"},
};

}  // namespace

Widget* create_about_dialog(Widget parent) { return build_dialog(parent, rows, ABOUT_SLOTS, links); }
