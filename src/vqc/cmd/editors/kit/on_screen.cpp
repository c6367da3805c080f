// Asks the X server where windows are.

#include "vqc/cmd/editors/kit/on_screen.h"

#include <X11/Xatom.h>
#include <Xm/List.h>

#include <memory>

#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

ScreenArea area_on_root(Display* display, Window window) {
  XWindowAttributes attributes{};
  Window child = None;
  ScreenArea area;
  if (!XGetWindowAttributes(display, window, &attributes)) return area;
  XTranslateCoordinates(display, window, attributes.root, 0, 0, &area.x, &area.y, &child);
  area.width = attributes.width;
  area.height = attributes.height;
  return area;
}

/// The window that the window manager has put around this one, or it itself.
Window frame_window(Display* display, Window window) {
  Window root = None;
  Window parent = None;
  Window* children = nullptr;
  unsigned count = 0;
  while (XQueryTree(display, window, &root, &parent, &children, &count)) {
    if (children) XFree(children);
    if (parent == root || parent == None) break;
    window = parent;
  }
  return window;
}

/// The first list that can be seen in a window.
Widget list_in(Widget w) {
  if (XmIsList(w)) return is_shown(w) ? w : nullptr;
  for (Widget child : children_of(w)) {
    if (Widget list = list_in(child)) return list;
  }
  return nullptr;
}

}  // namespace

ScreenArea screen_of(Widget w) { return {0, 0, XWidthOfScreen(XtScreen(w)), XHeightOfScreen(XtScreen(w))}; }

ScreenArea free_screen(Widget w) {
  const ScreenArea screen = screen_of(w);
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(XtDisplay(w), RootWindowOfScreen(XtScreen(w)), XInternAtom(XtDisplay(w), "_NET_WORKAREA", False),
                     0, 4, False, XA_CARDINAL, &type, &format, &count, &rest, &data);
  const std::unique_ptr<unsigned char, int (*)(void*)> owner(data, XFree);
  if (format != 32 || count != 4) return screen;
  const long* part = reinterpret_cast<const long*>(data);
  const ScreenArea free = {static_cast<int>(part[0]), static_cast<int>(part[1]), static_cast<int>(part[2]),
                           static_cast<int>(part[3])};
  return overlap(free, screen) > 0 ? free : screen;
}

ScreenArea window_area(Widget w) { return area_on_root(XtDisplay(w), XtWindow(w)); }

ScreenArea frame_of(Widget shell) {
  return area_on_root(XtDisplay(shell), frame_window(XtDisplay(shell), XtWindow(shell)));
}

bool is_shown(Widget w) {
  XWindowAttributes attributes{};
  return w && XtIsRealized(w) && XGetWindowAttributes(XtDisplay(w), XtWindow(w), &attributes) &&
         attributes.map_state == IsViewable;
}

Neighbour neighbour(Widget shell) {
  const ScreenArea frame = frame_of(shell);
  const ScreenArea inside = window_area(shell);
  Widget list = list_in(shell);
  return {frame, {frame.x, frame.y, frame.width, inside.y - frame.y}, list ? window_area(list) : ScreenArea{}};
}

}  // namespace vqc::editors
