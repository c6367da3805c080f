#ifndef VQC_CMD_EDITORS_DIALOGS_SAVECHANGES_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_SAVECHANGES_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The question whether to save what has changed.
enum SavechangesSlot {
  SAVECHANGES_SHELL,
  SAVECHANGES_BOX,
  SAVECHANGES_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* savechanges_dialog = nullptr;

Widget* create_savechanges_dialog(Widget parent);
inline void delete_savechanges_dialog(Widget* record) { delete_dialog(record); }

#endif
