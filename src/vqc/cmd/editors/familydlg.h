#ifndef VQC_CMD_EDITORS_FAMILYDLG_H
#define VQC_CMD_EDITORS_FAMILYDLG_H

#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"

// The main window's list of families.

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

#endif
