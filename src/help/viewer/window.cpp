// Shows the window of the help viewer, and what stands in it.

#include "help/viewer/window.h"

#include <X11/Xatom.h>
#include <X11/Xutil.h>
#include <Xm/Xm.h>
#include <XmHTML/XmHTML.h>

#include "desktop/window_properties.h"

using namespace vqc;

namespace help {

namespace {

/// Tells the window manager to bring the window to the front, where raising alone does not.
void ask_for_attention() {
  Display* display = XtDisplay(window.shell);
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = XtWindow(window.shell);
  event.xclient.message_type = XInternAtom(display, "_NET_ACTIVE_WINDOW", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = 1;  // it is an application that asks
  event.xclient.data.l[1] = static_cast<long>(XtLastTimestampProcessed(display));
  XSendEvent(display, RootWindowOfScreen(XtScreen(window.shell)), False,
             SubstructureNotifyMask | SubstructureRedirectMask, &event);
}

}  // namespace

void show_window() {
  Display* display = XtDisplay(window.shell);
  XMapRaised(display, XtWindow(window.shell));
  ask_for_attention();
}

Widget find_scroll_bar() {
  Widget bar = nullptr;
  XtVaGetValues(window.page, XmNverticalScrollBar, &bar, nullptr);
  return bar;
}

Widget find_work_window() {
  Widget w = nullptr;
  XtVaGetValues(window.page, XmNworkWindow, &w, nullptr);
  return w;
}

void repaint_page() {
  Widget w = find_work_window();
  XClearArea(XtDisplay(w), XtWindow(w), 0, 0, 0, 0, True);
}

void focus_on_page() { XmProcessTraversal(find_work_window(), XmTRAVERSE_CURRENT); }

void set_title(const std::string& title) {
  Display* display = XtDisplay(window.shell);
  describe_title(window.shell, title);
  char* text = const_cast<char*>(title.c_str());
  XTextProperty name{};
  if (Xutf8TextListToTextProperty(display, &text, 1, XStdICCTextStyle, &name) < 0) return;
  XSetWMName(display, XtWindow(window.shell), &name);
  XSetWMIconName(display, XtWindow(window.shell), &name);
  XFree(name.value);
}

void set_status(const std::string& message) {
  XmString text = XmStringCreateLocalized(const_cast<char*>(message.c_str()));
  XtVaSetValues(window.status, XmNlabelString, text, nullptr);
  XmStringFree(text);
}

std::string look_up_text(const char* name) {
  char* text = nullptr;
  XtResource resource = {
      const_cast<char*>(name),      const_cast<char*>(XtCString), const_cast<char*>(XtRString), sizeof(char*), 0,
      const_cast<char*>(XtRString), const_cast<char*>(name)};
  XtGetApplicationResources(window.shell, &text, &resource, 1, nullptr, 0);
  return text;
}

}  // namespace help
