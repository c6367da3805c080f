#ifndef VQC_CMD_EDITORS_ENUMEDIT_H
#define VQC_CMD_EDITORS_ENUMEDIT_H

// The enumeration editor: the type and the entries of the family's current enumeration.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* enumedit_dialog = nullptr;

Widget* create_enumedit_dialog(Widget parent);
inline void delete_enumedit_dialog(Widget* record) { delete_dialog(record); }

/// Shows the dialog, made when it is first needed.
void enumedit_show();
void enumedit_do_hide(Widget w, XtPointer, XtPointer);

/// Fills the dialog, if there is one, from an enumeration; null empties it.
void enumedit_setenum(const Reference<EnumDef>* element);

/// The field that a word of an enumeration or of its entries gives; null for none.
Widget enumedit_field(Kw word);

extern ListEditor enumentry_editor;
inline constexpr XtCallbackProc enumentry_do_add = do_add<enumentry_editor>;
inline constexpr XtCallbackProc enumentry_do_delete = do_delete<enumentry_editor>;
inline constexpr XtCallbackProc enumentry_do_display = do_select<enumentry_editor>;
inline constexpr XtCallbackProc enumentry_do_up = do_up<enumentry_editor>;
inline constexpr XtCallbackProc enumentry_do_down = do_down<enumentry_editor>;

/// Stores the type of the enumeration, even if no entry is named, and then the named entry.
void enumentry_do_update(Widget w, XtPointer, XtPointer call);

}  // namespace vqc::editors

#endif
