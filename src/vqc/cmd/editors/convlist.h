#ifndef VQC_CMD_EDITORS_CONVLIST_H
#define VQC_CMD_EDITORS_CONVLIST_H

// The page of a family's resource converters. What it edits belongs to the document: a converter is the same in every
// family.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart converterlist_page();
/// Lets its fields, in the dialog's record, be completed.
void complete_converter(Widget* record);
/// Marks from now on what has not been applied on it.
void watch_converter(Widget* record);

extern ListEditor converterlist_editor;
inline constexpr XtCallbackProc converterlist_do_add = do_add<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_update = do_accept<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_delete = do_delete<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_display = do_select<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_up = do_up<converterlist_editor>;
inline constexpr XtCallbackProc converterlist_do_down = do_down<converterlist_editor>;
inline void converterlist_setfamily(const Family* family) { set_family(converterlist_editor, family); }

/// Opens the popup editor on the popup named in the field given as client data.
void show_popups_cb(Widget w, XtPointer field, XtPointer);

/// The field or toggle that a word of a converter gives; null for none.
Widget converterlist_field(Kw word);

/// Hears that another converter of the family, or none, is current now.
void current_converter_changed(Reference<ConverterDef>* element);

}  // namespace vqc::editors

#endif
