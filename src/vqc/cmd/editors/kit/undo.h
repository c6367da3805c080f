#ifndef VQC_CMD_EDITORS_KIT_UNDO_H
#define VQC_CMD_EDITORS_KIT_UNDO_H

// Taking back what has been typed.

#include <Xm/Xm.h>

namespace vqc::editors {

/// From now on remembers what a text field held before the last run of typing or erasing in one place, or before the
/// last text that was pasted or cut. A key that is pressed with Ctrl types nothing.
void watch_typing(Widget field);
/// Forgets it: what the program has written into the field cannot be taken back.
void forget_typing(Widget field);

/// Puts back what is remembered of a field. False when there is nothing to take back.
bool take_back(Widget field);
/// Puts in again what has just been taken back. False when there is nothing of that.
bool type_again(Widget field);

}  // namespace vqc::editors

#endif
