#ifndef VQC_CMD_EDITORS_HEADERLISTS_H
#define VQC_CMD_EDITORS_HEADERLISTS_H

#include "vqc/cmd/editors/kit/list_editor.h"

// The pages of a family's three lists of headers.

extern ListEditor codeheader_editor;
inline constexpr XtCallbackProc codeheaderlist_do_add = do_add<codeheader_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_delete = do_delete<codeheader_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_up = do_up<codeheader_editor>;
inline constexpr XtCallbackProc codeheaderlist_do_down = do_down<codeheader_editor>;
inline void codeheaderlist_setfamily(const Family* family) { set_family(codeheader_editor, family); }

extern ListEditor confheader_editor;
inline constexpr XtCallbackProc confheaderlist_do_add = do_add<confheader_editor>;
inline constexpr XtCallbackProc confheaderlist_do_delete = do_delete<confheader_editor>;
inline constexpr XtCallbackProc confheaderlist_do_up = do_up<confheader_editor>;
inline constexpr XtCallbackProc confheaderlist_do_down = do_down<confheader_editor>;
inline void confheaderlist_setfamily(const Family* family) { set_family(confheader_editor, family); }

extern ListEditor familyheader_editor;
inline constexpr XtCallbackProc familyheaderlist_do_add = do_add<familyheader_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_delete = do_delete<familyheader_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_up = do_up<familyheader_editor>;
inline constexpr XtCallbackProc familyheaderlist_do_down = do_down<familyheader_editor>;
inline void familyheaderlist_setfamily(const Family* family) { set_family(familyheader_editor, family); }

#endif
