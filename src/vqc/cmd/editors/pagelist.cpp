// The page editor, which picks a resource page.

#include "vqc/cmd/editors/pagelist.h"

#include <Xm/ArrowB.h>
#include <Xm/DialogS.h>
#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/TextF.h>

#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/kit/status_line.h"

namespace vqc::editors {

namespace {

enum Slot { SHELL, BOX, SEARCH, SLOTS };

// clang-format off
const WidgetRow shell_rows[] = {{"pageedit_dialog", XmCreateDialogShell, nullptr, {}, SHELL}};

const WidgetRow work_rows[] = {
    {"search_row",          create_form,         "pageedit_work_area"},
    {"pageedit_search",     XmCreateTextField,   "search_row", {}, SEARCH},
    {"pageedit_search_l",   XmCreateLabel,       "search_row"},
    {"pageedit_up_arrow",   XmCreateArrowButton, "pageedit_work_area", on_press(pagelist_do_up)},
    {"pageedit_down_arrow", XmCreateArrowButton, "pageedit_work_area", on_press(pagelist_do_down)},
    {"pageedit_updateb",    XmCreatePushButton,  "pageedit_work_area", on_press(pagelist_do_add)},
    {"pageedit_removeb",    XmCreatePushButton,  "pageedit_work_area", on_press(pagelist_do_delete)},
};
// clang-format on

const ListPage pages = {.name = "pageedit",
                        .parent = "pageedit_dialog",
                        .slot = BOX,
                        .topic = "vqc_page_edit",
                        .apply = pagelist_do_apply,
                        .cancel = pagelist_do_hide,
                        .select = pagelist_do_display,
                        .form = "pageedit_work_area",
                        .has_status_line = true,
                        .rows = work_rows};

}  // namespace

Widget* create_pageedit_dialog(Widget parent) {
  Widget* record = build_dialog(parent, {part(shell_rows), list_page(pages)}, SLOTS);
  if (record) search_picker<page_picker>(record[SEARCH]);
  return record;
}

Picker page_picker{
    .editor = {.part = Part::page,
               .dialog = pageedit_dialog,
               .box_slot = BOX,
               .names = names_to_pick<page_kind, page_pool>()},
    .create = create_pageedit_dialog,
    .exists = [](Name name) { return page_ptr(name) != nullptr; },
    .show = [](Name name) { page_setcurrent(page_ptr(name)); },
    .builtin_kind = BUILTIN_PAGE,
};

void pagelist_do_add(Widget w, XtPointer, XtPointer) {
  const std::string name = page_picker.name();
  if (name.empty()) return say("no_name");
  const BusyCursor busy(w);
  page_into_family(name);
}

void current_page_changed(PageDef* page) { settextf(page_picker.editor.name_field(), page ? page->name : Text()); }

}  // namespace vqc::editors
