// Any bytes that are read without an error are checked. What is found stands in the text and has words, is found again
// in the same order, and changes nothing in the document.

#include <algorithm>

#include "support.h"
#include "vqc/cmd/check/check.h"

namespace {

bool is_error(const Finding& finding) { return kind_of(finding.id).severity == Severity::error; }

std::vector<Finding> checked(const Document& document, const Reading& reading) {
  Diagnostics findings;
  check(document, *reading.source, reading.places, {}, findings);
  return findings.findings();
}

void check_finding(const Finding& finding, std::size_t size) {
  const auto stands_in_text = [&](Range range) { return range.begin <= range.end && range.end <= size; };
  require(stands_in_text(finding.range), "a finding stands outside the text");
  require(!words_of(finding).empty(), "a finding has no words");
  require(!is_error(finding), "a check finds an error in what can be read");
  for (const Note& note : finding.notes) {
    require(!note.range || stands_in_text(*note.range), "a note stands outside the text");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Document document;
  const Reading reading = read_into(document, text, AfterError::go_on);
  if (std::ranges::any_of(reading.diagnostics.findings(), is_error)) return 0;
  const std::string before = saved(document);
  const std::vector<Finding> findings = checked(document, reading);
  for (const Finding& finding : findings) check_finding(finding, size);
  require(checked(document, reading) == findings, "the same document is checked otherwise");
  require(saved(document) == before, "checking changes a document");
  return 0;
}
