#ifndef VQC_CMD_MODEL_WIDGETEDIT_H
#define VQC_CMD_MODEL_WIDGETEDIT_H

#include "vqc/cmd/model/kinds.h"

// The widget classes of the document.

inline ErrorCode widget_add(const Text& name) { return widget_pool.add(name); }
inline ErrorCode widget_delete(const Text& name) { return widget_pool.remove(name); }
inline WidgetDef* widget_first() { return widget_pool.first(); }
inline WidgetDef* widget_next() { return widget_pool.next(); }
inline WidgetDef* widget_ptr(const Text& name) { return widget_pool.ptr(name); }
inline int widget_count() { return widget_pool.count(); }

// The widget classes of a family.

inline ErrorCode widgetlist_add(const Text& name, Family* family) { return widget_kind.add(name, family); }
inline ErrorCode widgetlist_delete(Family* family, const Text& name) { return widget_kind.remove(family, name); }
inline Reference<WidgetDef>* widgetlist_first(const Family* family) { return widget_kind.first(family); }
inline Reference<WidgetDef>* widgetlist_next() { return widget_kind.next(); }
inline Reference<WidgetDef>* widgetlist_ptr(const Family* family, const Text& name) {
  return widget_kind.ptr(family, name);
}
inline int widgetlist_count(const Family* family) { return widget_kind.count(family); }
/// Counted from 1; 0 when absent.
inline int widgetlist_index(const Family* family, const Text& name) { return widget_kind.index(family, name); }
inline void widgetlist_setcurrent(Reference<WidgetDef>* element) { widget_kind.set_current(element); }
inline Reference<WidgetDef>* widgetlist_getcurrent() { return widget_kind.current(); }
inline void zero_widgetlist() { widget_kind.zero(); }
inline ErrorCode widgetlist_move_up(Family* family, const Text& name) { return widget_kind.move_up(family, name); }
inline ErrorCode widgetlist_move_down(Family* family, const Text& name) { return widget_kind.move_down(family, name); }

// The resources of a widget class.

/// Adds a resource, whose two compatibility flags are those of the whole program. 3 when `widget` is null.
ErrorCode we_resource_add(const Text& name, WidgetDef* widget);
ErrorCode we_resource_delete(WidgetDef* widget, const Text& name);
ResourceDef* resource_ptr(const WidgetDef* widget, const Text& name);
inline ResourceDef* resource_first(const WidgetDef* widget) {
  return widget ? resource_kind.first(widget->resource_definitions) : nullptr;
}
inline ResourceDef* resource_next() { return resource_kind.next(); }
/// Counted from 0; 27 when the widget has no resources, -1 when it has others only.
int resource_index(const WidgetDef* widget, const Text& name);
inline void resource_setcurrent(ResourceDef* resource) { resource_kind.set_current(resource); }
inline ResourceDef* resource_getcurrent() { return resource_kind.current(); }

#endif
