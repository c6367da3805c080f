#ifndef VQC_CMD_EDITORS_ENTITY_H
#define VQC_CMD_EDITORS_ENTITY_H

// The family dialog: everything that belongs to a family, a page for each kind.

#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/kit/list_editor.h"
#include "vqc/cmd/model/records.h"

namespace vqc::editors {

Widget* create_entity_dialog(Widget parent);
inline void delete_entity_dialog(Widget* record) { delete_dialog(record); }

/// Shows the dialog, made when it is first needed. 0 when it cannot be made, else 1.
int entity_show();

/// Shows the dialog with one of its pages, of which it is the slot, and the keyboard on it. False when it cannot be
/// made.
bool entity_show_page(EntitySlot page);

/// The list of the page that is shown; null where that has none.
const ListEditor* entity_shown_list();

/// Shows the page given as client data instead of the others, when the toggle has been set.
void entity_do_show_page(Widget toggle, XtPointer page, XtPointer call);

/// Shows who uses what is chosen on the page.
void entity_do_uses(Widget item, XtPointer, XtPointer);
/// Shows what is wrong with the document.
void entity_do_problems(Widget item, XtPointer, XtPointer);
/// Shows the resources of its widgets.
void entity_do_resources(Widget item, XtPointer, XtPointer);

/// Fills every page for a family; null for none. 0 while there is no dialog, else 1.
int entity_setfamily(Family* family);

}  // namespace vqc::editors

#endif
