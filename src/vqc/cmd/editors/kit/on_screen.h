#ifndef VQC_CMD_EDITORS_KIT_ON_SCREEN_H
#define VQC_CMD_EDITORS_KIT_ON_SCREEN_H

// Where windows are on the screen, as the server knows it.

#include <Xm/Xm.h>

#include "vqc/cmd/editors/kit/beside.h"

namespace vqc::editors {

/// The screen that a widget is on, and the part of it that panels leave free.
ScreenArea screen_of(Widget w);
ScreenArea free_screen(Widget w);

/// Whether the window of a widget, which may be null, can be seen.
bool is_shown(Widget w);

/// Where the window of a widget is, and the frame that the window manager has put around a shell.
ScreenArea window_area(Widget w);
ScreenArea frame_of(Widget shell);

/// A shell with its title and its list.
Neighbour neighbour(Widget shell);

}  // namespace vqc::editors

#endif
