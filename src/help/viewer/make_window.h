#ifndef HELP_VIEWER_MAKE_WINDOW_H
#define HELP_VIEWER_MAKE_WINDOW_H

// The widgets of the help viewer's window, and what they call.

#include <X11/Intrinsic.h>

namespace help {

/// Makes the window; it is not shown yet.
void make_window(Display* display);

}  // namespace help

#endif
