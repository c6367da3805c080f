#ifndef VQC_CMD_EDITORS_DIALOGS_ERROR_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_ERROR_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The box that messages are shown in.
enum ErrorSlot {
  ERROR_SHELL,
  ERROR_BOX,
  ERROR_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* error_dialog = nullptr;

Widget* create_error_dialog(Widget parent);
inline void delete_error_dialog(Widget* record) { delete_dialog(record); }

#endif
