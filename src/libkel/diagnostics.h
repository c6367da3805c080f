#ifndef LIBKEL_DIAGNOSTICS_H
#define LIBKEL_DIAGNOSTICS_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "libkel/source.h"

namespace vqc {

/// How much a finding matters.
enum class Severity : std::uint8_t { error, warning, note };

/// The kinds of findings, as findings.def lists them.
enum class FindingId : std::uint8_t {
#define FINDING(id, severity, words) id,
#include "libkel/findings.def"
#undef FINDING
};

/// Something that has been found in a Source.
struct Finding {
  FindingId id;
  Range range;
  std::vector<std::string> arguments = {};

  bool operator==(const Finding&) const = default;
};

/// What has been found, in the order in which it was.
class Diagnostics {
 public:
  void add(Finding finding) { findings_.push_back(std::move(finding)); }
  const std::vector<Finding>& findings() const { return findings_; }
  bool empty() const { return findings_.empty(); }

 private:
  std::vector<Finding> findings_;
};

Severity severity_of(FindingId id);
/// The name of a kind, as findings.def has it.
const char* name_of(FindingId id);
/// What a finding says, its arguments filled in.
std::string words_of(const Finding& finding);

}  // namespace vqc

#endif
