#ifndef VQC_CMD_EDITORS_ERROR_H
#define VQC_CMD_EDITORS_ERROR_H

#include <Xm/Xm.h>

#include "libkel/message.h"

/// Takes its texts from the main window's resources and shows messages in a box of their own, made when the first one
/// comes. The next message replaces the one that is shown. Nothing is shown while there is no main window.
extern const MessageSink error_box;

void error_do_hide(Widget w, XtPointer, XtPointer);

#endif
