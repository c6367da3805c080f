#ifndef VQC_CMD_EDITORS_PICKER_H
#define VQC_CMD_EDITORS_PICKER_H

// A list editor that picks a name for a text field of another dialog.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"
#include "vqc/cmd/editors/kit/search_field.h"

namespace vqc::editors {

/// The names of a picker: the current family's, in a list that is filled with all of the document's. What is at an end
/// of the family's list need not be at an end of the other, so that only here a move to nowhere fails.
template <auto& kind, auto& pool>
NamesOf names_to_pick() {
  NamesOf names = names_in_family<kind>();
  names.names = names_in_pool<pool>;
  names.move_up = [](Name name, bool) {
    Family* family = family_getcurrent();
    return kind.index(family, name) == 1 ? std::remove_reference_t<decltype(kind)>::List::codes.cannot_move
                                         : kind.move_up(family, name);
  };
  names.move_down = [](Name name, bool) {
    Family* family = family_getcurrent();
    return kind.index(family, name) == kind.count(family)
               ? std::remove_reference_t<decltype(kind)>::List::codes.cannot_move
               : kind.move_down(family, name);
  };
  return names;
}

/// A list editor that picks a name for a text field of another dialog. Its list shows all names of the document, while
/// what it adds, removes and moves are the current family's.
struct Picker {
  ListEditor editor;
  Widget* (*create)(Widget parent);
  bool (*exists)(Name name);
  void (*show)(Name name);         // shows the record of that name, or none
  int builtin_kind;                // of names that cannot be removed
  Widget field = nullptr;          // who asked
  bool (*has_target)() = nullptr;  // whether what the field belongs to is there

  std::string name() const;
};

/// Shows the picker, made when it is first needed as a child of `parent`, with the name that `field` holds. The field
/// takes another only as long as `has_target`.
void open_picker(Picker& picker, Widget field, Widget parent, bool (*has_target)());

bool is_up(const Picker& picker);
/// Shows the picker with that name. Where it is up, it goes on picking for its field; else for none.
void open_picker_on(Picker& picker, Name name);

/// Fills the list with all names and shows none of them. 0 while there is no dialog, else 1.
int show_all_names(const Picker& picker);
/// Fills the list with all names if there are others than it shows. The fields keep what is in them.
void refresh_names(const Picker& picker);

/// Gives the current family, if there is one, the name, and shows it in the list unless it is there.
void name_into_family(const Picker& picker, Name name);

/// Goes to a name of the list, as a click on it does.
void go_to_picked(const Picker& picker, const std::string& name);

/// Lets a field search the names of the list.
template <Picker& picker>
void search_picker(Widget field) {
  search_in(
      field, [] { return list_names(picker.editor.list()); },
      [](const std::string& name) { go_to_picked(picker, name); });
}

// The buttons, as callbacks.

void apply_picked(Widget w, const Picker& picker);
void show_picked(const Picker& picker, Name name);
void remove_picked(Widget w, const Picker& picker);

template <Picker& picker>
void do_apply(Widget w, XtPointer, XtPointer) {
  apply_picked(w, picker);
}
template <Picker& picker>
void do_hide(Widget, XtPointer, XtPointer) {
  hide_dialog(picker.editor.box());
}
template <Picker& picker>
void do_show(Widget w, XtPointer, XtPointer call) {
  with_clicked_name(w, call, picker.editor, [](const ListEditor&, Name name) { show_picked(picker, name); });
}
template <Picker& picker>
void do_remove(Widget w, XtPointer, XtPointer) {
  remove_picked(w, picker);
}
template <Picker& picker>
void do_picker_up(Widget w, XtPointer, XtPointer) {
  move_selected(w, picker.editor, false);
}
template <Picker& picker>
void do_picker_down(Widget w, XtPointer, XtPointer) {
  move_selected(w, picker.editor, true);
}

}  // namespace vqc::editors

#endif
