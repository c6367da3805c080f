#include "vqc/cmd/editors/picker.h"

#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/builtin.h"

Text Picker::name() const { return gettextf(editor.name_field()); }

void open_picker(Picker& picker, Widget field, Widget parent) {
  picker.field = field;
  if (!made(picker.editor.dialog, picker.create, parent)) return;
  show_all_names(picker);
  picker.show(gettextf(field));
  show_dialog(picker.editor.box());
  offer_text(picker.editor.name_field());
}

int show_all_names(const Picker& picker) {
  if (!picker.editor.dialog) return 0;
  list_show(picker.editor.list(), picker.editor.names.names());
  picker.show(nullptr);
  return 1;
}

void name_into_family(const Picker& picker, const Text& name) {
  const ListEditor& editor = picker.editor;
  if (editor.names.has(name) || editor.names.add(name) != 0 || !editor.dialog) return;
  if (list_position(editor.list(), name) == 0) list_insert(editor.list(), name, editor.names.position(name));
}

void apply_picked(Widget w, const Picker& picker) {
  if (!family_getcurrent()) return;
  const BusyCursor busy(w);
  dirty = true;
  settextf(picker.field, picker.name());
}

void show_picked(const Picker& picker, const Text& name) {
  if (picker.exists(name)) picker.show(name);
}

void remove_picked(Widget w, const Picker& picker) {
  const Text name = picker.name();
  if (name.empty() || check_builtin_name(name, picker.builtin_kind)) return;
  const BusyCursor busy(w);
  if (!picker.editor.names.has(name)) return;
  list_delete(picker.editor.list(), name);
  picker.editor.names.remove(name);
}
