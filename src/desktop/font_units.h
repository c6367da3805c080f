#ifndef DESKTOP_FONT_UNITS_H
#define DESKTOP_FONT_UNITS_H

#include <X11/Intrinsic.h>

namespace vqc {

/// Makes the toolkit's font unit the height of a line of text in the program's font, so that distances and sizes that
/// resources state in it follow the font wherever that takes its resolution from. Call it before the shell has anything
/// else in it.
void set_font_unit(Widget shell);

}  // namespace vqc

#endif
