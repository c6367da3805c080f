// The sections that name the class records of the code file.

#include "vqc/cmd/generate/config_file.h"

namespace vqc {

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
  Done done;
  bool written = false;
  for (const Family* family : run.families) {
    const Heading heading(run, *family, "XWidget class records");
    each_once(family->widgets, done, kNeverRepeat, heading, [&](const WidgetDef& widget, bool) {
      emit<declaration>(run.out, bind<"WIDGET">(printed(widget.name)));
      written = true;
    });
    run.out.write("\n");
  }
  if (written) run.out.write("\n");
}

void write_class_pointers(Run& run) {
  Done done;
  write_title(run, "XWidget records");
  emit<pointers_head>(run.out, bind<"XWIDGETS">(printed(run.document.names.xwidgets.value())));
  for (const Family* family : run.families) {
    Heading no_heading(run, *family, {});
    no_heading.suppress();
    each_once(family->widgets, done, kNeverRepeat, no_heading,
              [&](const WidgetDef& widget, bool) { emit<pointer_row>(run.out, bind<"WIDGET">(printed(widget.name))); });
  }
  emit<pointers_end>(run.out);
}

}  // namespace vqc
