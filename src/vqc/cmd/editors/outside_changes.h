#ifndef VQC_CMD_EDITORS_OUTSIDE_CHANGES_H
#define VQC_CMD_EDITORS_OUTSIDE_CHANGES_H

// Files of documents that somebody else changes while they are open.

#include <string>

#include <Xm/Xm.h>

namespace vqc::editors {

/// The session has just read or written a file, and knows what is in it.
void note_file_known(const std::string& path);
/// Whether a file has been changed since then; false for one that the session does not know, and one that is gone.
bool is_changed_outside(const std::string& path);

/// From now on says in the status line, when a window gets the keyboard, that the document's file has been changed.
void watch_for_outside_changes(Display* display);

}  // namespace vqc::editors

#endif
