#ifndef VQC_CMD_EDITORS_DIALOGS_ENUMEDIT_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_ENUMEDIT_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// An enumeration and its entries.
enum EnumeditSlot {
  ENUMEDIT_SHELL,
  ENUMEDIT_BOX,
  ENUMEDIT_TYPE,
  ENUMEDIT_CODE_SYMBOL,
  ENUMEDIT_RESFILE_SYMBOL,
  ENUMEDIT_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* enumedit_dialog = nullptr;

Widget* create_enumedit_dialog(Widget parent);
inline void delete_enumedit_dialog(Widget* record) { delete_dialog(record); }

#endif
