#ifndef VQC_CMD_EDITORS_CHOSEN_SPOT_H
#define VQC_CMD_EDITORS_CHOSEN_SPOT_H

// What the user has chosen in a window, for the commands that do something about it.

#include <Xm/Xm.h>

#include <optional>

#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// What a command means that is given in the window of a widget, which may be in a menu: what the field names that has
/// the keyboard, if it names anything; else the record that the window's buttons would act on. None where nothing is
/// chosen.
std::optional<Spot> chosen_spot(Widget w);

}  // namespace vqc::editors

#endif
