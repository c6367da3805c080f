#include "vqc/cmd/editors/error.h"

#include <Xm/MessageB.h>

#include "vqc/cmd/editors/dialogs/error_dialog.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/kit/compound.h"

namespace {

const char* text_of_resource(const char* name) {
  if (!family_dialog) return nullptr;
  char* text = nullptr;
  XtResource resource = {
      const_cast<char*>(name),      const_cast<char*>(XtCString), const_cast<char*>(XtRString), sizeof text, 0,
      const_cast<char*>(XtRString), const_cast<char*>("")};
  XtGetApplicationResources(family_dialog[FAMILY_SHELL], &text, &resource, 1, nullptr, 0);
  return text;
}

void show_in_box(const char* text) {
  if (!family_dialog) return;
  if (!made(error_dialog, create_error_dialog, family_dialog[FAMILY_SHELL])) return;
  XtVaSetValues(error_dialog[ERROR_BOX], XmNmessageString, CompoundString::of_lines(text).get(), nullptr);
  show_dialog(error_dialog[ERROR_BOX]);
}

}  // namespace

const MessageSink error_box = {text_of_resource, show_in_box};

void error_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(error_dialog[ERROR_BOX]); }
