// Names of findings on the command line.

#include "vqc/tool/finding_names.h"

#include <algorithm>

#include "libkel/nearest.h"

namespace vqc {

const FindingKind* find_kind(const std::string& name) {
  const auto kinds = finding_kinds();
  const auto found = std::ranges::find_if(kinds, [&](const FindingKind& kind) { return kind.name == name; });
  return found == kinds.end() ? nullptr : &*found;
}

std::string no_such_kind(const std::string& name) {
  std::vector<std::string_view> names;
  for (const FindingKind& kind : finding_kinds()) names.emplace_back(kind.name);
  const std::string_view meant = nearest(name, names);
  return "there is no finding '" + name + "'" + (meant.empty() ? "" : "; did you mean '" + std::string(meant) + "'?");
}

void add_finding_option(CLI::App& command, const char* option, std::vector<std::string>& names, const char* about) {
  const auto is_changeable = [](const std::string& name) -> std::string {
    const FindingKind* kind = find_kind(name);
    if (!kind) return no_such_kind(name);
    return kind->severity == Severity::error ? "'" + name + "' is an error, which is always shown" : "";
  };
  command.add_option(option, names, about)->check(is_changeable, "")->type_name("ID")->allow_extra_args(false);
}

}  // namespace vqc
