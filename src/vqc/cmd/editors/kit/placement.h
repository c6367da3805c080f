#ifndef VQC_CMD_EDITORS_KIT_PLACEMENT_H
#define VQC_CMD_EDITORS_KIT_PLACEMENT_H

// Where windows open. A window that the user has moved or resized opens where and how large he has left it; any other
// is placed anew each time, by the window in which the user has just acted.

#include <Xm/Xm.h>

namespace vqc::editors {

/// How a window that nobody has moved lies to that in which the user has acted.
enum class Place { beside, over };

/// Chooses place and size of a dialog that is about to be shown. Its shell has the child `contents`.
void place_dialog(Widget contents, Place place);

/// Realizes the main window, whose shell has the child `contents`, and shows it.
void show_main_window(Widget shell, Widget contents);

/// Keeps for the next session what the user has done to windows.
void keep_places();

}  // namespace vqc::editors

#endif
