#ifndef DESKTOP_WHEEL_H
#define DESKTOP_WHEEL_H

#include <X11/Intrinsic.h>

namespace vqc {

/// From now on the mouse wheel scrolls what the pointer is in, wherever in it: over the bars, over what is scrolled, or
/// between that. Turned sideways, or with Shift held, it scrolls sideways.
void scroll_by_wheel(Display* display);

}  // namespace vqc

#endif
