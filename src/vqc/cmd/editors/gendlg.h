#ifndef VQC_CMD_EDITORS_GENDLG_H
#define VQC_CMD_EDITORS_GENDLG_H

#include <Xm/Xm.h>

#include "vqc/cmd/generate/generate.h"

// The dialog behind the three Generate commands: a file, and a toggle for each family that goes into it.

void gencon_do_popup(Widget w, XtPointer, XtPointer);
void gencode_do_popup(Widget w, XtPointer, XtPointer);
void genstubs_do_popup(Widget w, XtPointer, XtPointer);
void gen_do_generate(Widget w, XtPointer, XtPointer call);
void gen_do_hide(Widget w, XtPointer, XtPointer);

/// What the toggles say.
extern const FamilyChoice toggled_families;

#endif
