// The kinds of findings and their words.

#include "libkel/diagnostics.h"

#include <cstddef>

namespace vqc {

namespace {

struct Kind {
  const char* name;
  Severity severity;
  const char* words;
};

constexpr Kind kinds[] = {
#define FINDING(id, severity, words) {#id, Severity::severity, words},
#include "libkel/findings.def"
#undef FINDING
};

const Kind& kind_of(FindingId id) { return kinds[static_cast<std::size_t>(id)]; }

}  // namespace

Severity severity_of(FindingId id) { return kind_of(id).severity; }

const char* name_of(FindingId id) { return kind_of(id).name; }

std::string words_of(const Finding& finding) {
  std::string words;
  for (const char* c = kind_of(finding.id).words; *c; ++c) {
    if (*c == '%') {
      words += finding.arguments.at(static_cast<std::size_t>(*++c - '0'));
    } else {
      words += *c;
    }
  }
  return words;
}

}  // namespace vqc
