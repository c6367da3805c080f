// The kinds of findings and their words.

#include "libkel/diagnostics.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vqc {

namespace {

constexpr bool on = true;
constexpr bool off = false;

constexpr FindingKind kinds[] = {
#define FINDING(id, severity, shown, words, explanation, example, cure) \
  {#id, Severity::severity, shown, words, explanation, example, cure},
#include "libkel/findings.def"
#undef FINDING
};

/// A text whose lines begin further in.
std::string indented(std::string_view text) {
  std::string result;
  bool at_start = true;
  for (char c : text) {
    if (at_start && c != '\n') result += "    ";
    result += c;
    at_start = c == '\n';
  }
  return result;
}

}  // namespace

const char* severity_name(Severity severity) {
  constexpr const char* kNames[] = {"error", "warning", "note"};
  return kNames[static_cast<std::size_t>(severity)];
}

const FindingKind& kind_of(FindingId id) { return kinds[static_cast<std::size_t>(id)]; }

std::span<const FindingKind> finding_kinds() { return kinds; }

bool has_errors(std::span<const Finding> findings) {
  return std::ranges::any_of(findings,
                             [](const Finding& each) { return kind_of(each.id).severity == Severity::error; });
}

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

std::string suggestion_words(const Finding& finding) { return "did you mean '" + finding.suggestion + "'?"; }

std::string explanation_of(const FindingKind& kind) {
  return std::string(kind.explanation) + "\n\nFor example:\n\n" + indented(kind.example) + "\nMended:\n\n" +
         indented(kind.cure);
}

}  // namespace vqc
