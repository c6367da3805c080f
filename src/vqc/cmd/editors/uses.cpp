// Lists who uses something, and goes there.

#include "vqc/cmd/editors/uses.h"

#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <vector>

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
#include "vqc/cmd/editors/show_spot.h"
#include "vqc/cmd/editors/spot_list.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, NAME, FOUND, LIST, SLOTS };

// clang-format off
const WidgetRow frame_rows[] = {
    {"uses_dialog", XmCreateDialogShell,  nullptr,       {}, SHELL},
    {"uses_form",   create_form,          "uses_dialog", on_help("vqc_uses"), FORM},
};

const WidgetRow rows[] = {
    {"uses_showb",  XmCreatePushButton,   "uses_form",   on_press(uses_do_show)},
    {"uses_gob",    XmCreatePushButton,   "uses_form",   on_press(uses_do_go)},
    {"uses_closeb", XmCreatePushButton,   "uses_form",   on_press(uses_do_hide)},
    {"uses_helpb",  XmCreatePushButton,   "uses_form",   on_press(vqc_do_help, "vqc_uses")},
    {"uses_name",   XmCreateTextField,    "uses_form",   {}, NAME},
    {"uses_name_l", XmCreateLabel,        "uses_form"},
    {"uses_found",  XmCreateLabel,        "uses_form",   {}, FOUND},
    {"uses_list",   XmCreateScrolledList, "uses_form",   {{{XmNbrowseSelectionCallback, do_on_click<uses_do_go>}, {XmNdefaultActionCallback, uses_do_go}}}, LIST},
};

const WidgetLink links[] = {
    {"uses_form", XmNdefaultButton, "uses_showb"},
    {"uses_form", XmNcancelButton,  "uses_closeb"},
    {"uses_form", XmNinitialFocus,  "uses_name"},
};
// clang-format on

/// As many as anybody reads.
constexpr std::size_t kMostShown = 1000;

/// What the window is about: one thing that was chosen, or whatever has the name that was typed.
std::string name_asked;
std::optional<Spot> thing_asked;

/// The document that has the users shown.
std::shared_ptr<const State> state_shown;

/// Where a press on each item of the list leads.
std::vector<Spot> targets;

Widget at(Slot slot) { return uses_dialog[slot]; }

/// The kinds of things that others name.
constexpr Part used_parts[] = {Part::widget,        Part::enumeration, Part::alias,       Part::converter,
                               Part::popup,         Part::page,        Part::code_header, Part::family_header,
                               Part::config_header, Part::procedure};

/// Who uses a thing, and what a press shows of it: in a family, the thing itself.
void add_uses(const Spot& thing, std::vector<Spot>& users) {
  for (Spot& user : uses_of(edited_document, thing)) {
    const bool is_listed = user.part == Part::family && thing.part != Part::procedure;
    targets.push_back(is_listed ? Spot{thing.part, thing.name, user.name} : user);
    users.push_back(std::move(user));
  }
}

/// The things that are meant: of what has only been named, all that somebody uses.
std::vector<Spot> things_meant() {
  if (thing_asked) return {*thing_asked};
  std::vector<Spot> things;
  for (const Part part : used_parts) {
    const Spot thing{part, name_asked};
    if (count_uses(edited_document, thing).all() > 0) things.push_back(thing);
  }
  return things;
}

/// "page settings: 42 resources, 1 family"
std::string summary_of(const Spot& thing) {
  const std::string counts = counts_name(count_uses(edited_document, thing));
  const std::string name = spot_name(thing);
  return filled(text_or_name(counts.empty() ? "uses_none" : "uses_some"), {name.c_str(), counts.c_str()});
}

std::string summary_of(const std::vector<Spot>& things) {
  if (name_asked.empty()) return text_or_name("uses_unasked");
  if (things.empty()) return filled(text_or_name("uses_none"), {name_asked.c_str()});
  std::string summary;
  for (const Spot& thing : things) summary += (summary.empty() ? "" : "; ") + summary_of(thing);
  return summary;
}

void show_uses() {
  state_shown = document_state();
  targets.clear();
  std::vector<Spot> users;
  const std::vector<Spot> things = things_meant();
  for (const Spot& thing : things) add_uses(thing, users);
  users.resize(std::min(users.size(), kMostShown));
  XtVaSetValues(at(FOUND), XmNlabelString, CompoundString(displayable(summary_of(things)).c_str()).get(), nullptr);
  list_spots(at(LIST), users);
}

void ask_for(const std::string& name, std::optional<Spot> thing) {
  name_asked = name;
  thing_asked = std::move(thing);
  show_uses();
}

}  // namespace

Widget* create_uses_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("uses_form"), part(rows, links)}, SLOTS);
}

std::string users_in_words(Part part, Text name) {
  return counts_name(count_uses(edited_document, {part, std::string(name.view())}));
}

void uses_do_popup(Widget w, XtPointer, XtPointer) {
  if (uses_dialog && shell_around(w) == at(SHELL)) return;  // in which nothing else can be chosen
  const BusyCursor busy(w);
  const std::optional<Spot> chosen = chosen_spot(w);
  if (!ensure_dialog(uses_dialog, create_uses_dialog)) return;
  settextf(at(NAME), chosen ? Name(chosen->name) : Name(nullptr));
  ask_for(chosen ? chosen->name : std::string(), chosen);
  show_dialog(at(FORM));
  offer_text(at(NAME));
}

void refresh_uses() {
  if (uses_dialog && XtIsManaged(at(FORM)) && state_shown != document_state()) show_uses();
}

void uses_do_show(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const std::string name = gettextf(at(NAME));
  if (name != name_asked) thing_asked = std::nullopt;
  ask_for(name, thing_asked);
}

void uses_do_go(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const int place = selected_place(at(LIST));
  if (place < 0) return say("uses_unselected");
  const Spot target = targets[static_cast<std::size_t>(place)];  // the list may change when it is shown
  show_spot(target);
}

void uses_do_hide(Widget, XtPointer, XtPointer) { hide_dialog(at(FORM)); }

}  // namespace vqc::editors
