// What the buttons around a list of names do, in the model and in the list.

#include "vqc/cmd/editors/kit/list_editor.h"

#include <Xm/SelectioB.h>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

/// What a button of a box says; empty where there is no such button.
std::string label_of(const ListEditor& editor, const char* button) {
  Widget w = XtNameToWidget(editor.box(), const_cast<char*>(button));
  return w && XtIsManaged(w) ? label_text(w) : std::string();
}

/// What the buttons would do with a name.
std::string hint_on(const ListEditor& editor, Name name) {
  if (name.view().empty()) return {};
  const std::string part = part_with_users(editor.part, name);
  const std::string ok = label_of(editor, "OK");
  const std::string add = label_of(editor, "Apply");
  if (!editor.names.has(name))
    return filled(text_or_name("hint_add"), {(add.empty() ? ok : add).c_str(), part.c_str()});
  const std::string remove = label_of(editor, "Cancel");
  if (!editor.accepted) return filled(text_or_name("hint_delete"), {remove.c_str(), part.c_str()});
  return filled(text_or_name("hint_accept_delete"), {ok.c_str(), remove.c_str(), part.c_str()});
}

}  // namespace

std::string part_with_users(Part part, Name name) {
  const std::string called = part_name(part, name);
  const std::string users = session_hooks.used_by ? session_hooks.used_by(part, name) : std::string();
  return users.empty() ? called : filled(text_or_name("used_by"), {called.c_str(), users.c_str()});
}

Widget ListEditor::list() const { return box() ? XmSelectionBoxGetChild(box(), XmDIALOG_LIST) : nullptr; }

Widget ListEditor::name_field() const { return box() ? XmSelectionBoxGetChild(box(), XmDIALOG_TEXT) : nullptr; }

void ListEditor::clear_name() const { settextf(name_field(), nullptr); }

void set_family(ListEditor& editor, const Family* family) {
  if (!editor.box()) return;
  if (family != editor.family && editor.names.make_none_current) editor.names.make_none_current();
  editor.family = family;
  refill(editor, family != nullptr);
}

void refill(const ListEditor& editor, bool has_owner) {
  const std::vector<std::string> names = has_owner ? editor.names.names() : std::vector<std::string>();
  list_show(editor.list(), names);
  if (names.empty() || !editor.refill_keeps_name) editor.clear_name();
  for (const char* button : {"Apply", "Cancel", "OK"}) {  // by name: what Escape presses passes for the Cancel button
    XtSetSensitive(XtNameToWidget(editor.box(), const_cast<char*>(button)), has_owner ? True : False);
  }
}

void add_name(const ListEditor& editor, Name name) {
  if (editor.names.has(name)) return say("in_list", {part_name(editor.part, name).c_str()});
  if (with_memory(editor.names.add(name)) != 0) return say("not_added", {part_name(editor.part, name).c_str()});
  if (editor.added) editor.added(name);
  list_insert(editor.list(), name, editor.names.position(name));
}

void delete_name(const ListEditor& editor, Name name) {
  if (!editor.names.has(name)) return say("not_in_list", {part_name(editor.part, name).c_str()});
  list_delete(editor.list(), name);
  if (editor.delete_clears_name) editor.clear_name();
  editor.names.remove(name);
}

void accept_name(const ListEditor& editor, Name name) {
  if (editor.accepted && editor.names.has(name)) {
    editor.accepted(name);
  } else {
    add_name(editor, name);
  }
}

void select_name(const ListEditor& editor, Name name) {
  if (editor.selected) editor.selected(name);
}

std::string shown_name(const ListEditor& editor) {
  const std::string current = editor.names.current ? editor.names.current() : std::string();
  return current.empty() ? list_selected(editor.list()) : current;
}

void choose_name(const ListEditor& editor, Name name) {
  if (!editor.box() || !editor.names.has(name)) return;
  list_select(editor.list(), name);
  settextf(editor.name_field(), name);
  select_name(editor, name);
}

void with_name(Widget w, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name)) {
  const auto* box_call = static_cast<XmSelectionBoxCallbackStruct*>(call);
  const std::string name = undistorted(editor.name_field(), text_of(box_call->value));
  if (name.empty()) return say("no_name");
  const BusyCursor busy(w);
  action(editor, name);
}

void hint_on_typed(Widget field, XtPointer call, const ListEditor& editor) {
  const bool is_of_user = static_cast<XmAnyCallbackStruct*>(call)->event != nullptr;
  if (is_of_user) hint(field, hint_on(editor, undistorted(field, characters_in(field))));
}

void with_clicked_name(Widget list, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name)) {
  const std::string name = clicked_name(list, *static_cast<XmListCallbackStruct*>(call));
  if (name.empty()) return;
  const BusyCursor busy(list);
  settextf(editor.name_field(), name);
  action(editor, name);
  hint_after_action(list, hint_on(editor, name));
  mark_text(editor.name_field());
}

void move_selected(Widget w, const ListEditor& editor, bool down) {
  const BusyCursor busy(w);
  if (arrowlist_action(editor.list(), down ? editor.names.move_down : editor.names.move_up, down, false)) return;
  say(list_selected(editor.list()).empty() ? "nothing_selected" : down ? "is_last" : "is_first");
}

}  // namespace vqc::editors
