#ifndef VQC_CMD_EDITORS_PROGRAM_LINKS_H
#define VQC_CMD_EDITORS_PROGRAM_LINKS_H

// Callbacks that interface code can name. The client data is the address of a widget variable; nothing happens when it
// is null or the variable holds no widget.

#include <X11/Intrinsic.h>

extern "C" {

void VQmanage_link(Widget w, XtPointer address, XtPointer);
void VQunmanage_link(Widget w, XtPointer address, XtPointer);
void VQpopup_link(Widget w, XtPointer address, XtPointer);
void VQpopdown_link(Widget w, XtPointer address, XtPointer);
void VQmap_link(Widget w, XtPointer address, XtPointer);
void VQunmap_link(Widget w, XtPointer address, XtPointer);
void VQenable_link(Widget w, XtPointer address, XtPointer);
void VQdisable_link(Widget w, XtPointer address, XtPointer);
}

#endif
