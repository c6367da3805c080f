#ifndef VQC_CMD_EDITORS_CONVLIST_H
#define VQC_CMD_EDITORS_CONVLIST_H

#include "vqc/cmd/editors/kit/list_editor.h"

// The page of a family's resource converters. What it edits belongs to the document: a converter is the same in every
// family.

extern ListEditor converter_editor;
inline constexpr XtCallbackProc converterlist_do_add = do_add<converter_editor>;
inline constexpr XtCallbackProc converterlist_do_update = do_accept<converter_editor>;
inline constexpr XtCallbackProc converterlist_do_delete = do_delete<converter_editor>;
inline constexpr XtCallbackProc converterlist_do_display = do_select<converter_editor>;
inline constexpr XtCallbackProc converterlist_do_up = do_up<converter_editor>;
inline constexpr XtCallbackProc converterlist_do_down = do_down<converter_editor>;
inline void converterlist_setfamily(const Family* family) { set_family(converter_editor, family); }

/// Hears that another converter of the family, or none, is current now.
void current_converter_changed(Reference<ConverterDef>* element);

#endif
