#include "vqc/cmd/editors/widgetedit.h"

#include <Xm/List.h>

#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/dialogs/resource_warn_dialog.h"
#include "vqc/cmd/editors/dialogs/widgetedit_dialog.h"
#include "vqc/cmd/editors/kit/cursor.h"
#include "vqc/cmd/editors/kit/fields.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/pagelist.h"
#include "vqc/cmd/editors/popuplist.h"
#include "vqc/cmd/editors/title.h"
#include "vqc/cmd/model/widgetedit.h"

namespace {

struct TextField {
  WidgeteditSlot field;
  Text WidgetDef::*text;
};
constexpr TextField text_fields[] = {
    {WIDGETEDIT_INCLUDE_FILENAME, &WidgetDef::include_filename},
    {WIDGETEDIT_DEFINED_NAME, &WidgetDef::defined_name},
    {WIDGETEDIT_CAN_ADD_CHILD, &WidgetDef::can_add_child},
    {WIDGETEDIT_APPROPRIATE_PARENT, &WidgetDef::appropriate_parent},
    {WIDGETEDIT_REALISE, &WidgetDef::realise},
    {WIDGETEDIT_ABSTRACT, &WidgetDef::abstract},
    {WIDGETEDIT_LARGEICON, &WidgetDef::largeicon},
    {WIDGETEDIT_SMALLICON, &WidgetDef::smallicon},
    {WIDGETEDIT_LRG_ICONHEADER, &WidgetDef::largeiconheader},
    {WIDGETEDIT_SML_ICONHEADER, &WidgetDef::smalliconheader},
    {WIDGETEDIT_PIXMAP, &WidgetDef::pixmap_resource},
    {WIDGETEDIT_W_HELP_DOC, &WidgetDef::widget_doc},
    {WIDGETEDIT_W_HELP_TAG, &WidgetDef::widget_tag},
    {WIDGETEDIT_D_HELP_DOC, &WidgetDef::dialogue_doc},
    {WIDGETEDIT_D_HELP_TAG, &WidgetDef::dialogue_tag},
};

struct Toggle {
  WidgeteditSlot toggle;
  bool WidgetDef::*flag;
};
constexpr Toggle toggles[] = {
    {WIDGETEDIT_GENERATE_INITIALISE, &WidgetDef::generate_initialise},
    {WIDGETEDIT_DISABLEGOTO, &WidgetDef::disablegoto},
    {WIDGETEDIT_DISABLEFGSWAP, &WidgetDef::disablefgswap},
    {WIDGETEDIT_DEFAULT_IS_DONT_FREE, &WidgetDef::default_is_dont_free},
    {WIDGETEDIT_CAN_CREATE, &WidgetDef::can_create},
    {WIDGETEDIT_CAN_MANAGE, &WidgetDef::can_manage},
    {WIDGETEDIT_CAN_EDIT_ABSTRACT, &WidgetDef::can_edit_abstract},
};

struct AccessToggle {
  WidgeteditSlot toggle;
  Access access;
};
constexpr AccessToggle access_toggles[] = {{WIDGETEDIT_ACCESS_CREATE, ACCESS_CREATE},
                                           {WIDGETEDIT_ACCESS_GET, ACCESS_GET},
                                           {WIDGETEDIT_ACCESS_SET, ACCESS_SET}};

/// What waits for the answer about a changed resource.
enum class Pending { none, close, show_resource };
Pending pending = Pending::none;
Text pending_resource;

bool resource_changed = false;

Widget at(WidgeteditSlot slot) { return widgetedit_dialog[slot]; }

WidgetDef* current_widget() {
  const Reference<WidgetDef>* element = widgetlist_getcurrent();
  return element ? element->record : nullptr;
}

bool has_current_widget() { return widgetlist_getcurrent() != nullptr; }

// The free modes: the three buttons of each menu follow one another, in the order of the modes.

void show_free_mode(WidgeteditSlot menu, FreeMode mode) {
  const int button = menu + 1 + static_cast<int>(mode);
  XtVaSetValues(at(menu), XmNmenuHistory, widgetedit_dialog[button], nullptr);
}

FreeMode shown_free_mode(WidgeteditSlot menu) {
  Widget button = nullptr;
  XtVaGetValues(at(menu), XmNmenuHistory, &button, nullptr);
  XtPointer mode = nullptr;
  XtVaGetValues(button, XmNuserData, &mode, nullptr);
  return static_cast<FreeMode>(reinterpret_cast<XtArgVal>(mode));
}

// The access: none given means all of them.

void show_access(int access) {
  for (const auto& [toggle, bit] : access_toggles) settoggle(at(toggle), access & bit);
}

int shown_access() {
  int access = 0;
  for (const auto& [toggle, bit] : access_toggles) access |= gettoggle(at(toggle)) ? bit : 0;
  return access == 0 ? ACCESS_NOT_GIVEN : access;
}

void show_resource_texts(const ResourceDef& resource) {
  settextf(at(WIDGETEDIT_COUNTER), resource.counter);
  settextf(at(WIDGETEDIT_POPUP), resource.popup);
  settextf(at(WIDGETEDIT_PAGE), resource.page);
}

void show_free_modes(const ResourceDef& resource) {
  show_free_mode(WIDGETEDIT_FREE_GET, resource.free_get);
  show_free_mode(WIDGETEDIT_FREE_SET, resource.free_set);
}

void show_resource_toggles(const ResourceDef& resource) {
  settoggle(at(WIDGETEDIT_VISIBLE), resource.visible);
  show_access(resource.access);
}

/// What another widget, or none, begins with. The toggles keep what they show.
void clear_resource() {
  settextf(at(WE_RESOURCE), nullptr);
  show_resource_texts({});
  show_free_modes({});
}

void show_resource(const Text& name) {
  settextf(at(WE_RESOURCE), name);
  const ResourceDef* known = resource_ptr(current_widget(), name);
  const ResourceDef& resource = known ? *known : ResourceDef{};
  show_resource_texts(resource);
  show_free_modes(resource);
  show_resource_toggles(resource);
  mark_text(at(WE_RESOURCE));
  resource_changed = false;
}

void store_resource(ResourceDef& resource) {
  gettextf(at(WIDGETEDIT_COUNTER), &resource.counter);
  gettextf(at(WIDGETEDIT_POPUP), &resource.popup);
  gettextf(at(WIDGETEDIT_PAGE), &resource.page);
  if (resource.page) page_into_family(resource.page);
  gettoggle(at(WIDGETEDIT_VISIBLE), &resource.visible);
  resource.free_get = shown_free_mode(WIDGETEDIT_FREE_GET);
  resource.free_set = shown_free_mode(WIDGETEDIT_FREE_SET);
  resource.access = shown_access();
}

/// Adds the resource that the fields name, or rewrites it.
void update_resource(WidgetDef& widget) {
  const Text name = gettextf(at(WE_RESOURCE));
  if (name.empty()) return;
  dirty = true;
  if (!resource_ptr(&widget, name)) {
    if (with_memory(we_resource_add(name, &widget)) != 0) return;
    list_insert(at(WE_RESOURCE_LIST), name, resource_index(&widget, name) + 1);
  }
  store_resource(*resource_ptr(&widget, name));
  resource_changed = false;
}

void ask_about_resource(Pending action) {
  if (!made(resource_warn_dialog, create_resource_warn_dialog, family_dialog[FAMILY_SHELL])) return;
  pending = action;
  show_dialog(resource_warn_dialog[RESOURCE_WARN_BOX], Place::over);
}

std::vector<Text> resource_names(const WidgetDef& widget) {
  std::vector<Text> names;
  for (const ResourceDef& resource : widget.resource_definitions) names.push_back(resource.name);
  return names;
}

void show_widget(const WidgetDef* widget) {
  vq_set_title(at(WIDGETEDIT_SHELL), "widget_title", widget ? widget->name.c_str() : nullptr);
  const WidgetDef new_widget;
  const WidgetDef& shown = widget ? *widget : new_widget;
  for (const auto& [field, text] : text_fields) settextf(at(field), shown.*text);
  for (const auto& [toggle, flag] : toggles) settoggle(at(toggle), shown.*flag);
  list_show(at(WE_RESOURCE_LIST), resource_names(shown));
  clear_resource();
  for (WidgeteditSlot button : {WIDGETEDIT_APPLY, WIDGETEDIT_UNDO, WE_RESOURCE_UPDATE, WE_RESOURCE_DELETE}) {
    XtSetSensitive(at(button), widget ? True : False);
  }
  resource_changed = false;
}

}  // namespace

