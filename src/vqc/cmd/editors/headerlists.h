#ifndef VQC_CMD_EDITORS_HEADERLISTS_H
#define VQC_CMD_EDITORS_HEADERLISTS_H

// The pages of a family's three lists of headers.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"

namespace vqc::editors {

/// Their parts of the family dialog.
DialogPart codeheaderlist_page();
DialogPart confheaderlist_page();
DialogPart familyheaderlist_page();

extern ListEditor codeheaderlist_editor;
inline constexpr XtCallbackProc codeheaderlist_do_add = do_add<codeheaderlist_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_delete = do_delete<codeheaderlist_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_select = do_select<codeheaderlist_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_up = do_up<codeheaderlist_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_down = do_down<codeheaderlist_editor>;
inline void codeheaderlist_setfamily(const Family* family) { set_family(codeheaderlist_editor, family); }

extern ListEditor confheaderlist_editor;
inline constexpr XtCallbackProc confheaderlist_do_add = do_add<confheaderlist_editor>;
inline constexpr XtCallbackProc confheaderlist_do_delete = do_delete<confheaderlist_editor>;
inline constexpr XtCallbackProc confheaderlist_do_select = do_select<confheaderlist_editor>;
inline constexpr XtCallbackProc confheaderlist_do_up = do_up<confheaderlist_editor>;
inline constexpr XtCallbackProc confheaderlist_do_down = do_down<confheaderlist_editor>;
inline void confheaderlist_setfamily(const Family* family) { set_family(confheaderlist_editor, family); }

extern ListEditor familyheaderlist_editor;
inline constexpr XtCallbackProc familyheaderlist_do_add = do_add<familyheaderlist_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_delete = do_delete<familyheaderlist_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_select = do_select<familyheaderlist_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_up = do_up<familyheaderlist_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_down = do_down<familyheaderlist_editor>;
inline void familyheaderlist_setfamily(const Family* family) { set_family(familyheaderlist_editor, family); }

}  // namespace vqc::editors

#endif
