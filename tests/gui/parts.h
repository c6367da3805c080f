#ifndef GUI_PARTS_H
#define GUI_PARTS_H

#include <string>

#include "gui/session.h"

using namespace vqc;

// The parts of compound widgets.

/// The list of that name, or the one in the selection box of that name.
Widget list_in(const std::string& list_or_box);
/// The text field of that name, or the name field of the selection box of that name.
Widget field_in(const std::string& field_or_box);
/// Calls a function for a widget and all that there is below it.
void for_each_below(Widget w, const std::function<void(Widget)>& function);
/// Whether a realised widget's window is on the screen.
bool is_window_viewable(Widget w);

#endif
