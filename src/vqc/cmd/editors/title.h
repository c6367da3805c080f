#ifndef VQC_CMD_EDITORS_TITLE_H
#define VQC_CMD_EDITORS_TITLE_H

// The titles of windows.

#include <Xm/Xm.h>

#include "libkel/text.h"

namespace vqc::editors {

/// Titles the main window with the program's name and the leaf name of `path`; null stands for a document without a
/// name. Nothing happens while there is no main window.
void vqc_set_title(const char* path);

/// Titles a shell with the text of the message resource `resource_name`, filled with `arg`, or with the text of "none"
/// when that is null. Nothing happens when there is no such text.
void vq_set_title(Widget shell, const char* resource_name, Text arg);

}  // namespace vqc::editors

#endif
