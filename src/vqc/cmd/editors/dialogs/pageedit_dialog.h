#ifndef VQC_CMD_EDITORS_DIALOGS_PAGEEDIT_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_PAGEEDIT_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of a resource page.
enum PageeditSlot {
  PAGEEDIT_SHELL,
  PAGEEDIT_BOX,
  PAGEEDIT_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* pageedit_dialog = nullptr;

Widget* create_pageedit_dialog(Widget parent);
inline void delete_pageedit_dialog(Widget* record) { delete_dialog(record); }

#endif
