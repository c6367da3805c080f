#ifndef VQC_CMD_EDITORS_READ_H
#define VQC_CMD_EDITORS_READ_H

#include <Xm/Xm.h>

// Reading a document into the present one.

void read_do_popup(Widget w, XtPointer, XtPointer);
void do_read(Widget w, XtPointer, XtPointer call);
void read_do_hide(Widget w, XtPointer, XtPointer);

#endif
