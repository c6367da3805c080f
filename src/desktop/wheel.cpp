#include "desktop/wheel.h"

#include <X11/StringDefs.h>
#include <Xm/ScrollBar.h>
#include <Xm/Xm.h>

#include <algorithm>

namespace vqc {

namespace {

constexpr int kStepsATurn = 3;

/// Where the wheel is turned to.
struct Turn {
  const char* bar;  // the resource that names the scroll bar
  int direction;
};

bool is_turn(const XButtonEvent& event) { return event.button >= 4 && event.button <= 7; }

/// X knows the wheel as four more buttons: up, down, left and right.
Turn turn_of(const XButtonEvent& event) {
  const bool sideways = event.button >= 6 || (event.state & ShiftMask) != 0;
  return {sideways ? XmNhorizontalScrollBar : XmNverticalScrollBar, event.button % 2 == 0 ? -1 : 1};
}

/// A bar that can be seen. A widget without such a resource leaves the variable alone.
Widget bar_of(Widget w, const char* resource) {
  Widget bar = nullptr;
  XtVaGetValues(w, resource, &bar, nullptr);
  return bar && XtIsManaged(bar) ? bar : nullptr;
}

/// The bar of the innermost widget around `w` that scrolls.
Widget bar_around(Widget w, const char* resource) {
  while (w && !XtIsShell(w)) {
    if (Widget bar = bar_of(w, resource)) return bar;
    w = XtParent(w);
  }
  return nullptr;
}

/// The innermost widget under the pointer. The event may have come up to a window far around it.
Widget under_pointer(const XButtonEvent& event) {
  Window innermost = event.window;
  Window child = event.window;
  int x = 0;
  int y = 0;
  while (child != None) {
    innermost = child;
    if (!XTranslateCoordinates(event.display, event.window, innermost, event.x, event.y, &x, &y, &child)) break;
  }
  return XtWindowToWidget(event.display, innermost);
}

void scroll(Widget bar, int direction) {
  int value = 0;
  int minimum = 0;
  int maximum = 0;
  int slider = 0;
  int step = 0;
  XtVaGetValues(bar, XmNvalue, &value, XmNminimum, &minimum, XmNmaximum, &maximum, XmNsliderSize, &slider, XmNincrement,
                &step, nullptr);
  const int target = std::clamp(value + direction * kStepsATurn * step, minimum, std::max(minimum, maximum - slider));
  if (target != value) XmScrollBarSetValues(bar, target, 0, 0, 0, True);
}

void turn_wheel(const XButtonEvent& event) {
  const Turn turn = turn_of(event);
  Widget bar = bar_around(under_pointer(event), turn.bar);
  if (bar) scroll(bar, turn.direction);
}

XtEventDispatchProc dispatch_press = nullptr;
XtEventDispatchProc dispatch_release = nullptr;

/// No widget is told of the wheel: menus would open, and take it for a choice.
Boolean press(XEvent* event) {
  if (!is_turn(event->xbutton)) return dispatch_press(event);
  turn_wheel(event->xbutton);
  return True;
}

Boolean release(XEvent* event) {
  if (!is_turn(event->xbutton)) return dispatch_release(event);
  return True;
}

void ignore(Widget, XtPointer, XEvent*, Boolean*) {}

/// Motif's managers keep from their parents what they do not ask for themselves: the clip window around what scrolls
/// does not ask for buttons.
void ask_for_buttons(Widget, XtPointer, XtPointer call) {
  Widget w = static_cast<XtCreateHookData>(call)->widget;
  if (XmIsManager(w)) XtAddEventHandler(w, ButtonPressMask | ButtonReleaseMask, False, ignore, nullptr);
}

}  // namespace

void scroll_by_wheel(Display* display) {
  XtAddCallback(XtHooksOfDisplay(display), XtNcreateHook, ask_for_buttons, nullptr);
  dispatch_press = XtSetEventDispatcher(display, ButtonPress, press);
  dispatch_release = XtSetEventDispatcher(display, ButtonRelease, release);
}

}  // namespace vqc
