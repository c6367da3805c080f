#ifndef HELP_VIEWER_VIEWER_H
#define HELP_VIEWER_VIEWER_H

// What the viewer does, for the client and at the press of a button.

#include <X11/Intrinsic.h>

#include <string>

namespace help {

/// Shows the page in a file, from its beginning, and the window with it.
void show_file(const std::string& file);

/// Ends the program.
[[noreturn]] void quit();

// Callbacks.
void go_back(Widget, XtPointer, XtPointer);
void go_forward(Widget, XtPointer, XtPointer);
void go_to_contents(Widget, XtPointer, XtPointer);
void follow_link(Widget, XtPointer, XtPointer call);
void show_link(Widget, XtPointer, XtPointer call);
void find_as_typed(Widget, XtPointer, XtPointer);
void find_next(Widget, XtPointer, XtPointer);
void end_find(Widget, XEvent*, String*, Cardinal*);
void make_smaller(Widget, XtPointer, XtPointer);
void make_normal(Widget, XtPointer, XtPointer);
void make_larger(Widget, XtPointer, XtPointer);
void close_window(Widget, XtPointer, XtPointer);

}  // namespace help

#endif
