// Reads what the user's resource files say about the whole program.

#include "vqc/cmd/editors/program/resources.h"

#include <X11/StringDefs.h>

#include <cstdio>
#include <memory>
#include <string>

#include "vqc/cmd/editors/kit/given_options.h"

namespace vqc::editors {

namespace {

struct Resources {
  char* help_dir;
  Boolean verbose_code;
  Boolean comment_code;
  Boolean generate_options;
  Boolean java_compatible_widgets;
  Boolean mfc_compatible_widgets;
  char* names[10];
};
Resources resources;

constexpr const char* kHelpDir =
    "${VQROOT}/lib/locale/%L/help/local/%N%S:${VQROOT}/lib/locale/C/help/local/%N%S:"
    "${VQROOT}/lib/locale/%L/help/%N%S:${VQROOT}/lib/locale/C/help/%N%S:${USER_WIDGETS}/help/%N%S";

XtResource string_resource(const char* name, std::size_t offset, const char* default_value) {
  return {const_cast<char*>(name),       const_cast<char*>(XtCString), const_cast<char*>(XtRString),    sizeof(char*),
          static_cast<Cardinal>(offset), const_cast<char*>(XtRString), const_cast<char*>(default_value)};
}

/// The toolkit keeps small values where it expects the addresses of large ones.
XtPointer immediate(bool value) {
  return reinterpret_cast<XtPointer>(XtArgVal{value});  // NOLINT(performance-no-int-to-ptr)
}

XtResource boolean_resource(const char* name, std::size_t offset, bool default_value) {
  return {const_cast<char*>(name), const_cast<char*>(XtCBoolean), const_cast<char*>(XtRBoolean),
          sizeof(Boolean),         static_cast<Cardinal>(offset), const_cast<char*>(XtRImmediate),
          immediate(default_value)};
}

/// The name of a resource, and the option that it stands behind.
struct NameResource {
  const char* name;
  NameOption NameOptions::*option;
};
constexpr NameResource name_resources[] = {
    {"familyTableString", &NameOptions::family_table},   {"familyNamesString", &NameOptions::family_names},
    {"xwidgetArrayString", &NameOptions::xwidgets},      {"enumerationArrayString", &NameOptions::enumerations},
    {"aliasArrayString", &NameOptions::aliases},         {"converterArrayString", &NameOptions::converters},
    {"popupArrayString", &NameOptions::popups},          {"stop_list_array_string", &NameOptions::stop_list},
    {"family_count_string", &NameOptions::family_count}, {"page_names_string", &NameOptions::page_names},
};

/// What a shell makes of `text`, as echo prints it: the first line. `text` itself when there is no shell.
std::string expanded_by_shell(const std::string& text) {
  const std::unique_ptr<FILE, int (*)(FILE*)> shell(popen(("echo " + text).c_str(), "r"), pclose);
  if (!shell) return text;
  std::string line;
  for (int c = std::getc(shell.get()); c != EOF && c != '\n'; c = std::getc(shell.get())) line += static_cast<char>(c);
  return line;
}

}  // namespace

void vqc_init_resources(Widget shell) {
  XtResource table[6 + std::size(name_resources)] = {
      string_resource("helpDir", offsetof(Resources, help_dir), kHelpDir),
      boolean_resource("verboseCode", offsetof(Resources, verbose_code), true),
      boolean_resource("commentCode", offsetof(Resources, comment_code), true),
      boolean_resource("generateOptions", offsetof(Resources, generate_options), false),
      boolean_resource("javaCompatibleWidgets", offsetof(Resources, java_compatible_widgets), false),
      boolean_resource("mfcCompatibleWidgets", offsetof(Resources, mfc_compatible_widgets), false),
  };
  for (std::size_t i = 0; i < std::size(name_resources); ++i) {
    const auto& [name, option] = name_resources[i];
    table[6 + i] =
        string_resource(name, offsetof(Resources, names) + i * sizeof(char*), (NameOptions().*option).builtin);
  }
  XtGetApplicationResources(shell, &resources, table, XtNumber(table), nullptr, 0);
  application_resources = {.verbose_code = resources.verbose_code != 0,
                           .comment_code = resources.comment_code != 0,
                           .generate_options = resources.generate_options != 0,
                           .java_compatible_widgets = resources.java_compatible_widgets != 0,
                           .mfc_compatible_widgets = resources.mfc_compatible_widgets != 0};
  edited_document.compatibility = {.mfc = vqc_mfc_compatible_widgets(), .java = vqc_java_compatible_widgets()};
  for (std::size_t i = 0; i < std::size(name_resources); ++i) {
    (edited_document.names.*name_resources[i].option).resource = resources.names[i];
  }
}

std::string vqc_HelpPath(Display* display, const char* topic) {
  if (!resources.help_dir) return {};
  static const std::string path = expanded_by_shell(resources.help_dir);
  char* file = XtResolvePathname(display, "help", topic ? topic : "entry", ".html", path.c_str(), nullptr, 0, nullptr);
  std::string result = file ? file : "";
  XtFree(file);
  return result;
}

}  // namespace vqc::editors
