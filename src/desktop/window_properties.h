#ifndef DESKTOP_WINDOW_PROPERTIES_H
#define DESKTOP_WINDOW_PROPERTIES_H

#include <X11/Intrinsic.h>

#include <string>

namespace vqc {

/// From now on each window of the program tells the desktop what it is: its title in UTF-8 whatever the locale, also
/// when it changes, its process, its kind, and a role by which it is known in the next session.
void describe_windows(Display* display);

/// Gives the window of a realized shell a title that the locale may have no characters for. It stays until a resource
/// of the shell is set.
void describe_title(Widget shell, const std::string& utf8_title);

}  // namespace vqc

#endif
