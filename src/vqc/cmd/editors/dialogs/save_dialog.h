#ifndef VQC_CMD_EDITORS_DIALOGS_SAVE_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_SAVE_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of the file to save the document in.
enum SaveSlot {
  SAVE_SHELL,
  SAVE_FSB,
  SAVE_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* save_dialog = nullptr;

Widget* create_save_dialog(Widget parent);
inline void delete_save_dialog(Widget* record) { delete_dialog(record); }

#endif
