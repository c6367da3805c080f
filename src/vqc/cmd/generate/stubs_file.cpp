#include "vqc/cmd/generate/stubs_file.h"

#include <cstring>
#include <string>

#include "vqc/cmd/generate/includes.h"
#include "vqc/cmd/generate/name_set.h"
#include "vqc/cmd/generate/parse_stubs.h"
#include "vqc/cmd/model/builtin.h"

namespace {

/// How the stubs of one kind of procedure look.
struct StubKind {
  const char* returns;  // up to the procedure's name
  const char* names;    // of the parameters
  const char* parameters[6];
  const char* body;
  int further_in = 0;  // how many blanks more the parameters after the first are indented
};

constexpr const char* kEmptyBody = "{\n\t/* FIXME */\n}\n\n";

constexpr StubKind name_procedure{"char *", "name", {"char *name"}, "{\n\t/* FIXME */\n\n\treturn (name) ;\n}\n\n"};
constexpr StubKind create_procedure{
    "Widget ",
    "name, widget_class, parent, args, arg_count",
    {"char       *name", "WidgetClass widget_class", "Widget      parent", "ArgList     args", "Cardinal    arg_count"},
    "{\n\t/* FIXME */\n\n\treturn XtCreateWidget(name, widget_class, parent, args, arg_count) ;\n}\n\n"};
constexpr StubKind abstract_edit_procedure{
    "Boolean ",
    "xwidget, abstract_child, recurse, editable",
    {"XWidget_p xwidget", "Widget    abstract_child", "Boolean  *recurse", "Boolean  *editable"},
    "{\n\t/* FIXME */\n\n\t*recurse  = True ;\n\t*editable = True ;\n\n\treturn True ;\n}\n\n",
    1};
constexpr StubKind child_test{"Boolean ",
                              "parent_xwidget, child_class",
                              {"XWidget_p   parent_xwidget", "WidgetClass child_class"},
                              "{\n\t/* FIXME */\n\n\treturn False ;\n}\n\n"};
constexpr StubKind parent_test{"Boolean ",
                               "parent, child_class",
                               {"Widget      parent", "WidgetClass child_class"},
                               "{\n\t/* FIXME */\n\n\treturn True ;\n}\n\n"};
constexpr StubKind family_initialisation{"void ", "shell", {"Widget shell"}, kEmptyBody};
constexpr StubKind popup_create{"void ", "parent", {"Widget parent"}, kEmptyBody};
constexpr StubKind popup_initialise{"void ",
                                    "source_text, current, resource_name",
                                    {"Widget      source_text", "Widget      current", "char       *resource_name"},
                                    kEmptyBody};
constexpr StubKind popup_update{"void ", "current", {"Widget current"}, kEmptyBody};

void write_new_style_head(Stream& out, const StubKind& kind, const Text& name) {
  const std::string indent(std::strlen(kind.returns) + name.view().size() + 1, ' ');
  const std::string further(static_cast<std::size_t>(kind.further_in), ' ');
  emit<"@RETURNS@@NAME@(@FIRST_PARAMETER@">(out, kind.returns, name, kind.parameters[0]);
  for (const char* const* parameter = kind.parameters + 1; *parameter; ++parameter) {
    emit<",\n@INDENT@@FURTHER@@PARAMETER@">(out, indent, further, *parameter);
  }
  charout(&out, ")\n");
}

void write_old_style_head(Stream& out, const StubKind& kind, const Text& name) {
  emit<"@RETURNS@@NAME@(@NAMES@)\n">(out, kind.returns, name, kind.names);
  for (const char* const* parameter = kind.parameters; *parameter; ++parameter) {
    emit<"\t@PARAMETER@ ;\n">(out, *parameter);
  }
}

void write_stub(Stream& out, const StubKind& kind, const Text& name) {
  emit<"/*\n@MARK@\n*/\n\n">(out, vqc_stub_comment(name));
  charout(&out, "#ifndef   _NO_PROTO\n");
  write_new_style_head(out, kind, name);
  charout(&out, "#else  /* _NO_PROTO */\n");
  write_old_style_head(out, kind, name);
  charout(&out, "#endif /* _NO_PROTO */\n");
  charout(&out, kind.body);
}

/// The stubs of one kind, each name once and none that an earlier stubs file brought along.
class Stubs {
 public:
  explicit Stubs(const StubKind& kind) : kind_(kind) {}

  /// True when a stub was written.
  bool write(Run& run, const Text& name, Heading& heading) {
    if (vqc_check_stub_space(name) || !names_.add(name)) return false;
    heading.show();
    write_stub(run.out, kind_, name);
    return true;
  }

 private:
  const StubKind& kind_;
  NameSet names_;
};

void write_prelude_end(Run& run) { emit<"\n@MARK@\n">(run.out, vqc_stub_prelude_end()); }

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
  each_family([&](Family& family) {
    Heading heading(run, family, "Stub functions");
    if (family.generate_family_init_stub) written |= init_stubs.write(run, family.family_init, heading);
    for (const auto& reference : family.widgets) {
      for (WidgetStubs& each : widget_stubs) {
        written |= each.stubs.write(run, reference.record->*each.procedure, heading);
      }
    }
  });
  if (written) charout(&run.out, "\n");
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
  each_family([&](Family& family) {
    Heading heading(run, family, "Resource dialog popup functions");
    for (const auto& reference : family.popups) {
      for (PopupStubs& each : popup_stubs) {
        const Text& procedure = reference.record->*each.procedure;
        if (check_builtin_name(procedure, each.builtin_kind)) continue;
        written |= each.stubs.write(run, procedure, heading);
      }
    }
  });
  if (written) charout(&run.out, "\n");
}
