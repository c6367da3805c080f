#ifndef VQC_CMD_EDITORS_KIT_LIST_PAGE_H
#define VQC_CMD_EDITORS_KIT_LIST_PAGE_H

// What every list that is edited by name has around it: a box with the list, a name field and buttons, a form for what
// belongs to a name, arrows, and a button that closes the dialog.

#include <Xm/Xm.h>

#include <span>

#include "vqc/cmd/editors/kit/dialog.h"

namespace vqc::editors {

/// One such list. The names of its widgets begin with its own: "X_selection" is the box, with the children "Help",
/// "*ItemsList" and "Text", and there are "X_arrowbox", "X_uparrow", "X_downarrow" and "X_quitb".
struct ListPage {
  const char* name;
  const char* parent;
  int slot;           // of the box
  const char* topic;  // of its help
  XtCallbackProc ok = nullptr;
  XtCallbackProc apply = nullptr;
  XtCallbackProc cancel = nullptr;
  XtCallbackProc select = nullptr;
  XtCallbackProc type = nullptr;  // into the name field
  XtCallbackProc up = nullptr;    // null for a list without arrows
  XtCallbackProc down = nullptr;
  XtCallbackProc quit = nullptr;           // null where no button closes the dialog, or Cancel does
  const char* form = nullptr;              // has the arrows too; null for a list without
  bool has_status_line = false;            // in the form: nothing else can be added to a box that is a whole window
  std::span<const WidgetRow> rows = {};    // what else there is
  std::span<const WidgetLink> links = {};  // of it
};

/// Its widgets: the box, without OK and Apply where these do nothing, the form, the arrows, what else there is, and the
/// button that closes the dialog, which Escape presses.
DialogPart list_page(const ListPage& page);

}  // namespace vqc::editors

#endif
