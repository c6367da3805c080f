#ifndef VQC_CMD_EDITORS_KIT_WINDOW_MEMORY_H
#define VQC_CMD_EDITORS_KIT_WINDOW_MEMORY_H

// Where and how large the user has left windows, over sessions. A file in the user's state folder has a line for each
// window and size of display, such as "1600x1200 entity_dialog 480x495+512+0". No size means that of the contents.

#include <map>
#include <string>

#include "vqc/cmd/editors/kit/screen_area.h"

namespace vqc::editors {

/// Where windows are, by name.
using WindowMemory = std::map<std::string, ScreenArea>;

/// An area as the X Toolkit writes geometries.
std::string geometry_of(const ScreenArea& area);

/// What earlier sessions have left for a display of that size. Whatever cannot be used is left out.
WindowMemory recalled_windows(const ScreenArea& screen);

/// Keeps it for later sessions, beside what is kept of other displays and of windows that are not named. Without a word
/// when that cannot be done.
void keep_windows(const ScreenArea& screen, const WindowMemory& windows);

}  // namespace vqc::editors

#endif
