#ifndef VQC_CMD_EDITORS_KIT_FILE_BOX_H
#define VQC_CMD_EDITORS_KIT_FILE_BOX_H

#include <Xm/Xm.h>

#include "libkel/text.h"

/// Shows the dialog of a file selection box with what is in its folder now.
void show_file_box(Widget box);

/// The path that a file selection box's callback brings; null for an empty one.
Text chosen_path(XtPointer call);

/// Titles a file selection box's dialog with the text of a message resource.
void title_file_box(Widget box, const char* resource_name);

#endif
