#ifndef VQC_CMD_EDITORS_DIALOGS_RESOURCE_WARN_DIALOG_H
#define VQC_CMD_EDITORS_DIALOGS_RESOURCE_WARN_DIALOG_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The question what to do with a resource that has been changed but not updated.
enum ResourceWarnSlot {
  RESOURCE_WARN_SHELL,
  RESOURCE_WARN_BOX,
  RESOURCE_WARN_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* resource_warn_dialog = nullptr;

Widget* create_resource_warn_dialog(Widget parent);
inline void delete_resource_warn_dialog(Widget* record) { delete_dialog(record); }

#endif
