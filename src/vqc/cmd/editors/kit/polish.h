#ifndef VQC_CMD_EDITORS_KIT_POLISH_H
#define VQC_CMD_EDITORS_KIT_POLISH_H

#include <Xm/Xm.h>

/// Gives a dialog and all that it holds what the toolkit does not: the text cursor shows in the field that has the
/// keyboard alone, and a button is at least as wide as its resource "minimumWidth" says.
void polish(Widget dialog);

#endif
