#ifndef VQC_CMD_EDITORS_KIT_MAIN_SHELL_H
#define VQC_CMD_EDITORS_KIT_MAIN_SHELL_H

// The shell of the main window, for all who need it: dialogs are its children, messages its resources.

#include <Xm/Xm.h>

namespace vqc::editors {

/// Null in a batch run, and until the main window is made.
Widget main_shell();
/// Says, once, which it is.
void set_main_shell(Widget shell);

}  // namespace vqc::editors

#endif
