#include "vqc/cmd/editors/widgetlist.h"

#include "vqc/cmd/editors/dialogs/entity_dialog.h"
#include "vqc/cmd/editors/widgetedit.h"
#include "vqc/cmd/model/widgetedit.h"

namespace {

void select_widget(const Text& name) { widgetlist_setcurrent(widgetlist_ptr(family_getcurrent(), name)); }

void widget_added(const Text& name) {
  if (!widgetlist_getcurrent()) select_widget(name);
}

void edit_widget(const Text& name) {
  select_widget(name);
  widgetedit_show();
}

}  // namespace

ListEditor widgetlist_editor{.dialog = entity_dialog,
                             .box_slot = WIDGETLIST_BOX,
                             .names = names_in_family<widget_kind>(),
                             .added = widget_added,
                             .accepted = edit_widget,
                             .selected = select_widget,
                             .delete_clears_name = true,
                             .refill_keeps_name = true};

void current_widget_changed(Reference<WidgetDef>* element) {
  if (!element) widgetlist_editor.clear_name();
  widgetedit_setwidget(element);
}
