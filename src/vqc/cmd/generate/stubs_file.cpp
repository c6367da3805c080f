// The stubs file: a body to fill in for each procedure.

#include "vqc/cmd/generate/stubs_file.h"

#include <string>

#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/parse_stubs.h"

namespace vqc {

namespace {

/// How the stubs of one kind of procedure look.
struct StubKind {
  std::string_view returns;        // up to the procedure's name
  std::string_view names;          // of the parameters
  std::string_view parameters[6];  // up to an empty one
  std::string_view body;
  std::size_t further_in = 0;  // how many blanks more the parameters after the first are indented
};

constexpr std::string_view kEmptyBody = "{\n\t/* FIXME */\n}\n\n";

// clang-format off
constexpr StubKind name_procedure{
    "char *", "name",
    {"char *name"},
    "{\n\t/* FIXME */\n\n\treturn (name) ;\n}\n\n"};
constexpr StubKind create_procedure{
    "Widget ", "name, widget_class, parent, args, arg_count",
    {"char       *name", "WidgetClass widget_class", "Widget      parent", "ArgList     args", "Cardinal    arg_count"},
    "{\n\t/* FIXME */\n\n\treturn XtCreateWidget(name, widget_class, parent, args, arg_count) ;\n}\n\n"};
constexpr StubKind abstract_edit_procedure{
    "Boolean ", "xwidget, abstract_child, recurse, editable",
    {"XWidget_p xwidget", "Widget    abstract_child", "Boolean  *recurse", "Boolean  *editable"},
    "{\n\t/* FIXME */\n\n\t*recurse  = True ;\n\t*editable = True ;\n\n\treturn True ;\n}\n\n", 1};
constexpr StubKind child_test{
    "Boolean ", "parent_xwidget, child_class",
    {"XWidget_p   parent_xwidget", "WidgetClass child_class"},
    "{\n\t/* FIXME */\n\n\treturn False ;\n}\n\n"};
constexpr StubKind parent_test{
    "Boolean ", "parent, child_class",
    {"Widget      parent", "WidgetClass child_class"},
    "{\n\t/* FIXME */\n\n\treturn True ;\n}\n\n"};
constexpr StubKind family_initialisation{
    "void ", "shell",
    {"Widget shell"},
    kEmptyBody};
constexpr StubKind popup_create{
    "void ", "parent",
    {"Widget parent"},
    kEmptyBody};
constexpr StubKind popup_initialise{
    "void ", "source_text, current, resource_name",
    {"Widget      source_text", "Widget      current", "char       *resource_name"},
    kEmptyBody};
constexpr StubKind popup_update{
    "void ", "current",
    {"Widget current"},
    kEmptyBody};
// clang-format on

void write_new_style_head(Sink& out, const StubKind& kind, Text name) {
  const std::string indent(kind.returns.size() + name.view().size() + 1, ' ');
  const std::string further(kind.further_in, ' ');
  emit<"@RETURNS@@NAME@(@FIRST_PARAMETER@">(out, bind<"RETURNS">(ours(kind.returns)), bind<"NAME">(printed(name)),
                                            bind<"FIRST_PARAMETER">(ours(kind.parameters[0])));
  for (const std::string_view* parameter = kind.parameters + 1; !parameter->empty(); ++parameter) {
    emit<",\n@INDENT@@FURTHER@@PARAMETER@">(out, bind<"INDENT">(ours(indent)), bind<"FURTHER">(ours(further)),
                                            bind<"PARAMETER">(ours(*parameter)));
  }
  out.write(")\n");
}

void write_old_style_head(Sink& out, const StubKind& kind, Text name) {
  emit<"@RETURNS@@NAME@(@NAMES@)\n">(out, bind<"RETURNS">(ours(kind.returns)), bind<"NAME">(printed(name)),
                                     bind<"NAMES">(ours(kind.names)));
  for (const std::string_view* parameter = kind.parameters; !parameter->empty(); ++parameter) {
    emit<"\t@PARAMETER@ ;\n">(out, bind<"PARAMETER">(ours(*parameter)));
  }
}

void write_stub(Sink& out, const StubKind& kind, Text name) {
  const std::string mark = vqc_stub_comment(name.view());
  emit<"/*\n@MARK@\n*/\n\n">(out, bind<"MARK">(printed(Text(std::string_view(mark)))));
  out.write("#ifndef   _NO_PROTO\n");
  write_new_style_head(out, kind, name);
  out.write("#else  /* _NO_PROTO */\n");
  write_old_style_head(out, kind, name);
  out.write("#endif /* _NO_PROTO */\n");
  out.write(kind.body);
}

/// The stubs of one kind, each name once and none that an earlier stubs file brought along.
class Stubs {
 public:
  explicit Stubs(const StubKind& kind) : kind_(kind) {}

  /// True when a stub was written.
  bool write(Run& run, Text name, Heading& heading) {
    if (vqc_check_stub_space(run, name) || !names_.add(name)) return false;
    heading.show();
    write_stub(run.out, kind_, name);
    return true;
  }

 private:
  const StubKind& kind_;
  NameSet names_;
};

void write_prelude_end(Run& run) { emit<"\n@MARK@\n">(run.out, bind<"MARK">(ours(vqc_stub_prelude_end()))); }

}  // namespace

void write_stubs_file(Run& run) {
  vqc_init_stubs_file(run, nullptr, write_code_includes, write_prelude_end);
  write_stub_functions(run);
  write_popup_functions(run);
}

void write_stub_functions(Run& run) {
  struct WidgetStubs {
    Text WidgetDef::*procedure;
    Stubs stubs;
  };
  Stubs init_stubs(family_initialisation);
  WidgetStubs widget_stubs[] = {
      {&WidgetDef::defined_name, Stubs(name_procedure)},      {&WidgetDef::realise, Stubs(create_procedure)},
      {&WidgetDef::abstract, Stubs(abstract_edit_procedure)}, {&WidgetDef::can_add_child, Stubs(child_test)},
      {&WidgetDef::appropriate_parent, Stubs(parent_test)},
  };
  bool written = false;
  for (const Family* family : run.families) {
    Heading heading(run, *family, "Stub functions");
    if (family->generate_family_init_stub) written |= init_stubs.write(run, family->family_init, heading);
    for (const auto& reference : family->widgets) {
      for (WidgetStubs& each : widget_stubs) {
        written |= each.stubs.write(run, reference.record->*each.procedure, heading);
      }
    }
  }
  if (written) run.out.write("\n");
}

void write_popup_functions(Run& run) {
  struct PopupStubs {
    Text PopupDef::*procedure;
    int builtin_kind;
    Stubs stubs;
  };
  PopupStubs popup_stubs[] = {
      {&PopupDef::name, BUILTIN_POPUP, Stubs(popup_create)},
      {&PopupDef::dialog_init, BUILTIN_POPUP_INIT, Stubs(popup_initialise)},
      {&PopupDef::dialog_update, BUILTIN_POPUP_UPDATE, Stubs(popup_update)},
  };
  bool written = false;
  for (const Family* family : run.families) {
    Heading heading(run, *family, "Resource dialog popup functions");
    for (const auto& reference : family->popups) {
      for (PopupStubs& each : popup_stubs) {
        const Text procedure = reference.record->*each.procedure;
        if (run.document.builtins.has(procedure, each.builtin_kind)) continue;
        written |= each.stubs.write(run, procedure, heading);
      }
    }
  }
  if (written) run.out.write("\n");
}

}  // namespace vqc
