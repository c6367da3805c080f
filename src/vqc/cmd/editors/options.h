#ifndef VQC_CMD_EDITORS_OPTIONS_H
#define VQC_CMD_EDITORS_OPTIONS_H

// The dialog of the document's names for the generated tables. None of this marks the document as changed.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* options_shell = nullptr;

Widget* create_options_shell(Widget parent);
inline void delete_options_shell(Widget* record) { delete_dialog(record); }

/// Opens it from the main window's menu.
void genopt_do_popup(Widget w, XtPointer, XtPointer);
/// Fills the dialog, made when it is first needed, and shows it.
void options_popup(Widget parent);

/// Shows the names that hold, and sets the switches as the user's resources say. Nothing while there is no dialog.
void options_dialog_load();
/// Takes the document's own names back, and shows what holds without them.
void options_dialog_reset();

/// The field that a word of a document's header gives; null for none.
Widget options_field(Kw word);

void options_ok_callback(Widget w, XtPointer, XtPointer);
void options_reset_callback(Widget w, XtPointer, XtPointer);
void options_cancel_callback(Widget w, XtPointer, XtPointer);
void options_help_callback(Widget w, XtPointer, XtPointer);
void options_comment_changed_callback(Widget w, XtPointer, XtPointer);
void options_verbose_changed_callback(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
