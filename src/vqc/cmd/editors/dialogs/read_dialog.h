#ifndef VQC_CMD_EDITORS_DIALOGS_READ_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_READ_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of a document to read into the present one.
enum ReadSlot {
  READ_SHELL,
  READ_FSB,
  READ_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* read_dialog = nullptr;

Widget* create_read_dialog(Widget parent);
inline void delete_read_dialog(Widget* record) { delete_dialog(record); }

#endif
