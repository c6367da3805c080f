#ifndef VQC_CMD_EDITORS_FAMILYLIST_H
#define VQC_CMD_EDITORS_FAMILYLIST_H

// The main window's list of families, and the window's record.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"

namespace vqc::editors {

enum FamilySlot {
  FAMILY_SHELL,
  FAMILY_SELECTION,
  FAMILY_LIST,
  FAMILY_TEXT,
  FAMILY_RECENT_MENU,
  FAMILY_RECENT_CASCADE,
  FAMILY_SEARCH,
  FAMILY_OPTIONS_CASCADE,
  FAMILY_UNDO,
  FAMILY_REDO,
  FAMILY_SLOTS,
};

/// Null in a batch run, and while a session starts.
inline Widget* family_dialog = nullptr;

/// The list's part of the window.
DialogPart familylist_page();

extern ListEditor family_editor;
inline constexpr XtCallbackProc family_do_add = do_add<family_editor>;
inline constexpr XtCallbackProc family_do_edit = do_accept<family_editor>;
inline constexpr XtCallbackProc family_do_delete = do_delete<family_editor>;
inline constexpr XtCallbackProc family_do_select = do_select<family_editor>;
inline constexpr XtCallbackProc family_do_up = do_up<family_editor>;
inline constexpr XtCallbackProc family_do_down = do_down<family_editor>;

/// Fills the list from the model.
void family_display();

/// Hears that another family, or none, is current now.
void current_family_changed(Family* family);

}  // namespace vqc::editors

#endif
