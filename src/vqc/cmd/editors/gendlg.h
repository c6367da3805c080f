#ifndef VQC_CMD_EDITORS_GENDLG_H
#define VQC_CMD_EDITORS_GENDLG_H

// The dialog behind the three Generate commands: a file, and a toggle for each family that goes into it.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/generate/generate.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* gen_dialog = nullptr;

Widget* create_gen_dialog(Widget parent);
inline void delete_gen_dialog(Widget* record) { delete_dialog(record); }

/// What the user wants written beside what is needed.
Switches chosen_switches();

void gencon_do_popup(Widget w, XtPointer, XtPointer);
void gencode_do_popup(Widget w, XtPointer, XtPointer);
void genstubs_do_popup(Widget w, XtPointer, XtPointer);
/// Chooses all families, or none.
void gen_do_all(Widget w, XtPointer, XtPointer);
void gen_do_none(Widget w, XtPointer, XtPointer);
void gen_do_generate(Widget w, XtPointer, XtPointer call);
void gen_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
