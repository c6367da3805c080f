// Shows what is called like what has been typed so far, and goes to one of it.

#include "vqc/cmd/editors/goto.h"

#include <X11/keysym.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/session_history.h"
#include "vqc/cmd/editors/show_spot.h"
#include "vqc/cmd/editors/spot_list.h"
#include "vqc/cmd/lookup/directory.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, FORM, NAME, FOUND, LIST, SLOTS };

Widget create_goto_field(Widget parent, char* name, ArgList, Cardinal);

// clang-format off
const WidgetRow frame_rows[] = {
    {"goto_dialog", XmCreateDialogShell,  nullptr,       {}, SHELL},
    {"goto_form",   create_form,          "goto_dialog", on_help("vqc_goto"), FORM},
};

const WidgetRow rows[] = {
    {"goto_gob",    XmCreatePushButton,   "goto_form",   on_press(goto_do_go)},
    {"goto_closeb", XmCreatePushButton,   "goto_form",   on_press(goto_do_hide)},
    {"goto_helpb",  XmCreatePushButton,   "goto_form",   on_press(vqc_do_help, "vqc_goto")},
    {"goto_name",   create_goto_field,    "goto_form",   {}, NAME},
    {"goto_name_l", XmCreateLabel,        "goto_form"},
    {"goto_found",  XmCreateLabel,        "goto_form",   {}, FOUND},
    {"goto_list",   XmCreateScrolledList, "goto_form",   {{{XmNbrowseSelectionCallback, do_on_click<goto_do_go>}, {XmNdefaultActionCallback, goto_do_go}}}, LIST},
};

const WidgetLink links[] = {
    {"goto_form", XmNdefaultButton, "goto_gob"},
    {"goto_form", XmNcancelButton,  "goto_closeb"},
    {"goto_form", XmNinitialFocus,  "goto_name"},
};
// clang-format on

/// As many as anybody reads.
constexpr std::size_t kMostShown = 300;

/// The names of the document while the window is up, and the state of which they are.
std::optional<Directory> directory;
std::shared_ptr<const State> state_of_directory;

/// What the list shows.
std::vector<Spot> hits;

Widget at(Slot slot) { return goto_dialog[slot]; }

Directory& names_now() {
  if (!directory || state_of_directory != document_state()) {
    directory.emplace(edited_document);
    state_of_directory = document_state();
  }
  return *directory;
}

std::string words_for(const Directory::Hits& found) {
  const auto all = static_cast<int>(found.count);
  const auto shown = static_cast<int>(found.best.size());
  return shown == all ? filled(text_or_name("goto_found_all"), {all})
                      : filled(text_or_name("goto_found_best"), {all, shown});
}

void show_hits() {
  Directory::Hits found = names_now().find(gettextf(at(NAME)), kMostShown);
  XtVaSetValues(at(FOUND), XmNlabelString, CompoundString(words_for(found).c_str()).get(), nullptr);
  hits = std::move(found.best);
  list_spots(at(LIST), hits);
  list_select_place(at(LIST), 1);
}

/// Typing is no action of which the history takes note.
void typed(Widget, XtPointer, XtPointer) {
  if (goto_dialog) guarded(show_hits);
}

/// How far a key moves the choice in the list; 0 for one that does not.
int step_of(XKeyEvent& key) {
  int rows_shown = 1;
  XtVaGetValues(at(LIST), XmNvisibleItemCount, &rows_shown, nullptr);
  switch (XLookupKeysym(&key, 0)) {
    case XK_Down:
      return 1;
    case XK_Up:
      return -1;
    case XK_Page_Down:
      return rows_shown - 1;
    case XK_Page_Up:
      return 1 - rows_shown;
    default:
      return 0;
  }
}

/// The keys that choose in the list do so while the field has the keyboard.
void choose_by_key(Widget, XtPointer, XEvent* event, Boolean* goes_on) {
  const int step = step_of(event->xkey);
  if (step == 0) return;
  *goes_on = False;
  guarded([step] { list_select_place(at(LIST), list_selected_place(at(LIST)) + step); });
}

Widget create_goto_field(Widget parent, char* name, ArgList arguments, Cardinal count) {
  Widget field = XmCreateTextField(parent, name, arguments, count);
  XtAddCallback(field, XmNvalueChangedCallback, typed, nullptr);
  XtInsertEventHandler(field, KeyPressMask, False, choose_by_key, nullptr, XtListHead);
  return field;
}

}  // namespace

Widget* create_goto_dialog(Widget parent) {
  return build_dialog(parent, {part(frame_rows), status_line("goto_form"), part(rows, links)}, SLOTS);
}

void goto_do_popup(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (!ensure_dialog(goto_dialog, create_goto_dialog)) return;
  show_hits();
  show_dialog(at(FORM), Place::over);
  offer_text(at(NAME));
  give_keyboard(at(NAME));
}

void goto_do_go(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  const int place = selected_place(at(LIST));
  if (place < 0) return say("goto_nothing");
  const Spot target = hits[static_cast<std::size_t>(place)];
  if (show_spot(target)) goto_do_hide(w, nullptr, nullptr);
}

void goto_do_hide(Widget, XtPointer, XtPointer) {
  hide_dialog(at(FORM));
  directory.reset();
  state_of_directory.reset();
}

}  // namespace vqc::editors
