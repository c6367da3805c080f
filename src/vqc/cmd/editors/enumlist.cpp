// The page of a family's enumerations.

#include "vqc/cmd/editors/enumlist.h"

#include <Xm/Separator.h>

#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/enumedit.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"

namespace vqc::editors {

namespace {

const WidgetRow separator_rows[] = {{"separator5", XmCreateSeparator, "enumlist_selection"}};

const ListPage enumerations = {.name = "enumlist",
                               .parent = "entity_view_form",
                               .slot = ENUMLIST_BOX,
                               .topic = "vqc_enums",
                               .ok = enumlist_do_edit,
                               .apply = enumlist_do_add,
                               .cancel = enumlist_do_delete,
                               .select = enumlist_do_select,
                               .type = do_type<enumlist_editor>,
                               .quit = entity_do_hide,
                               .rows = separator_rows};

void select_enum(Name name) { enumlist_setcurrent(enumlist_ptr(family_getcurrent(), name)); }

void enum_added(Name name) {
  if (!enumlist_getcurrent()) select_enum(name);
}

void edit_enum(Name name) {
  select_enum(name);
  enumedit_show();
}

}  // namespace

DialogPart enumlist_page() { return list_page(enumerations); }

ListEditor enumlist_editor{.part = Part::enumeration,
                           .dialog = entity_dialog,
                           .box_slot = ENUMLIST_BOX,
                           .names = names_in_family<enum_kind>(),
                           .added = enum_added,
                           .accepted = edit_enum,
                           .selected = select_enum};

void current_enum_changed(Reference<EnumDef>* element) {
  if (!element) enumlist_editor.clear_name();
  enumedit_setenum(element);
}

}  // namespace vqc::editors