void widgetedit_show() {
  if (!widgetedit_dialog) {
    if (!made(widgetedit_dialog, create_widgetedit_dialog, family_dialog[FAMILY_SHELL])) return;
    widgetedit_setwidget(widgetlist_getcurrent());
    show_resource_toggles({});
  }
  show_dialog(at(WIDGETEDIT_FORM));
  resource_changed = false;
}

void widgetedit_do_hide(Widget, XtPointer, XtPointer) {
  if (resource_changed) {
    ask_about_resource(Pending::close);
  } else {
    hide_dialog(at(WIDGETEDIT_FORM));
  }
}

void widgetedit_setwidget(const Reference<WidgetDef>* element) {
  if (widgetedit_dialog) show_widget(element ? element->record : nullptr);
}

void widget_do_update(Widget w, XtPointer, XtPointer) {
  WidgetDef* widget = current_widget();
  if (!widget) return;
  const BusyCursor busy(w);
  dirty = true;
  for (const auto& [field, text] : text_fields) gettextf(at(field), &(widget->*text));
  for (const auto& [toggle, flag] : toggles) gettoggle(at(toggle), &(widget->*flag));
}

void widget_do_undo(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  widgetedit_setwidget(widgetlist_getcurrent());
}

void we_select_cb(Widget w, XtPointer, XtPointer call) {
  const BusyCursor busy(w);
  const Text name = clicked_name(w, *static_cast<XmListCallbackStruct*>(call));
  if (resource_changed) {
    pending_resource = name;
    ask_about_resource(Pending::show_resource);
  } else {
    show_resource(name);
  }
}

