// The section on the resources of the widget classes.

#include "vqc/cmd/generate/config_file.h"

namespace vqc {

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
  const PopupReference popup = reference_to_popup(run, resource.popup);
  // clang-format off
  emit<row>(run.out,
       bind<"NAME">(printed(resource.name)),
       bind<"POPUP">(popup),
       bind<"COMMA">(ours(popup.place >= 0 ? "," : ", ")),
       bind<"PAGE">(resource.page ? run.pages.of(resource.page) : -1),
       bind<"VISIBLE">(resource.visible),
       bind<"FREE_GET">(ours(free_word(resource.free_get, widget))),
       bind<"FREE_SET">(ours(free_word(resource.free_set, widget))),
       bind<"ACCESS">(resource.access),
       bind<"MFC">(bool{resource.mfc_compatible}),
       bind<"JAVA">(bool{resource.java_compatible}),
       bind<"COUNTER">(printed(resource.counter, "(char *) 0")));
  // clang-format on
}

void write_array(Run& run, const WidgetDef& widget) {
  emit<array_head>(run.out, bind<"WIDGET">(printed(widget.name)));
  for (const ResourceDef& resource : widget.resource_definitions) write_resource(run, widget, resource);
  emit<array_end>(run.out);
}

/// True when an array was written.
bool write_family_resources(Run& run, const Family& family, Done& done) {
  Heading heading(run, family, "Resource arrays");
  bool written = false;
  for (const auto& reference : family.widgets) {
    const WidgetDef& widget = *reference.record;
    const bool repeat = done.has(&widget);
    done.add(&widget);
    if (widget.resource_definitions.empty() || (repeat && !run.switches.verbose)) continue;
    heading.show();
    write_around(run.out, around_block, repeat, [&] { write_array(run, widget); });
    written = true;
  }
  run.out.write("\n");
  return written;
}

}  // namespace

void write_resources(Run& run) {
  Done done;
  bool written = false;
  for (const Family* family : run.families) written |= write_family_resources(run, *family, done);
  if (written) run.out.write("\n");
}

}  // namespace vqc
