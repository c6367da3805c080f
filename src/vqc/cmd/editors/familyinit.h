#ifndef VQC_CMD_EDITORS_FAMILYINIT_H
#define VQC_CMD_EDITORS_FAMILYINIT_H

// The page of a family's initialisation. What is applied there does not mark the document as changed.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/model/records.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart familyinit_page();
/// Lets its field, in the dialog's record, be completed.
void complete_familyinit(Widget* record);
/// Marks from now on what has not been applied on it.
void watch_familyinit(Widget* record);

/// Fills the page, if there is a dialog, from a family; null empties it.
void familyinit_setfamily(const Family* family);
/// The field or toggle that a word of the initialisation gives; null for none.
Widget familyinit_field(Kw word);
void family_init_do_update(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
