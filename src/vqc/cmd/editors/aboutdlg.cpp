#include "vqc/cmd/editors/aboutdlg.h"

#include <cstring>

#include "libkel/message.h"
#include "libkel/text.h"
#include "vqc/cmd/editors/dialogs/about_dialog.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"

namespace {

/// The text of a label; `given` when no resource sets one, so that it shows its own name.
Text text_or(const char* given, Widget label) {
  XmString string = nullptr;
  XtVaGetValues(label, XmNlabelString, &string, nullptr);
  const Text text = text_of(string);
  XmStringFree(string);
  return text == XtName(label) ? Text(given) : text;
}

void show_text(Widget label, const char* text) {
  XtVaSetValues(label, XmNlabelString, CompoundString::of_lines(text).get(), nullptr);
}

/// The box says what it is about without a resource file too.
void set_texts(Widget shell, Widget name, Widget version) {
  String title = nullptr;
  XtVaGetValues(shell, XmNtitle, &title, nullptr);
  if (std::strcmp(title, XtName(shell)) == 0) XtVaSetValues(shell, XmNtitle, "About vqconfig", nullptr);
  show_text(name, text_or("vqconfig", name).c_str());
  show_text(version, filled(text_or("Version %s %s", version), {VQC_VERSION, VQC_RELEASE_DATE}).c_str());
}

}  // namespace

void about_do_show(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!about_dialog) {
    if (!made(about_dialog, create_about_dialog, family_dialog[FAMILY_SHELL])) return;
    set_texts(about_dialog[ABOUT_SHELL], about_dialog[ABOUT_NAME], about_dialog[ABOUT_VERSION]);
  }
  show_dialog(about_dialog[ABOUT_FORM], Place::over);
}

void about_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(about_dialog[ABOUT_FORM]); }
