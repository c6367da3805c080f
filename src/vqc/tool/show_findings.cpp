// Which findings are shown, and how many there are.

#include "vqc/tool/show_findings.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "vqc/tool/counted.h"

namespace vqc {

namespace {

bool has(const std::vector<std::string>& names, const char* name) {
  return std::ranges::find(names, name) != names.end();
}

/// Whether a finding counts in this run. Errors always do.
bool is_wanted(const FindingChoice& choice, const FindingKind& kind) {
  if (kind.severity == Severity::error) return true;
  if (has(choice.silenced, kind.name)) return false;
  if (!choice.only.empty()) return has(choice.only, kind.name);
  return kind.shown || has(choice.added, kind.name);
}

Severity severity_in(const FindingChoice& choice, const FindingKind& kind) {
  const bool raised = choice.warnings_are_errors && kind.severity == Severity::warning;
  return raised ? Severity::error : kind.severity;
}

}  // namespace

void show_findings(const CheckedDocument& checked, const FindingChoice& choice, FindingsWriter& writer,
                   FindingCounts& counts) {
  std::size_t of_document = 0;
  for (const Finding& finding : checked.findings) {
    const FindingKind& kind = kind_of(finding.id);
    if (!is_wanted(choice, kind)) continue;
    const Severity severity = severity_in(choice, kind);
    ++counts[severity];
    if (of_document++ >= choice.most_shown) continue;
    writer.write({*checked.source, finding, severity});
    ++counts.shown;
  }
}

void write_summary(FindingCounts counts) {
  if (counts.all() == 0) return;
  std::string text;
  for (Severity severity : {Severity::error, Severity::warning, Severity::note}) {
    if (counts[severity] > 0) add_part(text, counted(counts[severity], severity_name(severity)));
  }
  if (counts.shown < counts.all()) text += " (" + std::to_string(counts.shown) + " shown)";
  std::fprintf(stderr, "%s\n", text.c_str());
}

bool wants_colour(const std::string& when) {
  if (when != "auto") return when == "always";
  const char* refused = std::getenv("NO_COLOR");
  return isatty(STDOUT_FILENO) && !(refused && *refused);
}

}  // namespace vqc
