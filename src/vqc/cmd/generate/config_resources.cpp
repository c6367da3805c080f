// The section on the resources of the widget classes.

#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/options.h"

namespace {

constexpr Template array_head = "Resource_t xr_@WIDGET@_resources[] = {\n";
constexpr Template row =
    "\t{@NAME@, (XrmQuark) 0, @POPUP@@COMMA@@PAGE@, @VISIBLE@, @FREE_GET@, @FREE_SET@, @ACCESS@, @MFC@, @JAVA@, @COUNTER@},\n";
constexpr Template array_end =
    "\t{(char *) 0, (XrmQuark) 0, (Popup_p) 0, 0, False, vqc_free_default, vqc_free_default, 0, False, False, (char *) 0}\n"
    "};\n\n";

std::string_view free_word(FreeMode mode, const WidgetDef& widget) {
  switch (mode) {
    case FreeMode::by_default:
      return widget.default_is_dont_free ? "vqc_dont_free" : "vqc_free_default";
    case FreeMode::free:
      return "vqc_free";
    default:
      return "vqc_dont_free";
  }
}

void write_resource(Run& run, const WidgetDef& widget, const ResourceDef& resource) {
  if (!resource.name) return;
  const PopupDef* popup = written_popup(resource.popup);
  const std::string_view comma = popup ? "," : ", ";
  emit<row>(run.out, resource.name, PopupReference{popup}, comma, written_page(resource.page), resource.visible,
            free_word(resource.free_get, widget), free_word(resource.free_set, widget), resource.access,
            resource.mfc_compatible, resource.java_compatible, Or{resource.counter, "(char *) 0"});
}

void write_array(Run& run, const WidgetDef& widget) {
  emit<array_head>(run.out, widget.name);
  for (const ResourceDef& resource : widget.resource_definitions) write_resource(run, widget, resource);
  emit<array_end>(run.out);
}

/// True when an array was written.
bool write_family_resources(Run& run, Family& family) {
  Heading heading(run, family, "Resource arrays");
  bool written = false;
  for (auto& reference : family.widgets) {
    WidgetDef& widget = *reference.record;
    const bool repeat = done(widget);
    done(widget) = true;
    if (widget.resource_definitions.empty() || (repeat && !run.verbose)) continue;
    heading.show();
    write_around(run.out, around_block, repeat, [&] { write_array(run, widget); });
    written = true;
  }
  charout(&run.out, "\n");
  return written;
}

}  // namespace

void write_resources(Run& run) {
  clear_done(widget_pool);
  bool written = false;
  each_family([&](Family& family) { written |= write_family_resources(run, family); });
  if (written) charout(&run.out, "\n");
}
