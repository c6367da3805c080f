#ifndef VQC_CMD_EDITORS_KIT_WIDGETS_H
#define VQC_CMD_EDITORS_KIT_WIDGETS_H

// What the toolkit has to be asked in several steps about a widget, or about a key.

#include <Xm/Xm.h>

#include <span>
#include <string>

namespace vqc::editors {

/// The innermost shell that a widget is in, or is; null for none.
Widget shell_around(Widget w);

/// The shell of the window that a widget is in, which may be in a menu of it.
Widget window_around(Widget w);

/// The children of a widget, in their order; none of one that cannot have any.
std::span<const Widget> children_of(Widget w);

/// Whether a widget is a menu, with a shell of its own.
bool is_menu(Widget w);

/// Whether a widget, which may be null, is a text field or a text widget. The toolkit's functions for texts serve both.
bool is_text(Widget w);
/// The characters in it, as the locale encodes them.
std::string characters_in(Widget text);
void set_characters(Widget text, std::string characters);

/// The key that is pressed; NoSymbol where Shift, Ctrl or Alt is held.
KeySym plain_key(XEvent* event);

}  // namespace vqc::editors

#endif
