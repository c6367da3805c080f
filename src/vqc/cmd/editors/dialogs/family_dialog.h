#ifndef VQC_CMD_EDITORS_DIALOGS_FAMILY_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_FAMILY_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The main window.
enum FamilySlot { FAMILY_SHELL, FAMILY_SELECTION, FAMILY_LIST, FAMILY_TEXT, FAMILY_OPTIONS_CASCADE, FAMILY_SLOTS };

/// Null in a batch run, and while a session starts.
inline Widget* family_dialog = nullptr;

/// Makes the main window, which is not realized yet. Null when it cannot be made.
Widget* create_family_dialog(Display* display, char* name, int argc, char** argv);
inline void delete_family_dialog(Widget* record) { delete_dialog(record); }

#endif
