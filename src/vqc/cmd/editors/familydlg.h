#ifndef VQC_CMD_EDITORS_FAMILYDLG_H
#define VQC_CMD_EDITORS_FAMILYDLG_H

// The main window.

#include "vqc/cmd/editors/familylist.h"

namespace vqc::editors {

/// Makes the main window, which is not realized yet. Null when it cannot be made.
Widget* create_family_dialog(Display* display, char* name, int argc, char** argv);
inline void delete_family_dialog(Widget* record) { delete_dialog(record); }

}  // namespace vqc::editors

#endif
