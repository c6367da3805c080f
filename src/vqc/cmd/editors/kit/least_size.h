#ifndef VQC_CMD_EDITORS_KIT_LEAST_SIZE_H
#define VQC_CMD_EDITORS_KIT_LEAST_SIZE_H

// The size below which a window cannot be used.

#include <Xm/Xm.h>

#include "vqc/cmd/editors/kit/screen_area.h"

namespace vqc::editors {

/// Lays out what a window holds before it is shown, and gives its shell the least size at which all buttons and fields
/// can be used: lists may shrink to a few rows, nothing else may. Returns the size that the window has then.
ScreenArea lay_out_contents(Widget contents);

}  // namespace vqc::editors

#endif
