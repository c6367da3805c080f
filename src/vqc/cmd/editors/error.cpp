// The box in which messages are shown, and where their texts are looked up.

#include "vqc/cmd/editors/error.h"

#include <Xm/DialogS.h>
#include <Xm/MessageB.h>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/modal.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, BOX, SLOTS };

// clang-format off
const WidgetRow rows[] = {
    {"error_dialog",   XmCreateDialogShell, nullptr,          {}, SHELL},
    {"error_messageb", XmCreateMessageBox,  "error_dialog",   on_answer(error_do_hide, error_do_hide, "vqc_error"), BOX},
    {"OK",             unmanage_child,      "error_messageb"},
    {"Cancel",         find_child,          "error_messageb"},
};

const WidgetLink links[] = {{"error_messageb", XmNdefaultButton, "Cancel"}};
// clang-format on

const char* text_of_resource(const char* name) {
  if (!main_shell()) return nullptr;
  char* text = nullptr;
  XtResource resource = {
      const_cast<char*>(name),      const_cast<char*>(XtCString), const_cast<char*>(XtRString), sizeof text, 0,
      const_cast<char*>(XtRString), const_cast<char*>("")};
  XtGetApplicationResources(main_shell(), &text, &resource, 1, nullptr, 0);
  return text;
}

/// Lets the box be read and closed although another dialog has to be answered first, by giving it that rank.
void let_be_used(Widget box) {
  unsigned char style = XmDIALOG_MODELESS;
  XtVaGetValues(box, XmNdialogStyle, &style, nullptr);
  const bool can_be_used = modal_shell() ? modal_shell() == XtParent(box) : style == XmDIALOG_MODELESS;
  if (can_be_used) return;
  hide_dialog(box);  // the rank of what is up cannot change
  XtVaSetValues(box, XmNdialogStyle, modal_shell() ? XmDIALOG_FULL_APPLICATION_MODAL : XmDIALOG_MODELESS, nullptr);
}

void show_in_box(const char* text) {
  if (!main_shell()) return;
  if (!ensure_dialog(error_dialog, create_error_dialog)) return;
  Widget box = error_dialog[BOX];
  XtVaSetValues(box, XmNmessageString, CompoundString::of_lines(text).get(), nullptr);
  let_be_used(box);
  show_dialog(box, Place::over);
}

}  // namespace

Widget* create_error_dialog(Widget parent) { return build_dialog(parent, rows, SLOTS, links); }

const MessageSink error_box = {text_of_resource, show_in_box};

void error_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(error_dialog[BOX]); }

}  // namespace vqc::editors
