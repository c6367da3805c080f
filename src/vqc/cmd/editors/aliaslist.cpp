// The page of a family's type aliases.

#include "vqc/cmd/editors/aliaslist.h"

#include <Xm/Label.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/kit/part_names.h"
#include "vqc/cmd/editors/kit/status_line.h"
#include "vqc/cmd/editors/kit/unapplied.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow field_rows[] = {
    {"aliaslist_to_name",   XmCreateTextField, "aliaslist_name_form", {}, ALIASLIST_TO_NAME},
    {"aliaslist_to_name_l", XmCreateLabel,     "aliaslist_name_form"},
    {"aliaslist_not_applied", create_unapplied_note,   "aliaslist_name_form", {}, ALIASLIST_NOT_APPLIED},
};
// clang-format on

const ListPage aliases = {.name = "aliaslist",
                          .parent = "entity_view_form",
                          .slot = ALIASLIST_BOX,
                          .topic = "vqc_aliases",
                          .ok = aliaslist_do_update,
                          .apply = aliaslist_do_add,
                          .cancel = aliaslist_do_delete,
                          .select = aliaslist_do_display,
                          .type = do_type<aliaslist_editor>,
                          .quit = entity_do_hide,
                          .form = "aliaslist_name_form",
                          .rows = field_rows};

Widget to_name_field() { return entity_dialog[ALIASLIST_TO_NAME]; }

/// An alias that another family has given its meaning keeps it.
void alias_added(Name name) {
  AliasDef* alias = alias_ptr(name);
  if (!alias->to_name) {
    gettextf(to_name_field(), &alias->to_name);
    note_applied(to_name_field());
  }
  settextf(to_name_field(), alias->to_name);
}

void update_alias(Name name) {
  say_unless_changed("nothing_changed", {part_name(Part::alias, name).c_str()});
  dirty = true;
  gettextf(to_name_field(), &alias_ptr(name)->to_name);
  note_applied(to_name_field());
}

void select_alias(Name name) {
  if (auto* element = aliaslist_ptr(family_getcurrent(), name)) aliaslist_setcurrent(element);
}

}  // namespace

DialogPart aliaslist_page() { return list_page(aliases); }

void watch_aliaslist(Widget* record) { watch_fields({record[ALIASLIST_TO_NAME]}, record[ALIASLIST_NOT_APPLIED]); }

ListEditor aliaslist_editor{.part = Part::alias,
                            .dialog = entity_dialog,
                            .box_slot = ALIASLIST_BOX,
                            .names = names_in_family<alias_kind>(),
                            .added = alias_added,
                            .accepted = update_alias,
                            .selected = select_alias};

Widget aliaslist_field(Kw word) { return word == Kw::to_name ? to_name_field() : nullptr; }

void current_alias_changed(Reference<AliasDef>* element) {
  if (!entity_dialog) return;
  if (!element) aliaslist_editor.clear_name();
  settextf(to_name_field(), element ? element->record->to_name : Text());
}

}  // namespace vqc::editors
