#ifndef VQC_CMD_EDITORS_POPUPLIST_H
#define VQC_CMD_EDITORS_POPUPLIST_H

// The popup editor, which picks a resource popup and edits the procedures of those that are not predefined.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/picker.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* popupedit_dialog = nullptr;

Widget* create_popupedit_dialog(Widget parent);
inline void delete_popupedit_dialog(Widget* record) { delete_dialog(record); }

extern Picker popup_picker;

inline void popupdlg_set_initial_state(Widget field, Widget parent, bool (*has_target)()) {
  open_picker(popup_picker, field, parent, has_target);
}
inline int popuplist_display() { return show_all_names(popup_picker); }

inline constexpr XtCallbackProc popuplist_do_apply = do_apply<popup_picker>;
inline constexpr XtCallbackProc popuplist_do_hide = do_hide<popup_picker>;
inline constexpr XtCallbackProc popuplist_do_display = do_show<popup_picker>;
inline constexpr XtCallbackProc popuplist_do_delete = do_remove<popup_picker>;
/// Adds the popup to the family and stores its procedures. What is typed over a predefined popup is taken back.
void popuplist_do_add(Widget w, XtPointer, XtPointer);

/// The field that a word of a popup gives; null for none.
Widget popupedit_field(Kw word);

/// Hears that another popup, or none, is current now.
void current_popup_changed(PopupDef* popup);

}  // namespace vqc::editors

#endif
