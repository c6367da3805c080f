#ifndef VQC_CMD_EDITORS_GENERATE_ALL_H
#define VQC_CMD_EDITORS_GENERATE_ALL_H

// The window that generates all files of the document at once, and shows first what would become of each.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* genall_dialog = nullptr;

Widget* create_genall_dialog(Widget parent);
inline void delete_genall_dialog(Widget* record) { delete_dialog(record); }

/// Shows what generating would change; says why where it cannot be done.
void genall_do_popup(Widget w, XtPointer, XtPointer);
void genall_do_select(Widget w, XtPointer, XtPointer);
void genall_do_generate(Widget w, XtPointer, XtPointer);
void genall_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
