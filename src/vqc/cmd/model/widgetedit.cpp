#include "vqc/cmd/model/widgetedit.h"

#include "vqc/cmd/model/options.h"

namespace {

constexpr ErrorCode kNoWidget = 3;
constexpr int kNoResources = 27;

ResourceDef* new_resource(const Text& name) {
  auto* resource = new (std::nothrow) ResourceDef{};
  if (!resource) return nullptr;
  resource->name = name;
  resource->mfc_compatible = vqc_mfc_compatible_widgets();
  resource->java_compatible = vqc_java_compatible_widgets();
  return resource;
}

}  // namespace

WidgetDef::~WidgetDef() { resource_kind.clear(resource_definitions); }

ErrorCode we_resource_add(const Text& name, WidgetDef* widget) {
  if (!widget) return kNoWidget;
  return resource_kind.add(widget->resource_definitions, name, [&] { return new_resource(name); });
}

ErrorCode we_resource_delete(WidgetDef* widget, const Text& name) {
  return widget ? resource_kind.remove(widget->resource_definitions, name) : kNoWidget;
}

ResourceDef* resource_ptr(const WidgetDef* widget, const Text& name) {
  return widget ? resource_kind.ptr(widget->resource_definitions, name) : nullptr;
}

int resource_index(const WidgetDef* widget, const Text& name) {
  if (!widget || widget->resource_definitions.empty()) return kNoResources;
  return resource_kind.position(widget->resource_definitions, name) - 1;
}
