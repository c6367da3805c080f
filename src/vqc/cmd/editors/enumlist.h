#ifndef VQC_CMD_EDITORS_ENUMLIST_H
#define VQC_CMD_EDITORS_ENUMLIST_H

#include "vqc/cmd/editors/kit/list_editor.h"

// The page of a family's enumerations. The current one is what the enumeration editor shows.

extern ListEditor enum_editor;
inline constexpr XtCallbackProc enumlist_do_add = do_add<enum_editor>;
inline constexpr XtCallbackProc enumlist_do_edit = do_accept<enum_editor>;
inline constexpr XtCallbackProc enumlist_do_delete = do_delete<enum_editor>;
inline constexpr XtCallbackProc enumlist_do_select = do_select<enum_editor>;
inline void enumlist_setfamily(const Family* family) { set_family(enum_editor, family); }

/// Hears that another enumeration of the family, or none, is current now.
void current_enum_changed(Reference<EnumDef>* element);

#endif
