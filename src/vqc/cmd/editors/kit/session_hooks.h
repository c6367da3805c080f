#ifndef VQC_CMD_EDITORS_KIT_SESSION_HOOKS_H
#define VQC_CMD_EDITORS_KIT_SESSION_HOOKS_H

// What the editors leave to the program that they are in.

#include <Xm/Xm.h>

#include <string>

#include "libkel/text.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// What the editors leave to the application. Each may be null.
struct SessionHooks {
  void (*acted)() = nullptr;                               // hears that the user has done something
  void (*opened)() = nullptr;                              // hears that he has opened another document
  void (*end)(int status) = nullptr;                       // ends the session
  void (*help)(Widget w, const char* topic) = nullptr;     // shows a page of help
  std::string (*used_by)(Part part, Text name) = nullptr;  // who uses a thing, such as "42 resources"; empty for nobody
  void (*uses)(Widget w) = nullptr;                        // shows who uses what is chosen in a window
  void (*problems)(Widget w) = nullptr;                    // shows what is wrong with the document
  void (*resources)(Widget w) = nullptr;                   // shows the resources of the current family
};
inline SessionHooks session_hooks;

/// Does what the user asks for. Nothing may be thrown into the toolkit.
template <class Action>
void act_for_user(Action action) {
  guarded([&] {
    action();
    if (session_hooks.acted) session_hooks.acted();
  });
}

/// The callback of every Help button; the client data is the topic.
void vqc_do_help(Widget w, XtPointer topic, XtPointer);

}  // namespace vqc::editors

#endif
