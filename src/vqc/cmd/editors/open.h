#ifndef VQC_CMD_EDITORS_OPEN_H
#define VQC_CMD_EDITORS_OPEN_H

#include <Xm/Xm.h>

// Opening a document instead of the present one.

void open_do_popup(Widget w, XtPointer, XtPointer);
void really_open_popup();
void do_open(Widget w, XtPointer, XtPointer call);
void open_do_hide(Widget w, XtPointer, XtPointer);

#endif
