// Gives what has been chosen another name.

#include "vqc/cmd/editors/rename.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>

#include <optional>
#include <string>

#include "libkel/message.h"
#include "vqc/cmd/editors/chosen_spot.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/widgets.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/spot_list.h"
#include "vqc/cmd/lookup/rename.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, OLD, NAME, SLOTS };

// clang-format off
const WidgetRow frame_rows[] = {
    {"rename_dialog", XmCreateDialogShell, nullptr,         {}, SHELL},
    {"rename_form",   create_form,         "rename_dialog", on_help("vqc_rename"), FORM},
};

const WidgetRow rows[] = {
    {"rename_okb",    XmCreatePushButton,  "rename_form",   on_press(rename_do_apply)},
    {"rename_closeb", XmCreatePushButton,  "rename_form",   on_press(rename_do_hide)},
    {"rename_helpb",  XmCreatePushButton,  "rename_form",   on_press(vqc_do_help, "vqc_rename")},
    {"rename_old",    XmCreateLabel,       "rename_form",   {}, OLD},
    {"rename_name",   XmCreateTextField,   "rename_form",   {}, NAME},
    {"rename_name_l", XmCreateLabel,       "rename_form"},
};

const WidgetLink links[] = {
    {"rename_form", XmNdefaultButton, "rename_okb"},
    {"rename_form", XmNcancelButton,  "rename_closeb"},
    {"rename_form", XmNinitialFocus,  "rename_name"},
};
// clang-format on

/// What gets another name.
std::optional<Spot> thing;

Widget at(Slot slot) { return rename_dialog[slot]; }

void show_thing() {
  const std::string name = thing ? spot_name(*thing) : text_or_name("rename_nothing");
  XtVaSetValues(at(OLD), XmNlabelString, CompoundString(displayable(name).c_str()).get(), nullptr);
  settextf(at(NAME), thing ? Name(thing->name) : Name(nullptr));
}

void say_refused(const Refusal& refusal, const std::string& name) {
  static constexpr const char* messages[] = {"spot_gone",   "rename_predefined", "rename_empty",
                                             "rename_same", "rename_taken",      "rename_faulty"};
  const bool is_about_old = refusal.reason == Refusal::gone || refusal.reason == Refusal::predefined;
  const std::string& about = refusal.reason == Refusal::faulty ? refusal.words : is_about_old ? thing->name : name;
  say(messages[refusal.reason], {about.c_str()});
}

void rename_thing(const std::string& name) {
  const std::string old = spot_name(*thing);
  const int places = rename(edited_document, *thing, name);
  show_renamed(*thing, name);
  thing->name = name;
  name_step(filled(text_or_name("step_renamed"), {old.c_str(), name.c_str()}));
  say("rename_done", {old.c_str(), name.c_str(), places});
}

}  // namespace

Widget* create_rename_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("rename_form"), part(rows, links)}, SLOTS);
}

void rename_do_popup(Widget w, XtPointer, XtPointer) {
  if (rename_dialog && shell_around(w) == at(SHELL)) return;  // in which nothing else can be chosen
  const BusyCursor busy(w);
  thing = chosen_spot(w);
  if (!ensure_dialog(rename_dialog, create_rename_dialog)) return;
  show_thing();
  show_dialog(at(FORM), Place::over);
  give_keyboard(at(NAME));
  offer_text(at(NAME));
}

void rename_do_apply(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!thing) return say("rename_nothing");
  const std::string name = gettextf(at(NAME));
  if (const std::optional<Refusal> refusal = refusal_of(edited_document, *thing, name)) {
    return say_refused(*refusal, name);
  }
  rename_thing(name);
  hide_dialog(at(FORM));
}

void rename_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(at(FORM)); }

}  // namespace vqc::editors
