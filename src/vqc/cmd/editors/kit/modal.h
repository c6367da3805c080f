#ifndef VQC_CMD_EDITORS_KIT_MODAL_H
#define VQC_CMD_EDITORS_KIT_MODAL_H

// The dialog that has to be answered first.

#include <Xm/Xm.h>

namespace vqc::editors {

/// The dialog shell that the user has to finish with before he can use any other window; null when there is none. Only
/// shells that are watched count.
Widget modal_shell();
void watch_modality(Widget dialog_shell);

}  // namespace vqc::editors

#endif
