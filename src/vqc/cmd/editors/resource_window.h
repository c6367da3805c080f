#ifndef VQC_CMD_EDITORS_RESOURCE_WINDOW_H
#define VQC_CMD_EDITORS_RESOURCE_WINDOW_H

// The window with a table of the resources of a family, or of the document, in which many can be changed at once.

#include <optional>

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/model/part.h"

namespace vqc::editors {

/// Null until the dialog is first needed.
inline Widget* resources_dialog = nullptr;

Widget* create_resources_dialog(Widget parent);
inline void delete_resources_dialog(Widget* record) { delete_dialog(record); }

/// Shows the resources of the document, or, asked in another window than the main one, those of the current family.
void resources_do_popup(Widget w, XtPointer, XtPointer);
/// The first row that is selected; none where none is.
std::optional<Spot> selected_resource();
/// The document says something else now.
void refresh_resources();

// What is shown, and in what order.
void resources_do_limit(Widget w, XtPointer, XtPointer);
void resources_do_sort(Widget w, XtPointer, XtPointer);

// What is done with the rows that are selected: they are set, copied to other widgets, and copied as text; and what is
// done without any: a text is pasted.
void resources_do_choose_column(Widget w, XtPointer, XtPointer);
void resources_do_set(Widget w, XtPointer, XtPointer);
void resources_do_copy_to(Widget w, XtPointer, XtPointer);
void resources_do_copy(Widget w, XtPointer, XtPointer);
void resources_do_paste(Widget w, XtPointer, XtPointer);
void resources_do_select_all(Widget w, XtPointer, XtPointer);
/// Shows the first of them in the widget editor.
void resources_do_go(Widget w, XtPointer, XtPointer);
void resources_do_hide(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
