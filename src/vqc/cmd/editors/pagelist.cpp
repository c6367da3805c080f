#include "vqc/cmd/editors/pagelist.h"

#include "vqc/cmd/editors/dialogs/pageedit_dialog.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/page.h"

Picker page_picker{
    .editor = {.dialog = pageedit_dialog, .box_slot = PAGEEDIT_BOX, .names = names_to_pick<page_kind, page_pool>()},
    .create = create_pageedit_dialog,
    .exists = [](const Text& name) { return page_ptr(name) != nullptr; },
    .show = [](const Text& name) { page_setcurrent(page_ptr(name)); },
    .builtin_kind = BUILTIN_PAGE,
};

void pagelist_do_add(Widget w, XtPointer, XtPointer) {
  const Text name = page_picker.name();
  if (name.empty()) return;
  const BusyCursor busy(w);
  page_into_family(name);
}

void current_page_changed(PageDef* page) {
  settextf(page_picker.editor.name_field(), page ? page->name.c_str() : nullptr);
}
