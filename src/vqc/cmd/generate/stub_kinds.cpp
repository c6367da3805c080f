// The stubs: how they look, and which of them a document wants.

#include "vqc/cmd/generate/stub_kinds.h"

#include <string>

namespace vqc {

namespace {

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

constexpr const StubKind* all_kinds[] = {
    &name_procedure,        &create_procedure, &abstract_edit_procedure, &child_test,   &parent_test,
    &family_initialisation, &popup_create,     &popup_initialise,        &popup_update,
};

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

/// The stubs of one kind, each name once.
class StubsOfKind {
 public:
  explicit StubsOfKind(const StubKind& kind) : kind_(kind) {}

  void add(Text name, const Family& family, std::vector<Stub>& stubs) {
    if (names_.add(name)) stubs.push_back({kind_, name, family});
  }

 private:
  const StubKind& kind_;
  NameSet names_;
};

}  // namespace

std::span<const StubKind* const> all_stub_kinds() { return all_kinds; }

std::vector<Stub> function_stubs(std::span<const Family* const> families) {
  struct WidgetStubs {
    Text WidgetDef::*procedure;
    StubsOfKind stubs;
  };
  StubsOfKind init_stubs(family_initialisation);
  WidgetStubs widget_stubs[] = {
      {&WidgetDef::defined_name, StubsOfKind(name_procedure)},
      {&WidgetDef::realise, StubsOfKind(create_procedure)},
      {&WidgetDef::abstract, StubsOfKind(abstract_edit_procedure)},
      {&WidgetDef::can_add_child, StubsOfKind(child_test)},
      {&WidgetDef::appropriate_parent, StubsOfKind(parent_test)},
  };
  std::vector<Stub> stubs;
  for (const Family* family : families) {
    if (family->generate_family_init_stub) init_stubs.add(family->family_init, *family, stubs);
    for (const auto& reference : family->widgets) {
      for (WidgetStubs& each : widget_stubs) each.stubs.add(reference.record->*each.procedure, *family, stubs);
    }
  }
  return stubs;
}

std::vector<Stub> popup_stubs(const Document& document, std::span<const Family* const> families) {
  struct PopupStubs {
    Text PopupDef::*procedure;
    int builtin_kind;
    StubsOfKind stubs;
  };
  PopupStubs popup_stubs[] = {
      {&PopupDef::name, BUILTIN_POPUP, StubsOfKind(popup_create)},
      {&PopupDef::dialog_init, BUILTIN_POPUP_INIT, StubsOfKind(popup_initialise)},
      {&PopupDef::dialog_update, BUILTIN_POPUP_UPDATE, StubsOfKind(popup_update)},
  };
  std::vector<Stub> stubs;
  for (const Family* family : families) {
    for (const auto& reference : family->popups) {
      for (PopupStubs& each : popup_stubs) {
        const Text procedure = reference.record->*each.procedure;
        if (!document.builtins.has(procedure, each.builtin_kind)) each.stubs.add(procedure, *family, stubs);
      }
    }
  }
  return stubs;
}

void write_stub_head(Sink& out, const StubKind& kind, Text name) {
  out.write("#ifndef   _NO_PROTO\n");
  write_new_style_head(out, kind, name);
  out.write("#else  /* _NO_PROTO */\n");
  write_old_style_head(out, kind, name);
  out.write("#endif /* _NO_PROTO */\n");
}

}  // namespace vqc
