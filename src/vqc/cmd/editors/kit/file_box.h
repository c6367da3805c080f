#ifndef VQC_CMD_EDITORS_KIT_FILE_BOX_H
#define VQC_CMD_EDITORS_KIT_FILE_BOX_H

// Boxes that ask for a file.

#include <Xm/Xm.h>

#include "vqc/cmd/editors/kit/edited_document.h"

namespace vqc::editors {

/// Shows the dialog of a file selection box with what is now in the folder of the document at this path, or in the
/// working directory when that is null. The box offers a name, which typing replaces.
void show_file_box(Widget box, const char* document, const std::string& name = {});

/// How a file selection box names a file of the folder that it shows: a part of `path`, or all of it.
std::string name_in_box(Widget box, const std::string& path);

/// The path that a file selection box's callback brings. It may be empty.
std::string chosen_path(Widget box, XtPointer call);

/// Titles a file selection box's dialog with the text of a message resource.
void title_file_box(Widget box, const char* resource_name);

}  // namespace vqc::editors

#endif
