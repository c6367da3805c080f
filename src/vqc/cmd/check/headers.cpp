// The rules on headers, which look for files.

#include <unistd.h>

#include <string_view>
#include <unordered_set>

#include "vqc/cmd/check/given.h"
#include "vqc/cmd/check/header_files.h"
#include "vqc/cmd/check/rules.h"

namespace vqc {

/// Each name is looked for once. It is the headers of the generated files that count, not those of applications.
void headers_not_found(Inspection& inspection) {
  if (inspection.options.include_folders.empty()) return;
  std::unordered_set<std::string_view> looked_for;
  each_given(inspection.document, [&](const Given& given) {
    if (given.kind != ValueKind::header || given.text.empty()) return;
    if (!looked_for.insert(given.text.view()).second) return;
    if (find_header(inspection.options, given.text)) return;
    inspection.add(FindingId::header_not_found, place_of(inspection, given), {string_of(given.text)});
  });
}

/// What is generated has such headers after all others.
void headers_in_working_folder(Inspection& inspection) {
  if (inspection.options.include_folders.empty()) return;
  for (const auto* pool : {&inspection.document.code_headers, &inspection.document.config_headers}) {
    for (const HeaderEntry& header : *pool) {
      const std::string name = string_of(header.name);
      if (access(name.c_str(), F_OK) != 0) continue;
      inspection.add(FindingId::header_in_working_folder, inspection.place_of(header.name), {name});
    }
  }
}

}  // namespace vqc
