#ifndef HELP_PROTOCOL_H
#define HELP_PROTOCOL_H

// What the help viewer and the program that it serves, its client, say to each other through two properties.

#include <X11/Xlib.h>

#include <memory>

namespace help {

/// On the client's window, of type WINDOW: the viewer's window. The viewer announces itself by it.
inline constexpr const char* kAnnouncement = "VQHELP_WIN";

/// On the viewer's window, of type STRING and with its NUL: the path of a page to show, or kQuit.
inline constexpr const char* kRequest = "VQHELP_DEST";

/// The request that ends the viewer.
inline constexpr const char* kQuit = "*** QUIT HELP SYSTEM";

struct XDeleter {
  void operator()(unsigned char* data) const { XFree(data); }
};
using XData = std::unique_ptr<unsigned char, XDeleter>;

/// What a property of a window holds, or its first `length` units of four bytes, with a NUL behind it; null when it
/// holds nothing of that type and format.
XData read_property(Display* display, Window window, Atom name, Atom type, int format, long length);

/// The viewer's window that is announced on the client's; None when there is none.
Window read_announcement(Display* display, Window client);

}  // namespace help

#endif
