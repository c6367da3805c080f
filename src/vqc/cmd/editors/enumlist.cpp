#include "vqc/cmd/editors/enumlist.h"

#include "vqc/cmd/editors/dialogs/entity_dialog.h"
#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/model/enumlist.h"

namespace {

void select_enum(const Text& name) { enumlist_setcurrent(enumlist_ptr(family_getcurrent(), name)); }

void enum_added(const Text& name) {
  if (!enumlist_getcurrent()) select_enum(name);
}

void edit_enum(const Text& name) {
  select_enum(name);
  enumedit_show();
}

}  // namespace

ListEditor enumlist_editor{.dialog = entity_dialog,
                           .box_slot = ENUMLIST_BOX,
                           .names = names_in_family<enum_kind>(),
                           .added = enum_added,
                           .accepted = edit_enum,
                           .selected = select_enum};

void current_enum_changed(Reference<EnumDef>* element) {
  if (!element) enumlist_editor.clear_name();
  enumedit_setenum(element);
}
