#ifndef VQC_CMD_EDITORS_RENAME_H
#define VQC_CMD_EDITORS_RENAME_H

// The dialog that gives something another name, wherever it is named.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* rename_dialog = nullptr;

Widget* create_rename_dialog(Widget parent);
inline void delete_rename_dialog(Widget* record) { delete_dialog(record); }

/// Asks for another name for what has been chosen in the window of `w`.
void rename_do_popup(Widget w, XtPointer, XtPointer);
/// Gives it the name that has been typed, and closes the dialog; or says why that cannot be.
void rename_do_apply(Widget w, XtPointer, XtPointer);
void rename_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
