// The box that says which version of the program this is.

#include "vqc/cmd/editors/aboutdlg.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>

#include <cstring>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, NAME, VERSION, SLOTS };

// clang-format off
const WidgetRow rows[] = {
    {"about_dialog",  XmCreateDialogShell, nullptr,        {}, SHELL},
    {"about_form",    create_form,         "about_dialog", {}, FORM},
    {"about_name",    XmCreateLabel,       "about_form",   {}, NAME},
    {"about_version", XmCreateLabel,       "about_form",   {}, VERSION},
    {"about_ok",      XmCreatePushButton,  "about_form",   on_press(about_do_hide)},
};

const WidgetLink links[] = {
    {"about_form", XmNdefaultButton, "about_ok"},
    {"about_form", XmNcancelButton,  "about_ok"},
};
// clang-format on

/// The text of a label; `given` when no resource sets one, so that it shows its own name.
std::string text_or(const char* given, Widget label) {
  XmString string = nullptr;
  XtVaGetValues(label, XmNlabelString, &string, nullptr);
  std::string text = text_of(string);
  XmStringFree(string);
  return text == XtName(label) ? given : text;
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
  show_text(version, filled(text_or("Version %s %s", version).c_str(), {VQC_VERSION, VQC_RELEASE_DATE}).c_str());
}

}  // namespace

Widget* create_about_dialog(Widget parent) { return build_dialog(parent, rows, SLOTS, links); }

void about_do_show(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!about_dialog) {
    if (!ensure_dialog(about_dialog, create_about_dialog)) return;
    set_texts(about_dialog[SHELL], about_dialog[NAME], about_dialog[VERSION]);
  }
  show_dialog(about_dialog[FORM], Place::over);
}

void about_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(about_dialog[FORM]); }

}  // namespace vqc::editors
