#ifndef VQC_CMD_EDITORS_ABOUTDLG_H
#define VQC_CMD_EDITORS_ABOUTDLG_H

// The box that says which version of the program this is.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* about_dialog = nullptr;

Widget* create_about_dialog(Widget parent);
inline void delete_about_dialog(Widget* record) { delete_dialog(record); }

void about_do_show(Widget w, XtPointer, XtPointer);
void about_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
