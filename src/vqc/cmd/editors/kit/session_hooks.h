#ifndef VQC_CMD_EDITORS_KIT_SESSION_HOOKS_H
#define VQC_CMD_EDITORS_KIT_SESSION_HOOKS_H

// What the editors leave to the program that they are in.

#include <Xm/Xm.h>

namespace vqc::editors {

/// What the editors leave to the application. Either may be null.
struct SessionHooks {
  void (*end)(int status) = nullptr;                    // ends the session
  void (*help)(Widget w, const char* topic) = nullptr;  // shows a page of help
};
inline SessionHooks session_hooks;

/// The callback of every Help button; the client data is the topic.
void vqc_do_help(Widget w, XtPointer topic, XtPointer);

}  // namespace vqc::editors

#endif
