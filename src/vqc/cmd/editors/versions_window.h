#ifndef VQC_CMD_EDITORS_VERSIONS_WINDOW_H
#define VQC_CMD_EDITORS_VERSIONS_WINDOW_H

// The window of what the document and its generated files held before: what differs from now, and bringing it back.

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* versions_dialog = nullptr;

Widget* create_versions_dialog(Widget parent);
inline void delete_versions_dialog(Widget* record) { delete_dialog(record); }

/// Brings the window up to date, if it is shown.
void refresh_versions();

void versions_do_popup(Widget w, XtPointer, XtPointer);
void versions_do_choose_file(Widget w, XtPointer kind, XtPointer);
void versions_do_select(Widget w, XtPointer, XtPointer);
void versions_do_show(Widget w, XtPointer, XtPointer);
void versions_do_restore(Widget w, XtPointer, XtPointer);
void versions_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
