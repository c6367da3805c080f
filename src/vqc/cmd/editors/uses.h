#ifndef VQC_CMD_EDITORS_USES_H
#define VQC_CMD_EDITORS_USES_H

// The window that lists who uses something.

#include <string>

#include "libkel/text.h"
#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* uses_dialog = nullptr;

Widget* create_uses_dialog(Widget parent);
inline void delete_uses_dialog(Widget* record) { delete_dialog(record); }

/// Who uses a thing, such as "42 resources, 1 family"; empty for nobody.
std::string users_in_words(Part part, Text name);

/// Shows who uses what has been chosen in the window of `w`.
void uses_do_popup(Widget w, XtPointer, XtPointer);
/// Shows the same for the document as it is now, if the window is up.
void refresh_uses();

/// Shows who uses whatever has the name that has been typed.
void uses_do_show(Widget w, XtPointer, XtPointer);
/// Goes to the user that has been clicked, or is selected.
void uses_do_go(Widget w, XtPointer, XtPointer);
void uses_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
