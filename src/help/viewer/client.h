#ifndef HELP_VIEWER_CLIENT_H
#define HELP_VIEWER_CLIENT_H

// The viewer's side of the protocol with the program that it serves, its client: the viewer's window is announced by a
// property of the client's window, and requests come as a property of the viewer's.

#include <X11/Intrinsic.h>

#include <string>

namespace help {

/// What is done with the requests: with the path of a file to show, and when there is nobody to serve any more.
struct RequestHandlers {
  void (*show)(const std::string& file);
  void (*quit)();
};

/// Serves the client that has `window` from the window of `shell`. False when the client has gone already.
bool serve_client(Widget shell, Window window, const RequestHandlers& what_to_do);

/// Takes the announcement back.
void leave_client();

/// To be told of every event: sees when the client goes.
void watch_client(const XEvent& event);

}  // namespace help

#endif
