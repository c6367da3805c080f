#ifndef VQC_CMD_EDITORS_DIALOGS_GEN_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_GEN_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of a file to generate, and of the families in it.
enum GenSlot {
  GEN_SHELL,
  GEN_FSB,
  GEN_TOGGLES,
  GEN_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* gen_dialog = nullptr;

Widget* create_gen_dialog(Widget parent);
inline void delete_gen_dialog(Widget* record) { delete_dialog(record); }

#endif
