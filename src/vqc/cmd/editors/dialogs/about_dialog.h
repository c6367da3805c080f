#ifndef VQC_CMD_EDITORS_DIALOGS_ABOUT_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_ABOUT_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The box that says which version this is.
enum AboutSlot {
  ABOUT_SHELL,
  ABOUT_FORM,
  ABOUT_NAME,
  ABOUT_VERSION,
  ABOUT_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* about_dialog = nullptr;

Widget* create_about_dialog(Widget parent);
inline void delete_about_dialog(Widget* record) { delete_dialog(record); }

#endif
