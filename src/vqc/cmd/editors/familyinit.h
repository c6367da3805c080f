#ifndef VQC_CMD_EDITORS_FAMILYINIT_H
#define VQC_CMD_EDITORS_FAMILYINIT_H

// The page of a family's initialisation. What is applied there does not mark the document as changed.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/model/records.h"

namespace vqc::editors {

/// Its part of the family dialog.
DialogPart familyinit_page();

/// Fills the page, if there is a dialog, from a family; null empties it.
void familyinit_setfamily(const Family* family);
void family_init_do_update(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
