#ifndef VQC_CMD_EDITORS_KIT_FONT_UNITS_H
#define VQC_CMD_EDITORS_KIT_FONT_UNITS_H

#include <Xm/Xm.h>

/// Makes the toolkit's font unit the height of a line of text in the program's font, so that distances and sizes that
/// resources state in it follow the font wherever that takes its resolution from.
void measure_font(Widget shell);

#endif
