#ifndef VQC_CMD_EDITORS_GOTO_H
#define VQC_CMD_EDITORS_GOTO_H

// The window that goes to whatever is called like what is typed.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* goto_dialog = nullptr;

Widget* create_goto_dialog(Widget parent);
inline void delete_goto_dialog(Widget* record) { delete_dialog(record); }

void goto_do_popup(Widget w, XtPointer, XtPointer);
/// Goes to the hit that has been clicked, or is selected, and closes the window.
void goto_do_go(Widget w, XtPointer, XtPointer);
void goto_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
