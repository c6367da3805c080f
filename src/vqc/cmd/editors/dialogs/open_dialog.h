#ifndef VQC_CMD_EDITORS_DIALOGS_OPEN_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_OPEN_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of a document to open.
enum OpenSlot {
  OPEN_SHELL,
  OPEN_FSB,
  OPEN_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* open_dialog = nullptr;

Widget* create_open_dialog(Widget parent);
inline void delete_open_dialog(Widget* record) { delete_dialog(record); }

#endif
