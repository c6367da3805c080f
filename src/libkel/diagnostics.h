#ifndef LIBKEL_DIAGNOSTICS_H
#define LIBKEL_DIAGNOSTICS_H

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "libkel/source.h"

namespace vqc {

/// How much a finding matters.
enum class Severity : std::uint8_t { error, warning, note };

/// The kinds of findings, as findings.def lists them.
enum class FindingId : std::uint8_t {
#define FINDING(id, severity, shown, words, explanation, example, cure) id,
#include "libkel/findings.def"
#undef FINDING
};

/// What belongs to a finding: words, and where they point if anywhere.
struct Note {
  std::optional<Range> range;
  std::string words;

  bool operator==(const Note&) const = default;
};

/// Something that has been found in a Source.
struct Finding {
  FindingId id;
  Range range;
  std::vector<std::string> arguments = {};
  std::vector<Note> notes = {};
  std::string suggestion = {};  // what was perhaps meant; empty for nothing

  bool operator==(const Finding&) const = default;
};

/// What has been found, in the order in which it was.
class Diagnostics {
 public:
  void add(Finding finding) { findings_.push_back(std::move(finding)); }
  const std::vector<Finding>& findings() const { return findings_; }
  bool empty() const { return findings_.empty(); }
  /// All of them, which are no longer here then.
  std::vector<Finding> take() { return std::exchange(findings_, {}); }

 private:
  std::vector<Finding> findings_;
};

/// What is known about a kind of finding, as findings.def has it.
struct FindingKind {
  const char* name;  // its id
  Severity severity;
  bool shown;         // even where nobody asks for it
  const char* words;  // with %0 and so on for the arguments
  const char* explanation;
  const char* example;  // a document of which this is the only finding
  const char* cure;     // the same document, mended
};

const char* severity_name(Severity severity);
const FindingKind& kind_of(FindingId id);
std::span<const FindingKind> finding_kinds();
bool has_errors(std::span<const Finding> findings);
/// What a finding says, its arguments filled in.
std::string words_of(const Finding& finding);
/// The sentence that offers a suggestion.
std::string suggestion_words(const Finding& finding);
/// What a kind of finding means, with its example and its cure.
std::string explanation_of(const FindingKind& kind);

}  // namespace vqc

#endif
