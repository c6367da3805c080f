#ifndef VQC_CMD_EDITORS_DIALOGS_STOP_LIST_SHELL_H
#define VQC_CMD_EDITORS_DIALOGS_STOP_LIST_SHELL_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The widget classes to leave out: one toggle for each, in the order of the rows.
enum StopListSlot {
  STOP_LIST_SHELL,
  STOP_LIST_FORM,
  STOP_LIST_TOGGLES,
  STOP_LIST_SLOTS = STOP_LIST_TOGGLES + 41,
};

/// Null until the dialog is first needed.
inline Widget* stop_list_shell = nullptr;

Widget* create_stop_list_shell(Widget parent);
inline void delete_stop_list_shell(Widget* record) { delete_dialog(record); }

#endif
