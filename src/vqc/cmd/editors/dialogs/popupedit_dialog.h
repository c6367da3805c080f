#ifndef VQC_CMD_EDITORS_DIALOGS_POPUPEDIT_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_POPUPEDIT_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The choice of a resource popup, and its procedures.
enum PopupeditSlot {
  POPUPEDIT_SHELL,
  POPUPEDIT_BOX,
  POPUPEDIT_INIT,
  POPUPEDIT_UPDATE,
  POPUPEDIT_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* popupedit_dialog = nullptr;

Widget* create_popupedit_dialog(Widget parent);
inline void delete_popupedit_dialog(Widget* record) { delete_dialog(record); }

#endif
