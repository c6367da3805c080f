#include "vqc/cmd/editors/aliaslist.h"

#include "vqc/cmd/editors/dialogs/entity_dialog.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/alias.h"

namespace {

Widget to_name_field() { return entity_dialog[ALIASLIST_TO_NAME]; }

/// An alias that another family has given its meaning keeps it.
void alias_added(const Text& name) {
  AliasDef* alias = alias_ptr(name);
  if (!alias->to_name) gettextf(to_name_field(), &alias->to_name);
  settextf(to_name_field(), alias->to_name);
}

void update_alias(const Text& name) {
  dirty = true;
  gettextf(to_name_field(), &alias_ptr(name)->to_name);
}

void select_alias(const Text& name) {
  if (auto* element = aliaslist_ptr(family_getcurrent(), name)) aliaslist_setcurrent(element);
}

}  // namespace

ListEditor aliaslist_editor{.dialog = entity_dialog,
                            .box_slot = ALIASLIST_BOX,
                            .names = names_in_family<alias_kind>(),
                            .added = alias_added,
                            .accepted = update_alias,
                            .selected = select_alias};

void current_alias_changed(Reference<AliasDef>* element) {
  if (!entity_dialog) return;
  if (!element) aliaslist_editor.clear_name();
  settextf(to_name_field(), element ? element->record->to_name.c_str() : nullptr);
}
