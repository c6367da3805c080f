#ifndef VQC_CMD_EDITORS_ABOUTDLG_H
#define VQC_CMD_EDITORS_ABOUTDLG_H

#include <Xm/Xm.h>

// The about box.

void about_do_show(Widget w, XtPointer, XtPointer);
void about_do_hide(Widget w, XtPointer, XtPointer);

#endif