void we_popup_update_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  if (WidgetDef* widget = current_widget()) update_resource(*widget);
}

void we_popup_delete_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  WidgetDef* widget = current_widget();
  const Text name = gettextf(at(WE_RESOURCE));
  if (!resource_ptr(widget, name)) return;
  list_delete(at(WE_RESOURCE_LIST), name);
  we_resource_delete(widget, name);
  clear_resource();
  settoggle(at(WIDGETEDIT_VISIBLE), true);
  resource_changed = false;
}

void we_popup_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  popupdlg_set_initial_state(at(WIDGETEDIT_POPUP), XtParent(at(WIDGETEDIT_SHELL)), has_current_widget);
}

void we_page_cb(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  pagedlg_set_initial_state(at(WIDGETEDIT_PAGE), XtParent(at(WIDGETEDIT_SHELL)), has_current_widget);
}

void resource_dirty_cb(Widget, XtPointer, XtPointer) { resource_changed = true; }

void resource_apply(Widget w, XtPointer, XtPointer) {
  we_popup_update_cb(w, nullptr, nullptr);
  resource_ignore(w, nullptr, nullptr);
}

void resource_ignore(Widget w, XtPointer, XtPointer) {
  const BusyCursor busy(w);
  hide_dialog(resource_warn_dialog[RESOURCE_WARN_BOX]);
  resource_changed = false;
  switch (pending) {
    case Pending::none:
      break;
    case Pending::close:
      return widgetedit_do_hide(w, nullptr, nullptr);
    case Pending::show_resource:
      return show_resource(pending_resource);
  }
}
