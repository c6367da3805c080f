#ifndef SUPPORT_WINDOWS_H
#define SUPPORT_WINDOWS_H

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

// The windows of a display, whoever they belong to.

/// What a property of a window holds, of format 8 or of windows; nothing when it is of neither.
inline std::string property_bytes(Display* display, Window window, const char* name, Atom wanted, int format) {
  Atom type = None;
  int found_format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  const int status = XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, 4096, False, wanted,
                                        &type, &found_format, &count, &rest, &data);
  const std::unique_ptr<unsigned char, int (*)(void*)> owner(data, XFree);
  if (status != Success || found_format != format) return "";
  const std::size_t size = format == 32 ? sizeof(long) : 1;  // that is how Xlib hands it over
  return {reinterpret_cast<const char*>(data), count * size};
}

/// What a property of format 8 holds; "" when there is none.
inline std::string property(Display* display, Window window, const char* name) {
  return property_bytes(display, window, name, AnyPropertyType, 8);
}

/// The title of a window.
inline std::string title_of(Display* display, Window window) { return property(display, window, "_NET_WM_NAME"); }

/// The viewer's window that is announced on the window of its client; None when there is none.
inline Window announced_on(Display* display, Window client) {
  const std::string bytes = property_bytes(display, client, "VQHELP_WIN", XA_WINDOW, 32);
  Window viewer = None;
  if (bytes.size() == sizeof viewer) std::memcpy(&viewer, bytes.data(), sizeof viewer);
  return viewer;
}

/// Whether a window is on the screen.
inline bool is_viewable(Display* display, Window window) {
  XWindowAttributes attributes{};
  return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsViewable;
}

/// A window's place among others.
struct Relatives {
  Window parent = None;
  std::vector<Window> children;  // the lowest first
};

inline Relatives relatives(Display* display, Window window) {
  Window root = None;
  Window parent = None;
  Window* children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display, window, &root, &parent, &children, &count)) return {};
  Relatives result{parent, {children, children + count}};
  if (children) XFree(children);
  return result;
}

/// The window that is a child of the root and holds this one.
inline Window frame_of(Display* display, Window window) {
  const Window root = DefaultRootWindow(display);
  Window frame = window;
  while (window != root && window != None) {
    frame = window;
    window = relatives(display, frame).parent;
  }
  return window == root ? frame : None;
}

/// Whether a window is above another, with the frames that the window manager has put them in.
inline bool is_above(Display* display, Window upper, Window lower) {
  const std::vector<Window> frames = relatives(display, DefaultRootWindow(display)).children;
  const auto above = std::ranges::find(frames, frame_of(display, upper));
  return above != frames.end() && above > std::ranges::find(frames, frame_of(display, lower));
}

/// Closes a window as the window manager does.
inline void close_by_manager(Display* display, Window window) {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  event.xclient.data.l[1] = CurrentTime;
  XSendEvent(display, window, False, NoEventMask, &event);
  XSync(display, False);
}

#endif
