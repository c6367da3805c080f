#ifndef VQC_CMD_EDITORS_RECOVERY_H
#define VQC_CMD_EDITORS_RECOVERY_H

// The question what becomes of the state that a session has left which did not end well.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* recovery_dialog = nullptr;

Widget* create_recovery_dialog(Widget parent);
inline void delete_recovery_dialog(Widget* record) { delete_dialog(record); }

/// Asks, if a session has left anything that is not in its document's file: one on the document that is open, or, while
/// none is, on any.
void offer_recovery();

void recovery_do_restore(Widget w, XtPointer, XtPointer);
void recovery_do_discard(Widget w, XtPointer, XtPointer);
void recovery_do_later(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
