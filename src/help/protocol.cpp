// Reads the properties through which the help viewer and its client speak.

#include "help/protocol.h"

#include <X11/Xatom.h>

#include <cstring>

namespace help {

XData read_property(Display* display, Window window, Atom name, Atom type, int format, long length) {
  Atom found_type = None;
  int found_format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  const int status = XGetWindowProperty(display, window, name, 0, length, False, type, &found_type, &found_format,
                                        &count, &rest, &data);
  XData result(data);
  const bool sound = status == Success && found_type == type && found_format == format && count > 0;
  return sound ? std::move(result) : nullptr;
}

Window read_announcement(Display* display, Window client) {
  const Atom name = XInternAtom(display, kAnnouncement, False);
  const XData data = read_property(display, client, name, XA_WINDOW, 32, 1);
  Window viewer = None;
  if (data) std::memcpy(&viewer, data.get(), sizeof viewer);
  return viewer;
}

}  // namespace help
