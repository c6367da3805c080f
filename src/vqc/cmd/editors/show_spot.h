#ifndef VQC_CMD_EDITORS_SHOW_SPOT_H
#define VQC_CMD_EDITORS_SHOW_SPOT_H

// Takes the user to a place in the document.

#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// Opens the window that shows a part of the document, selects the record in its list, and puts the keyboard into the
/// field that the spot names. A record opens in the family that the spot names, else in the first that has it. False,
/// with the reason in the status line, where nothing can show it.
bool show_spot(const Spot& spot);

}  // namespace vqc::editors

#endif
