// Picks names for the text fields of other dialogs.

#include "vqc/cmd/editors/picker.h"

#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/generate/name_set.h"

namespace vqc::editors {

std::string Picker::name() const { return gettextf(editor.name_field()); }

namespace {

/// Where the list, which lacks what has been removed, has a name that is new to it: it has the order of the document.
int place_in_list(const ListEditor& editor, Name name) {
  NameSet shown;
  for (Name each : list_names(editor.list())) shown.add(Name(each));
  int place = 1;
  for (Name other : editor.names.names()) {
    if (Name(other) == name) break;
    if (shown.contains(Name(other))) ++place;
  }
  return place;
}

}  // namespace

void open_picker(Picker& picker, Widget field, Widget parent, bool (*has_target)()) {
  picker.field = field;
  picker.has_target = has_target;
  if (!ensure_dialog(picker.editor.dialog, picker.create, parent)) return;
  show_all_names(picker);
  picker.show(gettextf(field));
  show_dialog(picker.editor.box(), Place::over);
  offer_text(picker.editor.name_field());
}

bool is_up(const Picker& picker) { return picker.editor.dialog && XtIsManaged(picker.editor.box()); }

void open_picker_on(Picker& picker, Name name) {
  if (!is_up(picker)) open_picker(picker, nullptr, main_shell(), [] { return false; });
  if (!picker.editor.dialog) return;
  show_dialog(picker.editor.box(), Place::over);
  list_select(picker.editor.list(), name);
  picker.show(name);
  hint_after_action(picker.editor.box(), part_with_users(picker.editor.part, name));
}

int show_all_names(const Picker& picker) {
  if (!picker.editor.dialog) return 0;
  list_show(picker.editor.list(), picker.editor.names.names());
  picker.show(nullptr);
  return 1;
}

void refresh_names(const Picker& picker) {
  if (!picker.editor.dialog) return;
  const std::vector<std::string> names = picker.editor.names.names();
  if (names != list_names(picker.editor.list())) list_show(picker.editor.list(), names);
}

void name_into_family(const Picker& picker, Name name) {
  const ListEditor& editor = picker.editor;
  if (editor.names.has(name)) return say_unless_changed("in_list", {part_name(editor.part, name).c_str()});
  if (with_memory(editor.names.add(name)) != 0 || !editor.dialog) return;
  if (list_position(editor.list(), name) == 0) list_insert(editor.list(), name, place_in_list(editor, name));
}

void apply_picked(Widget w, const Picker& picker) {
  if (!picker.has_target()) return say("no_target");
  const BusyCursor busy(w);
  dirty = true;
  settextf(picker.field, picker.name());
  say("name_put", {part_name(picker.editor.part, Name(picker.name())).c_str()});
}

void show_picked(const Picker& picker, Name name) {
  if (!picker.exists(name)) return say("not_in_list", {part_name(picker.editor.part, name).c_str()});
  picker.show(name);
}

void go_to_picked(const Picker& picker, const std::string& name) {
  list_select(picker.editor.list(), name);
  show_picked(picker, name);
  offer_text(picker.editor.name_field());
}

void remove_picked(Widget w, const Picker& picker) {
  const std::string name = picker.name();
  if (name.empty()) return say("no_name");
  const std::string part = part_name(picker.editor.part, Name(name));
  if (check_builtin_name(name, picker.builtin_kind)) return say("predefined", {part.c_str()});
  const BusyCursor busy(w);
  if (!picker.editor.names.has(name)) return say("not_of_family", {part.c_str()});
  list_delete(picker.editor.list(), name);
  picker.editor.names.remove(name);
}

}  // namespace vqc::editors
