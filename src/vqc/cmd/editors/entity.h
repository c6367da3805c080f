#ifndef VQC_CMD_EDITORS_ENTITY_H
#define VQC_CMD_EDITORS_ENTITY_H

#include <Xm/Xm.h>

#include "vqc/cmd/model/records.h"

// The family dialog: its frame, the switching of its pages, and the page of the family's initialisation.

/// Shows the dialog, made when it is first needed. 0 when it cannot be made, else 1.
int entity_show();
void entity_do_hide(Widget w, XtPointer, XtPointer);

/// Shows the page given as client data instead of the others, when the toggle has been set.
void entity_do_show_page(Widget toggle, XtPointer page, XtPointer call);

/// Fills every page for a family; null for none. 0 while there is no dialog, else 1.
int entity_setfamily(Family* family);

/// Opens the popup editor on the popup named in the field given as client data.
void show_popups_cb(Widget w, XtPointer field, XtPointer);

void familyinit_setfamily(const Family* family);
void family_init_do_update(Widget w, XtPointer, XtPointer);

#endif
