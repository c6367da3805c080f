#ifndef VQC_CMD_EDITORS_DIALOGS_OPTIONS_SHELL_H
#define VQC_CMD_EDITORS_DIALOGS_OPTIONS_SHELL_H

#include "vqc/cmd/editors/kit/dialog.h"

/// The names of the generated tables.
enum OptionsSlot {
  OPTIONS_SHELL,
  OPTIONS_FORM,
  OPTIONS_FAMILY_TABLE,
  OPTIONS_FAMILY_NAMES,
  OPTIONS_XWIDGETS,
  OPTIONS_ENUMERATIONS,
  OPTIONS_ALIASES,
  OPTIONS_CONVERTERS,
  OPTIONS_POPUPS,
  OPTIONS_STOP_LIST,
  OPTIONS_FAMILY_COUNT,
  OPTIONS_PAGE_NAMES,
  OPTIONS_COMMENT,
  OPTIONS_VERBOSE,
  OPTIONS_SLOTS,
};

/// Null until the dialog is first needed.
inline Widget* options_shell = nullptr;

Widget* create_options_shell(Widget parent);
inline void delete_options_shell(Widget* record) { delete_dialog(record); }

#endif
