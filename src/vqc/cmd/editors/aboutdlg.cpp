#include "vqc/cmd/editors/aboutdlg.h"

#include <string>

#include "libkel/message.h"
#include "libkel/text.h"
#include "vqc/cmd/editors/dialogs/about_dialog.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"

namespace {

/// The label's text has places for the release's number and date.
void state_version(Widget label) {
  XmString string = nullptr;
  XtVaGetValues(label, XmNlabelString, &string, nullptr);
  const Text format = text_of(string);
  XmStringFree(string);
  const std::string text = filled(format, {VQC_VERSION, VQC_RELEASE_DATE});
  XtVaSetValues(label, XmNlabelString, CompoundString::of_lines(text.c_str()).get(), nullptr);
}

}  // namespace

void about_do_show(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!about_dialog) {
    if (!made(about_dialog, create_about_dialog, family_dialog[FAMILY_SHELL])) return;
    state_version(about_dialog[ABOUT_VERSION]);
  }
  show_dialog(about_dialog[ABOUT_FORM]);
}

void about_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(about_dialog[ABOUT_FORM]); }
