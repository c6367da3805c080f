#ifndef VQC_CMD_MODEL_BUILTIN_H
#define VQC_CMD_MODEL_BUILTIN_H

#include "vqc/cmd/model/kinds.h"

/// The kinds of names that the run-time itself supplies.
enum BuiltinKind : int {
  BUILTIN_PAGE = 1,
  BUILTIN_POPUP = 2,
  BUILTIN_POPUP_INIT = 3,
  BUILTIN_POPUP_UPDATE = 4,  // none is ever registered
};

struct BuiltinName {
  BuiltinName* next;
  Text name;
  int kind;
};

/// The entry of that name and kind, made if there is none. Null for a null name. The registry owns its entries.
BuiltinName* register_builtin_name(const Text& name, int kind);
/// Whether there was an entry to remove.
int unregister_builtin_name(const Text& name, int kind);
int check_builtin_name(const Text& name, int kind);

/// Give a new family the pages and popups that every family has. A predefined popup gets its built-in initialise
/// procedure back each time, whatever the document had made of it.
void predefine_pages(Family* family);
void predefine_popups(Family* family);

#endif
