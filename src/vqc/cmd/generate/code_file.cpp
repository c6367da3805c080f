// The code file: its sections in their order, and those on what it includes and declares.

#include "vqc/cmd/generate/code_file.h"

#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/name_set.h"

namespace vqc {

namespace {

constexpr void (*sections[])(Run&) = {
    write_code_includes,
    write_widget_includes,
    write_procedure_declarations,
    write_class_records,
};

/// A kind of procedure that widgets name, as the new style and the old style declare it.
template <Template prototype, Template old_style>
void declare(Sink& out, Text procedure) {
  out.write("#ifndef   _NO_PROTO\n");
  emit<prototype>(out, bind<"NAME">(printed(procedure)));
  out.write("#else  /* _NO_PROTO */\n");
  emit<old_style>(out, bind<"NAME">(printed(procedure)));
  out.write("#endif /* _NO_PROTO */\n");
}

struct ProcedureKind {
  Text WidgetDef::*procedure;
  void (*declare)(Sink& out, Text procedure);
};

// clang-format off
constexpr ProcedureKind procedure_kinds[] = {
    {&WidgetDef::defined_name,       declare<"extern char * @NAME@(char *) ;\n",
                                             "extern char * @NAME@() ;\n">},
    {&WidgetDef::realise,            declare<"extern Widget @NAME@(char *, WidgetClass, Widget, ArgList, Cardinal) ;\n",
                                             "extern Widget @NAME@() ;\n">},
    {&WidgetDef::abstract,           declare<"extern Boolean @NAME@(XWidget_p, Widget, Boolean *, Boolean *) ;\n",
                                             "extern Boolean @NAME@() ;\n">},
    {&WidgetDef::can_add_child,      declare<"extern Boolean @NAME@(XWidget_p, WidgetClass) ;\n",
                                             "extern Boolean @NAME@() ;\n">},
    {&WidgetDef::appropriate_parent, declare<"extern Boolean @NAME@(Widget, WidgetClass) ; \n",
                                             "extern Boolean @NAME@() ; \n">},
};
// clang-format on

}  // namespace

void write_code_file(Run& run) {
  for (auto write_section : sections) write_section(run);
}

void write_widget_includes(Run& run) {
  NameSet written;
  write_title(run, "Widget class records");
  bool any = false;
  for (const Family* family : run.families) {
    Heading heading(run, *family, {});
    for (const auto& widget : family->widgets) {
      const Text file = widget.record->include_filename;
      if (!written.add(file)) continue;
      heading.show();
      emit<include_line>(run.out, bind<"FILE">(printed(file)));
      any = true;
    }
  }
  if (any) run.out.write("\n");
}

void write_procedure_declarations(Run& run) {
  NameSet declared[std::size(procedure_kinds)];
  bool any = false;
  for (const Family* family : run.families) {
    Heading heading(run, *family, "Externally defined functions");
    for (const auto& widget : family->widgets) {
      for (std::size_t kind = 0; kind < std::size(procedure_kinds); ++kind) {
        const Text procedure = widget.record->*procedure_kinds[kind].procedure;
        if (!declared[kind].add(procedure)) continue;
        heading.show();
        procedure_kinds[kind].declare(run.out, procedure);
        any = true;
      }
    }
  }
  if (any) run.out.write("\n");
}

}  // namespace vqc
