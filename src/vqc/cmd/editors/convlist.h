#ifndef VQC_CMD_EDITORS_CONVLIST_H
#define VQC_CMD_EDITORS_CONVLIST_H

#include "vqc/cmd/editors/kit/list_editor.h"

// The page of a family's resource converters. What it edits belongs to the document: a converter is the same in every
// family.

extern ListEditor converterlist_editor;
inline constexpr XtCallbackProc converterlist_do_add = do_add<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_update = do_accept<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_delete = do_delete<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_display = do_select<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_up = do_up<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_down = do_down<converterlist_editor>;
inline void converterlist_setfamily(const Family* family) { set_family(converterlist_editor, family); }

/// Hears that another converter of the family, or none, is current now.
void current_converter_changed(Reference<ConverterDef>* element);

#endif
