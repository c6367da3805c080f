#ifndef VQC_CMD_EDITORS_PROGRAM_RESOURCES_H
#define VQC_CMD_EDITORS_PROGRAM_RESOURCES_H

// What the user's resource files say about the whole program.

#include <X11/Intrinsic.h>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Reads what the user's resource files say about the whole program, once, when the main window exists.
void vqc_init_resources(Widget shell);

/// The help file of a topic, in the user's language if there is one; a null topic stands for the contents. Null when
/// there is none.
std::string vqc_HelpPath(Display* display, const char* topic);

}  // namespace vqc::editors

#endif
