#ifndef VQC_CMD_EDITORS_PROGRAM_SESSION_H
#define VQC_CMD_EDITORS_PROGRAM_SESSION_H

// A session with the user, from the display to the end.

#include <X11/Intrinsic.h>

namespace vqc::editors {

/// The connection to the display; null when none could be opened.
inline Display* display = nullptr;

/// Connects to the display if there is one, and takes the toolkit's own options from the command line. Returns the
/// message that a session would have to end with, or null.
const char* open_display(int* argc, char** argv);

/// Makes and shows the main window and loads the document of the command line. False when the window cannot be made.
bool start_session(int argc, char** argv);

/// Serves the user until the session ends.
[[noreturn]] void serve_user();

}  // namespace vqc::editors

#endif
