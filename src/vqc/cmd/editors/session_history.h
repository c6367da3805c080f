#ifndef VQC_CMD_EDITORS_SESSION_HISTORY_H
#define VQC_CMD_EDITORS_SESSION_HISTORY_H

// Undo and redo of whatever the user has done to the document, in any window.

#include <Xm/Xm.h>

namespace vqc::editors {

/// Begins with the document as it is.
void begin_history();
/// Takes note of what the user has done, be it nothing.
void note_action();
/// The document has been read from its file, or is new: it says what the file says, from the next action noted.
void note_loading();
/// The document has been saved.
void note_saving();

void undo_do(Widget w, XtPointer, XtPointer);
void redo_do(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
