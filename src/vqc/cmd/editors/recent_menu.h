#ifndef VQC_CMD_EDITORS_RECENT_MENU_H
#define VQC_CMD_EDITORS_RECENT_MENU_H

// The menu of the documents that were opened or saved last.

#include <Xm/Xm.h>

namespace vqc::editors {

/// Fills the menu when the File menu, which leads to it, is about to be shown. The document that is open is left out;
/// one whose file is gone cannot be chosen.
void fill_recent_menu(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
