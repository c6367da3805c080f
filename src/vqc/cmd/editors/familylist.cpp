// The main window's list of families.

#include "vqc/cmd/editors/familylist.h"

#include "vqc/cmd/editors/entity.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"

namespace vqc::editors {

namespace {

// clang-format off
const WidgetRow rows[] = {
    {"*ItemsList", find_child, "family_selection", {}, FAMILY_LIST},
    {"ItemsListSW", find_child, "family_selection"},
    {"Text",       find_child, "family_selection", {}, FAMILY_TEXT},
};

const WidgetLink links[] = {
    {"family_selection", XmNcancelButton, nullptr},  // Escape must not delete
    {"family_selection", XmNinitialFocus, "ItemsListSW"},  // Tab comes to it from what stands above
};
// clang-format on

const ListPage families = {.name = "family",
                           .parent = "family_form",
                           .slot = FAMILY_SELECTION,
                           .topic = "vqc_family",
                           .ok = family_do_edit,
                           .apply = family_do_add,
                           .cancel = family_do_delete,
                           .select = family_do_select,
                           .type = do_type<family_editor>,
                           .up = family_do_up,
                           .down = family_do_down,
                           .rows = rows,
                           .links = links};

}  // namespace

DialogPart familylist_page() { return list_page(families); }

ListEditor family_editor{
    .part = Part::family,
    .dialog = family_dialog,
    .box_slot = FAMILY_SELECTION,
    .names = {.has = [](Name name) { return family_ptr(name) != nullptr; },
              .add = family_add,
              .remove = family_delete,
              .position = [](Name name) { return edited_document.families.position(name); },
              .move_up = [](Name name, bool) { return family_move_up(name); },
              .move_down = [](Name name, bool) { return family_move_down(name); },
              .names = names_in_pool<family_pool>,
              .current = name_of_current<family_pool>},
    .added =
        [](Name name) {
          if (!family_getcurrent()) family_setcurrent(family_ptr(name));
          refresh_names(page_picker);  // the first family brings what every family has
          refresh_names(popup_picker);
        },
    .accepted =
        [](Name name) {
          family_setcurrent(family_ptr(name));
          entity_show();
        },
    .selected = [](Name name) { family_setcurrent(family_ptr(name)); },
    .delete_clears_name = true,
};

void family_display() { list_show(family_editor.list(), family_editor.names.names()); }

void current_family_changed(Family* family) {
  if (!family) family_editor.clear_name();
  entity_setfamily(family);
}

}  // namespace vqc::editors
