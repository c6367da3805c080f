#ifndef VQC_CMD_EDITORS_KIT_LIST_EDITOR_H
#define VQC_CMD_EDITORS_KIT_LIST_EDITOR_H

// Every list that is edited by name is edited in the same way: a selection box shows the names, and its buttons add,
// delete and open or update the name in its field. This is that way, once; an editor says what differs.

#include <Xm/Xm.h>

#include <vector>

#include "vqc/cmd/editors/kit/arrowlist.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// The list that an editor shows, wherever the model keeps it.
struct NamesOf {
  bool (*has)(Name name);
  ErrorCode (*add)(Name name);
  ErrorCode (*remove)(Name name);
  int (*position)(Name name);  // counted from 1
  Move move_up;                // null for a list that cannot be rearranged
  Move move_down;
  std::vector<std::string> (*names)();
  void (*make_none_current)() = nullptr;  // null where nothing is ever current
  std::string (*current)() = nullptr;     // likewise; empty for none
};

/// The name of the element of a kind that is current; empty for none.
template <auto& kind>
std::string name_of_current() {
  const auto* element = kind.current();
  return element ? std::string(name_of(*element).view()) : std::string();
}

/// A kind of list that the current family has.
template <auto& kind>
NamesOf names_in_family() {
  return {
      .has = [](Name name) { return kind.ptr(family_getcurrent(), name) != nullptr; },
      .add = [](Name name) { return kind.add(name, family_getcurrent()); },
      .remove = [](Name name) { return kind.remove(family_getcurrent(), name); },
      .position = [](Name name) { return kind.index(family_getcurrent(), name); },
      .move_up = [](Name name, bool) { return kind.move_up(family_getcurrent(), name); },
      .move_down = [](Name name, bool) { return kind.move_down(family_getcurrent(), name); },
      .names =
          [] {
            std::vector<std::string> names;
            const Family* family = family_getcurrent();
            for (auto* element = kind.first(family); element; element = kind.next())
              names.emplace_back(name_of(*element).view());
            return names;
          },
      .make_none_current = [] { kind.set_current(nullptr); },
      .current = name_of_current<kind>,
  };
}

/// The names of a pool, in its order.
template <auto& pool>
std::vector<std::string> names_in_pool() {
  std::vector<std::string> names;
  for (const auto& record : pool.list()) names.emplace_back(record.name.view());
  return names;
}

/// One editor. Null functions are what it does not do.
struct ListEditor {
  Part part;        // what the list has
  Widget*& dialog;  // the record that holds the box; null until the dialog exists
  int box_slot;
  NamesOf names;
  void (*added)(Name name) = nullptr;     // a new name is in the model and about to be shown
  void (*accepted)(Name name) = nullptr;  // OK on a name that is there already
  void (*selected)(Name name) = nullptr;  // a click on a name
  bool delete_clears_name = false;
  bool refill_keeps_name = false;  // unless the list is empty
  const Family* family = nullptr;  // whose names are shown

  /// The selection box, its list and its name field; null while there is no dialog.
  Widget box() const { return dialog ? dialog[box_slot] : nullptr; }
  Widget list() const;
  Widget name_field() const;
  void clear_name() const;
};

/// Shows the current family's list, from which `family` has been chosen; null empties the box and switches it off.
/// Another family than before leaves nothing current.
void set_family(ListEditor& editor, const Family* family);
/// Fills the list from the model; without an owner of the list its buttons are switched off.
void refill(const ListEditor& editor, bool has_owner);

/// What the buttons do with a name.
void add_name(const ListEditor& editor, Name name);
void delete_name(const ListEditor& editor, Name name);
void accept_name(const ListEditor& editor, Name name);
void select_name(const ListEditor& editor, Name name);

/// What a thing is called, and who uses it.
std::string part_with_users(Part part, Name name);

/// The name of what an editor shows: the current element, or what is selected in the list; empty for none.
std::string shown_name(const ListEditor& editor);
/// Selects a name of the list, as a click on it does. Nothing for a name that is not there.
void choose_name(const ListEditor& editor, Name name);

/// Calls `action` with the name that a box's callback brings, if there is one.
void with_name(Widget w, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name));
/// Says what the buttons would do with the name that the user has typed so far.
void hint_on_typed(Widget field, XtPointer call, const ListEditor& editor);
/// The same with the name that has been clicked in its list. It stands in the name field then, to be typed over.
void with_clicked_name(Widget list, XtPointer call, const ListEditor& editor, void (*action)(const ListEditor&, Name));
void move_selected(Widget w, const ListEditor& editor, bool down);

// The same as callbacks.

template <ListEditor& editor>
void do_add(Widget w, XtPointer, XtPointer call) {
  with_name(w, call, editor, add_name);
}
template <ListEditor& editor>
void do_delete(Widget w, XtPointer, XtPointer call) {
  with_name(w, call, editor, delete_name);
}
template <ListEditor& editor>
void do_accept(Widget w, XtPointer, XtPointer call) {
  with_name(w, call, editor, accept_name);
}
template <ListEditor& editor>
void do_select(Widget w, XtPointer, XtPointer call) {
  with_clicked_name(w, call, editor, select_name);
}
template <ListEditor& editor>
void do_type(Widget w, XtPointer, XtPointer call) {
  hint_on_typed(w, call, editor);
}
template <ListEditor& editor>
void do_up(Widget w, XtPointer, XtPointer) {
  move_selected(w, editor, false);
}
template <ListEditor& editor>
void do_down(Widget w, XtPointer, XtPointer) {
  move_selected(w, editor, true);
}

}  // namespace vqc::editors

#endif
