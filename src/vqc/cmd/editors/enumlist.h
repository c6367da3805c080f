#ifndef VQC_CMD_EDITORS_ENUMLIST_H
#define VQC_CMD_EDITORS_ENUMLIST_H

// The page of a family's enumerations. The current one is what the enumeration editor shows.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart enumlist_page();

extern ListEditor enumlist_editor;
inline constexpr XtCallbackProc enumlist_do_add = do_add<enumlist_editor>;
inline constexpr XtCallbackProc enumlist_do_edit = do_accept<enumlist_editor>;
inline constexpr XtCallbackProc enumlist_do_delete = do_delete<enumlist_editor>;
inline constexpr XtCallbackProc enumlist_do_select = do_select<enumlist_editor>;
inline void enumlist_setfamily(const Family* family) { set_family(enumlist_editor, family); }

/// Hears that another enumeration of the family, or none, is current now.
void current_enum_changed(Reference<EnumDef>* element);

}  // namespace vqc::editors

#endif
