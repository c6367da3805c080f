#ifndef VQC_CMD_EDITORS_WIDGETEDIT_H
#define VQC_CMD_EDITORS_WIDGETEDIT_H

// The widget editor: the fields of the widget list's current widget, which are stored when the user applies them, and
// its resources, which are stored one at a time. A resource that has been changed but not stored is asked about before
// its fields show something else.

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/model/records.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc::editors {

/// Null until the dialogs are first needed.
inline Widget* widgetedit_dialog = nullptr;
inline Widget* resource_warn_dialog = nullptr;

Widget* create_widgetedit_dialog(Widget parent);
inline void delete_widgetedit_dialog(Widget* record) { delete_dialog(record); }
Widget* create_resource_warn_dialog(Widget parent);
inline void delete_resource_warn_dialog(Widget* record) { delete_dialog(record); }

/// Shows the dialog, made when it is first needed.
void widgetedit_show();
/// The same, unless it is up: then what has been changed in it stays so.
void widgetedit_turn_to();
/// Closes it, unless the user has to say first what becomes of a changed resource.
void widgetedit_do_hide(Widget w, XtPointer, XtPointer);

/// Fills the dialog, if there is one, from a widget; null empties it.
void widgetedit_setwidget(const Reference<WidgetDef>* element);

/// The field or toggle that a word of a widget gives, and that of a resource; null for none. A resource's name stands
/// under the word for all resources.
Widget widgetedit_field(Kw word);
Widget resource_field(Kw word);

/// Shows a resource of the widget as a click on it does. False when there is none of that name.
bool widgetedit_choose_resource(Name name);

void widget_do_update(Widget w, XtPointer, XtPointer);
void widget_do_undo(Widget w, XtPointer, XtPointer);

// The resources.

void we_select_cb(Widget w, XtPointer, XtPointer call);
void we_popup_update_cb(Widget w, XtPointer, XtPointer);
void we_popup_delete_cb(Widget w, XtPointer, XtPointer);
void we_popup_cb(Widget w, XtPointer, XtPointer);
void we_page_cb(Widget w, XtPointer, XtPointer);
void resource_dirty_cb(Widget w, XtPointer, XtPointer);

/// The answers to the question what becomes of a changed resource: store it, or forget it, and go on.
void resource_apply(Widget w, XtPointer, XtPointer);
void resource_ignore(Widget w, XtPointer, XtPointer);

}  // namespace vqc::editors

#endif
