// Asks the help viewer for pages, and starts it where there is none.

#include "help/client/help.h"

#include <X11/Xatom.h>

#include <cstdlib>
#include <cstring>
#include <string>

#include "help/protocol.h"

using namespace help;

namespace {

Atom help_win = None;
Atom help_dest = None;

std::string last_request;
bool starting = false;  // a viewer has been launched that has not announced itself

HelpStartedCallback started_callback = nullptr;
void* started_data = nullptr;

// A send may find that the viewer's window has gone.
bool error_seen = false;
Display* display_of_send = nullptr;
XErrorHandler previous_handler = nullptr;

int note_bad_window(Display* display, XErrorEvent* error) {
  if (display == display_of_send && error->error_code == BadWindow) {
    error_seen = true;
    return 0;
  }
  return previous_handler ? previous_handler(display, error) : 0;
}

/// Whether the request has reached the window.
bool help_send(Display* display, Window viewer, const std::string& request) {
  previous_handler = XSetErrorHandler(note_bad_window);
  display_of_send = display;
  error_seen = false;
  XChangeProperty(display, viewer, help_dest, XA_STRING, 8, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(request.c_str()), static_cast<int>(request.size()) + 1);
  XFlush(display);
  XSync(display, False);
  XSetErrorHandler(previous_handler);
  return !error_seen;
}

void take_announcement(Widget w, XtPointer, XEvent* event, Boolean*) {
  if (event->type != PropertyNotify || event->xproperty.atom != help_win) return;
  if (event->xproperty.state == PropertyDelete) return;
  starting = false;
  VQHelp(w, std::string(last_request).c_str());
  if (started_callback) started_callback(started_data);
}

/// Launches a viewer in the background. A command there never fails, so that whether there is a viewer is asked first.
int start_viewer(Widget w) {
  XtAddEventHandler(w, PropertyChangeMask, False, take_announcement, nullptr);
  XSync(XtDisplay(w), False);  // a viewer may announce itself before anything else is sent to the server
  starting = true;
  const std::string command =
      "[ -x \"$VQROOT/bin/vqhelp\" ] || exit 1\n\"$VQROOT/bin/vqhelp\" -wid " + std::to_string(XtWindow(w)) + " &";
  if (std::system(command.c_str()) == 0) return 0;
  starting = false;
  return -1;
}

}  // namespace

void VQHelpGetAtoms(Widget w) {
  if (help_win == None) help_win = XInternAtom(XtDisplay(w), kAnnouncement, False);
  if (help_dest == None) help_dest = XInternAtom(XtDisplay(w), kRequest, False);
}

int VQHelp(Widget w, const char* request) {
  if (!w || !request) return -1;
  if (!XtIsWidget(w)) w = XtParent(w);
  if (!XtIsRealized(w)) return -1;
  VQHelpGetAtoms(w);
  last_request = request;
  if (starting) return 0;
  const Window viewer = read_announcement(XtDisplay(w), XtWindow(w));
  if (viewer != None && help_send(XtDisplay(w), viewer, last_request)) return 1;
  if (std::strcmp(request, kQuit) == 0) return 1;  // nobody is there to quit
  return start_viewer(w);
}

int QuitHelpViewer(Widget w) { return VQHelp(w, kQuit); }

void VQHelpAddStartedCallback(HelpStartedCallback function, void* client_data) {
  started_callback = function;
  started_data = client_data;
}

void VQHelpRemoveStartedCallback() { started_callback = nullptr; }
