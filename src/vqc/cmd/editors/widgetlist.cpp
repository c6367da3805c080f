// The page of a family's widget classes.

#include "vqc/cmd/editors/widgetlist.h"

#include "vqc/cmd/editors/entity_dialog.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/editors/kit/list_page.h"
#include "vqc/cmd/editors/widgetedit.h"

namespace vqc::editors {

namespace {

const ListPage widgets = {.name = "widgetlist",
                          .parent = "entity_view_form",
                          .slot = WIDGETLIST_BOX,
                          .topic = "vqc_classw",
                          .ok = widgetlist_do_edit,
                          .apply = widgetlist_do_add,
                          .cancel = widgetlist_do_delete,
                          .select = widgetlist_do_select,
                          .type = do_type<widgetlist_editor>,
                          .up = widgetlist_do_up,
                          .down = widgetlist_do_down,
                          .quit = entity_do_hide};

void select_widget(Name name) { widgetlist_setcurrent(widgetlist_ptr(family_getcurrent(), name)); }

void widget_added(Name name) {
  if (!widgetlist_getcurrent()) select_widget(name);
}

void edit_widget(Name name) {
  select_widget(name);
  widgetedit_show();
}

}  // namespace

DialogPart widgetlist_page() { return list_page(widgets); }

ListEditor widgetlist_editor{.part = Part::widget,
                             .dialog = entity_dialog,
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

}  // namespace vqc::editors
