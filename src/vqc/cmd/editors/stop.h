#ifndef VQC_CMD_EDITORS_STOP_H
#define VQC_CMD_EDITORS_STOP_H

// The stop list dialog: a toggle for each widget class that can be left out.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* stop_list_shell = nullptr;

Widget* create_stop_list_shell(Widget parent);
inline void delete_stop_list_shell(Widget* record) { delete_dialog(record); }

void stoplist_do_popup(Widget w, XtPointer, XtPointer);
void stop_list_do_apply(Widget w, XtPointer, XtPointer);
void stop_list_do_popdown(Widget w, XtPointer, XtPointer);

/// Sets the document's stop list; null for none.
void stop_list_set(Name classes);
inline void stop_list_free() { stop_list_set(nullptr); }
/// Sets the toggles, if there are any, from the document's stop list.
void show_stop_list();

}  // namespace vqc::editors

#endif
