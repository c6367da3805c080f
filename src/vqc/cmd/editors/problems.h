#ifndef VQC_CMD_EDITORS_PROBLEMS_H
#define VQC_CMD_EDITORS_PROBLEMS_H

// The window with what is wrong with the document.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* problems_dialog = nullptr;
Widget* create_problems_dialog(Widget parent);
inline void delete_problems_dialog(Widget* record) { delete_dialog(record); }

/// Shows the window.
void problems_do_popup(Widget w, XtPointer, XtPointer);

// What its list and its buttons do: go where a problem is, and say what it means.
void problems_do_go(Widget w, XtPointer, XtPointer);
void problems_do_explain(Widget w, XtPointer, XtPointer);
void problems_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
