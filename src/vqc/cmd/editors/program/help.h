#ifndef VQC_CMD_EDITORS_PROGRAM_HELP_H
#define VQC_CMD_EDITORS_PROGRAM_HELP_H

// Help, as the viewer's client shows it.

#include <X11/Intrinsic.h>

namespace vqc::editors {

/// Shows the help of a topic in the viewer, or a message when there is none or it cannot be shown. The widget of the
/// first request stands for the program in all later ones.
void show_help(Widget w, const char* topic);

/// Tells the viewer, if there is one, to quit.
void vqc_QuitHelp();

}  // namespace vqc::editors

#endif
