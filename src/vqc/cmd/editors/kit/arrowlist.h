#ifndef VQC_CMD_EDITORS_KIT_ARROWLIST_H
#define VQC_CMD_EDITORS_KIT_ARROWLIST_H

// What the arrows beside a list do.

#include <Xm/Xm.h>

#include "vqc/cmd/editors/kit/given_names.h"

namespace vqc::editors {

/// Moves a name of a model list one place; not 0 when it cannot.
using Move = ErrorCode (*)(Name name, bool wrap);

/// Moves the one selected item of `list` a place up or down, the model first. The item stays selected and in sight. At
/// an end it only moves, to the other end, if `wrap`. 0 when nothing has moved, else 1.
int arrowlist_action(Widget list, Move move, bool down, bool wrap);

}  // namespace vqc::editors

#endif
