// What the buttons around a list of names do, in the model and in the list.

#include "vqc/cmd/editors/kit/list_editor.h"

#include <Xm/SelectioB.h>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"

namespace vqc::editors {

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
  if (editor.names.has(name) || with_memory(editor.names.add(name)) != 0) return;
  if (editor.added) editor.added(name);
  list_insert(editor.list(), name, editor.names.position(name));
}

void delete_name(const ListEditor& editor, Name name) {
  if (!editor.names.has(name)) return;
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

std::string selected_name(const ListEditor& editor) { return list_selected(editor.list()); }

void choose_name(const ListEditor& editor, Name name) {
  if (!editor.box() || !editor.names.has(name)) return;
  list_select(editor.list(), name);
  settextf(editor.name_field(), name);
  select_name(editor, name);
}

void with_name(Widget w, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name)) {
  const auto* box_call = static_cast<XmSelectionBoxCallbackStruct*>(call);
  const std::string name = undistorted(editor.name_field(), text_of(box_call->value));
  if (name.empty()) return;
  const BusyCursor busy(w);
  action(editor, name);
}

void with_clicked_name(Widget list, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name)) {
  const std::string name = clicked_name(list, *static_cast<XmListCallbackStruct*>(call));
  if (name.empty()) return;
  const BusyCursor busy(list);
  settextf(editor.name_field(), name);
  action(editor, name);
  mark_text(editor.name_field());
}

void move_selected(Widget w, const ListEditor& editor, bool down) {
  const BusyCursor busy(w);
  arrowlist_action(editor.list(), down ? editor.names.move_down : editor.names.move_up, down, false);
}

}  // namespace vqc::editors
