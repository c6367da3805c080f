// Undo and redo: the history of the session, and showing what it brings back.

#include "vqc/cmd/editors/session_history.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "libkel/message.h"
#include "vqc/cmd/editors/aliaslist.h"
#include "vqc/cmd/editors/convlist.h"
#include "vqc/cmd/editors/document_check.h"
#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/editors/enumlist.h"
#include "vqc/cmd/editors/facts.h"
#include "vqc/cmd/editors/familylist.h"
#include "vqc/cmd/editors/headerlists.h"
#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"
#include "vqc/cmd/editors/options.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/editors/step_names.h"
#include "vqc/cmd/editors/stop.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/editors/widgetedit.h"
#include "vqc/cmd/editors/widgetlist.h"
#include "vqc/cmd/history/timeline.h"

namespace vqc::editors {

namespace {

std::optional<Timeline> timeline;

/// The lists in which something can be selected. What is selected in one decides what the next ones show.
ListEditor* const lists[] = {&family_editor,         &widgetlist_editor,       &enumlist_editor,
                             &aliaslist_editor,      &converterlist_editor,    &codeheaderlist_editor,
                             &confheaderlist_editor, &familyheaderlist_editor, &enumentry_editor};

/// What the file of the document says; null until the state is known that has just been read or written.
std::shared_ptr<const State> in_file;
bool just_loaded = false;

Surroundings surroundings() {
  Surroundings now{save_file, {}, in_file};
  for (const ListEditor* editor : lists) now.selection.push_back(shown_name(*editor));
  return now;
}

/// Fills again what shows the document. What is current stays so where it is still there.
void refill_windows() {
  show_stop_list();
  family_display();
  family_pool.set_current(family_pool.current());
  widget_kind.set_current(widget_kind.current());
  enum_kind.set_current(enum_kind.current());
  alias_kind.set_current(alias_kind.current());
  converter_kind.set_current(converter_kind.current());
  refresh_names(page_picker);
  refresh_names(popup_picker);
  options_dialog_load();
}

void select_again(const std::vector<std::string>& selection) {
  auto name = selection.begin();
  for (const ListEditor* editor : lists) choose_name(*editor, *name++);
}

/// To those who go on with it while the user does.
void hand_on_state() {
  keep_state(timeline->now().state, save_file);
  check_document(timeline->now().state, save_file);
}

void show_now() {
  save_file = timeline->now().path;
  in_file = timeline->now().in_file;
  hand_on_state();
  vqc_set_title(save_file_path());
  refill_windows();
  select_again(timeline->now().selection);
}

/// Says in a menu item what it would do.
void name_item(FamilySlot slot, const char* plain, const char* with_step, const std::string& step) {
  Widget item = family_dialog[slot];
  const std::string label = step.empty() ? text_or_name(plain) : filled(text_or_name(with_step), {step.c_str()});
  XtVaSetValues(item, XmNlabelString, CompoundString(label.c_str()).get(), nullptr);
  XtSetSensitive(item, step.empty() ? False : True);
}

void show_steps() {
  const std::string back = timeline->can_undo() ? step_name(timeline->previous(), timeline->now()) : std::string();
  const std::string on = timeline->can_redo() ? step_name(timeline->now(), timeline->next()) : std::string();
  name_item(FAMILY_UNDO, "undo", "undo_step", back);
  name_item(FAMILY_REDO, "redo", "redo_step", on);
}

/// Goes back by a step or on again, and says which one it was.
void go(Widget w, void (Timeline::*step)(Document&), const char* message, const std::string& name) {
  const BusyCursor busy(w);
  timeline->note_typed(unapplied_fields());
  ((*timeline).*step)(edited_document);
  show_now();
  take_left_fields();
  put_back(timeline->now().typed);
  show_steps();
  say(message, {name.c_str()});
}

/// What the step is called that is being done; empty where that follows from it.
std::string step_said;

/// Shows the resource again that the widget editor showed, if it still does its widget.
void choose_resource_again(const std::string& shown, const Spot& thing, const std::string& name) {
  if (shown.empty()) return;
  widgetedit_choose_resource(thing.part == Part::resource && shown == thing.name ? name : shown);
}

/// Lets a picker that is up show the name that it showed.
void pick_again(const Picker& picker, const std::string& shown, bool is_renamed, const std::string& name) {
  if (is_up(picker)) picker.show(is_renamed ? name : shown);
}

}  // namespace

void name_step(std::string name) { step_said = std::move(name); }

void show_renamed(const Spot& thing, const std::string& name) {
  std::vector<std::string> selection = surroundings().selection;
  const std::string resource = gettextf(resource_field(Kw::resource_definitions));
  const std::string page = page_picker.name();
  const std::string popup = popup_picker.name();
  const Typed typed = unapplied_fields();
  refill_windows();
  std::size_t place = 0;
  for (const ListEditor* editor : lists) {
    std::string& selected = selection[place++];
    if (selected == thing.name && !editor->names.has(selected)) selected = name;
    choose_name(*editor, selected);
  }
  choose_resource_again(resource, thing, name);
  pick_again(page_picker, page, thing.part == Part::page && page == thing.name, name);
  pick_again(popup_picker, popup, thing.part == Part::popup && popup == thing.name, name);
  take_left_fields();
  put_back(typed);
}

void show_changed() { show_renamed({}, {}); }

void begin_history() {
  timeline.emplace(edited_document, surroundings());
  note_loading();
  note_action();
  check_document(timeline->now().state, save_file);
  show_steps();
}

void note_loading() { just_loaded = true; }

void note_action() {
  if (!timeline) return;
  const bool is_step = timeline->note(edited_document, surroundings(), take_left_fields());
  mark_unapplied();
  if (std::exchange(just_loaded, false)) timeline->note_file(in_file = timeline->now().state);
  if (is_step) {
    timeline->name_step(std::exchange(step_said, {}));
    hand_on_state();
    show_steps();
  }
  end_action(is_step ? done_name(timeline->previous(), timeline->now()) : std::string());
  show_facts(timeline->now().state, in_file);
}

void note_saving() {
  if (!timeline) return;
  timeline->saved(edited_document, save_file);
  in_file = timeline->now().state;
  check_document(timeline->now().state, save_file);
}

std::shared_ptr<const State> document_state() { return timeline ? timeline->now().state : nullptr; }

void undo_do(Widget w, XtPointer, XtPointer) {
  if (!timeline || !timeline->can_undo()) return say("nothing_to_undo");
  go(w, &Timeline::undo, "undone", step_name(timeline->previous(), timeline->now()));
}

void redo_do(Widget w, XtPointer, XtPointer) {
  if (!timeline || !timeline->can_redo()) return say("nothing_to_redo");
  go(w, &Timeline::redo, "redone", step_name(timeline->now(), timeline->next()));
}

}  // namespace vqc::editors
