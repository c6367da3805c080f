#ifndef VQC_CMD_EDITORS_ERROR_H
#define VQC_CMD_EDITORS_ERROR_H

// The box in which messages are shown.

#include <Xm/Xm.h>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// Takes its texts from the main window's resources and shows messages in a box of their own, made when the first one
/// comes. The next message replaces the one that is shown. Nothing is shown while there is no main window.
extern const MessageSink error_box;

/// Null until the first message comes.
inline Widget* error_dialog = nullptr;

Widget* create_error_dialog(Widget parent);
inline void delete_error_dialog(Widget* record) { delete_dialog(record); }

void error_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
