#ifndef VQC_CMD_EDITORS_SAVE_H
#define VQC_CMD_EDITORS_SAVE_H

#include <Xm/Xm.h>

#include "vqc/cmd/editors/file_commands.h"

// Saving the document, and the question whether to save it before it is lost.

void save_do_popup(Widget w, XtPointer, XtPointer);
void saveas_do_popup(Widget w, XtPointer, XtPointer);
/// Saves the document, after asking for a file if it has none.
void really_save_popup();
void do_save(Widget w, XtPointer, XtPointer call);
/// Closes the box that asks for a file, if it is open.
void close_save_dialog();
/// Gives up saving, and with it the operation that waits for it.
void save_do_hide(Widget w, XtPointer, XtPointer);

/// Asks the question; `operation` waits for the answer.
void savechanges_popup(SaveOp operation);
void savechanges_dosave(Widget w, XtPointer, XtPointer);
void savechanges_dodiscard(Widget w, XtPointer, XtPointer);
void savechanges_docancel(Widget w, XtPointer, XtPointer);

#endif
