#ifndef HELP_CLIENT_HELP_H
#define HELP_CLIENT_HELP_H

// The client's side of the protocol with the help viewer, a program of its own that is started when it is first needed
// and then kept. Requests go to it through a property of its window; where that is, it announces through a property of
// the client's window.

#include <X11/Intrinsic.h>

/// Asks the viewer to show the file `request`, from the window of `w`, or of its parent if it is a gadget. -1 when
/// either is null or the viewer cannot be started, 0 when the request waits for the viewer to announce itself
/// (later requests replace it), 1 when it has been delivered.
int VQHelp(Widget w, const char* request);

/// Tells the viewer, if there is one, to quit.
int QuitHelpViewer(Widget w);

/// What is called each time a viewer announces itself: one function at most. Null for nobody.
using HelpStartedCallback = void (*)(void* client_data);
void VQHelpAddStartedCallback(HelpStartedCallback function, void* client_data);
void VQHelpRemoveStartedCallback();

/// Interns the atoms of the protocol on the display of `w`, once.
void VQHelpGetAtoms(Widget w);

#endif
