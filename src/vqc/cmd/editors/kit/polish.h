#ifndef VQC_CMD_EDITORS_KIT_POLISH_H
#define VQC_CMD_EDITORS_KIT_POLISH_H

// What the toolkit leaves rough in a dialog.

#include <Xm/Xm.h>

namespace vqc::editors {

/// Gives a dialog or menu, and all that it holds, what the toolkit leaves rough. The text cursor shows in the field
/// that has the keyboard alone. Buttons keep one size, at least as wide as their resource "minimumWidth" says; arrows
/// are whole, shortcuts in menus not bold; Tab follows the columns of file boxes.
void polish(Widget dialog);

}  // namespace vqc::editors

#endif
