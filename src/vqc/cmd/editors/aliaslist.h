#ifndef VQC_CMD_EDITORS_ALIASLIST_H
#define VQC_CMD_EDITORS_ALIASLIST_H

// The page of a family's type aliases. What it edits belongs to the document: an alias is the same in every family.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart aliaslist_page();
/// Marks from now on what has not been applied on it.
void watch_aliaslist(Widget* record);

extern ListEditor aliaslist_editor;
inline constexpr XtCallbackProc aliaslist_do_add = do_add<aliaslist_editor>;
inline constexpr XtCallbackProc aliaslist_do_update = do_accept<aliaslist_editor>;
inline constexpr XtCallbackProc aliaslist_do_delete = do_delete<aliaslist_editor>;
inline constexpr XtCallbackProc aliaslist_do_display = do_select<aliaslist_editor>;
inline void aliaslist_setfamily(const Family* family) { set_family(aliaslist_editor, family); }

/// The field that a word of an alias gives; null for none.
Widget aliaslist_field(Kw word);

/// Hears that another alias of the family, or none, is current now.
void current_alias_changed(Reference<AliasDef>* element);

}  // namespace vqc::editors

#endif
