#ifndef VQC_TOOL_SHOW_FINDINGS_H
#define VQC_TOOL_SHOW_FINDINGS_H

#include <cstddef>
#include <string>
#include <vector>

#include "vqc/tool/checked_document.h"
#include "vqc/tool/findings_writer.h"

namespace vqc {

/// Which findings a run shows, and what it takes warnings for.
struct FindingChoice {
  bool warnings_are_errors = false;
  std::vector<std::string> only;
  std::vector<std::string> silenced;
  std::vector<std::string> added;
  std::size_t most_shown = 100;  // of each document
};

/// How many findings there are of each severity, and how many of them were shown.
struct FindingCounts {
  std::size_t of[3] = {};
  std::size_t shown = 0;

  std::size_t& operator[](Severity severity) { return of[static_cast<std::size_t>(severity)]; }
  std::size_t all() const { return of[0] + of[1] + of[2]; }
};

/// Shows what was found in a document, and counts it.
void show_findings(const CheckedDocument& checked, const FindingChoice& choice, FindingsWriter& writer,
                   FindingCounts& counts);

/// Says how many there are on standard error; nothing when there are none.
void write_summary(FindingCounts counts);

/// Whether standard output is to be in colour. `when` is auto, always or never.
bool wants_colour(const std::string& when);

}  // namespace vqc

#endif
