// Announces the viewer to its client, and takes the client's requests.

#include "help/viewer/client.h"

#include <X11/Xatom.h>

#include <string_view>

#include "help/protocol.h"

namespace help {

namespace {

constexpr long kLongest = 1 << 16;  // request, in units of four bytes

Display* display = nullptr;
Window viewer = None;
Window client = None;  // None when there is none to serve
RequestHandlers handlers;
XErrorHandler other_errors = nullptr;

Atom announcement() { return XInternAtom(display, kAnnouncement, False); }
Atom request() { return XInternAtom(display, kRequest, False); }

/// The client may go at any time, and its window with it.
int forget_client(Display* where, XErrorEvent* error) {
  if (error->error_code != BadWindow || error->resourceid != client) return other_errors(where, error);
  client = None;
  return 0;
}

void take_request(Widget, XtPointer, XEvent* event, Boolean*) {
  if (event->type != PropertyNotify || event->xproperty.atom != request()) return;
  if (event->xproperty.state != PropertyNewValue) return;
  const XData text = read_property(display, viewer, request(), XA_STRING, 8, kLongest);
  if (!text) return;
  const std::string words = reinterpret_cast<const char*>(text.get());
  if (words == kQuit) return handlers.quit();
  handlers.show(words);
}

/// Whether the client still takes this viewer for its own.
bool is_announced() { return read_announcement(display, client) == viewer; }

}  // namespace

bool serve_client(Widget shell, Window window, const RequestHandlers& what_to_do) {
  display = XtDisplay(shell);
  viewer = XtWindow(shell);
  client = window;
  handlers = what_to_do;
  other_errors = XSetErrorHandler(forget_client);
  XtAddEventHandler(shell, PropertyChangeMask, False, take_request, nullptr);
  XSelectInput(display, client, StructureNotifyMask);
  XChangeProperty(display, client, announcement(), XA_WINDOW, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&viewer), 1);
  XSync(display, False);
  return client != None;
}

void leave_client() {
  if (client == None) return;
  if (is_announced()) XDeleteProperty(display, client, announcement());
  XSync(display, False);
}

void watch_client(const XEvent& event) {
  if (client == None || event.type != DestroyNotify || event.xdestroywindow.window != client) return;
  client = None;
  handlers.quit();
}

}  // namespace help
