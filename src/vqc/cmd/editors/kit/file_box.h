#ifndef VQC_CMD_EDITORS_KIT_FILE_BOX_H
#define VQC_CMD_EDITORS_KIT_FILE_BOX_H

// Boxes that ask for a file.

#include <Xm/Xm.h>

#include "libkel/text.h"

namespace vqc::editors {

/// Shows the dialog of a file selection box with what is now in the folder of the document at this path, or in the
/// working directory when that is null. The box offers a name, which typing replaces; null for none.
void show_file_box(Widget box, const char* document, const char* name = nullptr);

/// How a file selection box names a file of the folder that it shows: a part of `path`, or all of it.
const char* name_in_box(Widget box, const char* path);

/// The path that a file selection box's callback brings. It may be empty, but is never null.
Text chosen_path(Widget box, XtPointer call);

/// Titles a file selection box's dialog with the text of a message resource.
void title_file_box(Widget box, const char* resource_name);

}  // namespace vqc::editors

#endif
