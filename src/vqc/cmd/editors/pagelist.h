#ifndef VQC_CMD_EDITORS_PAGELIST_H
#define VQC_CMD_EDITORS_PAGELIST_H

// The page editor, which picks a resource page.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/picker.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* pageedit_dialog = nullptr;

Widget* create_pageedit_dialog(Widget parent);
inline void delete_pageedit_dialog(Widget* record) { delete_dialog(record); }

extern Picker page_picker;

inline void pagedlg_set_initial_state(Widget field, Widget parent, bool (*has_target)()) {
  open_picker(page_picker, field, parent, has_target);
}
inline int pagelist_display() { return show_all_names(page_picker); }

inline constexpr XtCallbackProc pagelist_do_apply = do_apply<page_picker>;
inline constexpr XtCallbackProc pagelist_do_hide = do_hide<page_picker>;
inline constexpr XtCallbackProc pagelist_do_display = do_show<page_picker>;
inline constexpr XtCallbackProc pagelist_do_delete = do_remove<page_picker>;
inline constexpr XtCallbackProc pagelist_do_up = do_picker_up<page_picker>;
inline constexpr XtCallbackProc pagelist_do_down = do_picker_down<page_picker>;
void pagelist_do_add(Widget w, XtPointer, XtPointer);

/// Gives the current family, if there is one, a page of that name.
inline void page_into_family(Name name) { name_into_family(page_picker, name); }

/// Hears that another page, or none, is current now.
void current_page_changed(PageDef* page);

}  // namespace vqc::editors

#endif
