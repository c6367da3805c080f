#ifndef VQC_CMD_EDITORS_SESSION_HISTORY_H
#define VQC_CMD_EDITORS_SESSION_HISTORY_H

// Undo and redo of whatever the user has done to the document, in any window.

#include <Xm/Xm.h>

#include <memory>
#include <string>

#include "vqc/cmd/history/state.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// Begins with the document as it is.
void begin_history();
/// Takes note of what the user has done, be it nothing.
void note_action();
/// The document has been read from its file, or is new: it says what the file says, from the next action noted.
void note_loading();
/// What the user calls what he is doing, where that does not follow from what changes.
void name_step(std::string name);
/// A thing has another name now: fills the windows from the document, with what was selected in them.
void show_renamed(const Spot& thing, const std::string& name);
/// Things have been changed that other windows show: fills those in the same way.
void show_changed();
/// The document has been saved.
void note_saving();

/// What the document said at the last note; null before there is a history. It is the same as long as nothing changes.
std::shared_ptr<const State> document_state();

void undo_do(Widget w, XtPointer, XtPointer);
void redo_do(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
