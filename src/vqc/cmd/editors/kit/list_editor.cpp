#include "vqc/cmd/editors/kit/list_editor.h"

#include <Xm/List.h>
#include <Xm/SelectioB.h>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"

Widget ListEditor::list() const { return box() ? XmSelectionBoxGetChild(box(), XmDIALOG_LIST) : nullptr; }

Widget ListEditor::name_field() const { return box() ? XmSelectionBoxGetChild(box(), XmDIALOG_TEXT) : nullptr; }

void ListEditor::clear_name() const { settextf(name_field(), nullptr); }

void list_show(Widget list, const std::vector<Text>& names) {
  std::vector<CompoundString> strings(names.begin(), names.end());
  std::vector<XmString> items;
  items.reserve(strings.size());
  for (const CompoundString& string : strings) {
    if (string) items.push_back(string);
  }
  XmListDeleteAllItems(list);
  XtVaSetValues(list, XmNitems, items.data(), XmNitemCount, static_cast<int>(items.size()), nullptr);
}

void list_insert(Widget list, const Text& name, int position) { XmListAddItem(list, CompoundString(name), position); }

void list_delete(Widget list, const Text& name) {
  const CompoundString item(name);
  if (XmListItemExists(list, item)) XmListDeleteItem(list, item);
}

void set_family(ListEditor& editor, const Family* family) {
  if (!editor.box()) return;
  if (family != editor.family && editor.names.make_none_current) editor.names.make_none_current();
  editor.family = family;
  refill(editor, family != nullptr);
}

void refill(const ListEditor& editor, bool has_owner) {
  const std::vector<Text> names = has_owner ? editor.names.names() : std::vector<Text>();
  list_show(editor.list(), names);
  if (names.empty() || !editor.refill_keeps_name) editor.clear_name();
  for (const char* button : {"Apply", "Cancel", "OK"}) {  // by name: what Escape presses passes for the Cancel button
    XtSetSensitive(XtNameToWidget(editor.box(), const_cast<char*>(button)), has_owner ? True : False);
  }
}

void add_name(const ListEditor& editor, const Text& name) {
  if (editor.names.has(name) || editor.names.add(name) != 0) return;
  if (editor.added) editor.added(name);
  list_insert(editor.list(), name, editor.names.position(name));
}

void delete_name(const ListEditor& editor, const Text& name) {
  if (!editor.names.has(name)) return;
  list_delete(editor.list(), name);
  if (editor.delete_clears_name) editor.clear_name();
  editor.names.remove(name);
}

void accept_name(const ListEditor& editor, const Text& name) {
  if (editor.accepted && editor.names.has(name)) {
    editor.accepted(name);
  } else {
    add_name(editor, name);
  }
}

void select_name(const ListEditor& editor, const Text& name) { editor.selected(name); }

namespace {

/// A click fills the name field, which remembers what it cannot show of the name.
Text clicked_name(Widget field, const XmListCallbackStruct& call) {
  Text name = text_of(call.item);
  settextf(field, name);
  return name;
}

}  // namespace

void with_name(Widget w, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, const Text&)) {
  Widget field = editor.name_field();
  const Text name = XmIsList(w) ? clicked_name(field, *static_cast<XmListCallbackStruct*>(call))
                                : undistorted(field, text_of(static_cast<XmSelectionBoxCallbackStruct*>(call)->value));
  if (name.empty()) return;
  const BusyCursor busy(w);
  action(editor, name);
}

void move_selected(Widget w, const ListEditor& editor, bool down) {
  const BusyCursor busy(w);
  arrowlist_action(editor.list(), down ? editor.names.move_down : editor.names.move_up, down, false);
}
