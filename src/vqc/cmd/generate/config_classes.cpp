// The sections that name the class records of the code file.

#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/options.h"

namespace {

constexpr Template declaration = "extern XWidgetClass_t xw_@WIDGET@;\n";

constexpr Template pointers_head = "XWidgetClass_p @XWIDGETS@[] = {\n";
constexpr Template pointer_row = "\t&xw_@WIDGET@,\n";
constexpr Template pointers_end =
    "\t(XWidgetClass_p) 0\n"
    "};\n\n";

constexpr bool kNeverRepeat = false;  // one declaration and one pointer are enough, whatever the comments say

}  // namespace

void write_class_declarations(Run& run) {
  clear_done(widget_pool);
  bool written = false;
  each_family([&](Family& family) {
    const Heading heading(run, family, "XWidget class records");
    each_once(family.widgets, kNeverRepeat, heading, [&](const WidgetDef& widget, bool) {
      emit<declaration>(run.out, widget.name);
      written = true;
    });
    charout(&run.out, "\n");
  });
  if (written) charout(&run.out, "\n");
}

void write_class_pointers(Run& run) {
  clear_done(widget_pool);
  write_title(run, "XWidget records");
  emit<pointers_head>(run.out, vqc_get_xwidgets_variable());
  each_family([&](Family& family) {
    for (auto& reference : family.widgets) {
      WidgetDef& widget = *reference.record;
      if (!done(widget)) emit<pointer_row>(run.out, widget.name);
      done(widget) = true;
    }
  });
  emit<pointers_end>(run.out);
}
