#ifndef CHECK_CHECK_SUPPORT_H
#define CHECK_CHECK_SUPPORT_H

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "support/document.h"
#include "vqc/cmd/check/check.h"

/// What is said about a document: a line for each finding, in the order of the text.
using Sayings = std::vector<std::string>;

/// "id: words", and what was perhaps meant.
inline std::string saying(const Finding& finding) {
  const std::string words = std::string(kind_of(finding.id).name) + ": " + words_of(finding);
  return finding.suggestion.empty() ? words : words + " -> " + finding.suggestion;
}

/// A text that is read and checked.
struct Checked {
  explicit Checked(std::string_view text, const CheckOptions& options = {})
      : source(Source::from_text(text)), places(*source) {
    Diagnostics diagnostics;
    load(source, document, diagnostics, AfterError::go_on, &places);
    read_without_error = std::ranges::none_of(
        diagnostics.findings(), [](const Finding& each) { return kind_of(each.id).severity == Severity::error; });
    if (read_without_error) check(document, *source, places, options, diagnostics);
    findings = diagnostics.findings();
    std::ranges::stable_sort(findings, {}, [](const Finding& each) { return each.range.begin; });
  }

  /// The findings without the note on comments, which these tests write where they like.
  Findings worth_saying() const {
    Findings worth = findings;
    std::erase_if(worth, [](const Finding& each) { return each.id == FindingId::comments; });
    return worth;
  }

  Sayings said() const {
    Sayings lines;
    for (const Finding& finding : worth_saying()) lines.push_back(saying(finding));
    return lines;
  }

  std::shared_ptr<const Source> source;
  Places places;
  Document document;
  bool read_without_error = false;
  Findings findings;
};

/// What is said about a text in which "<" and ">" stand around where it has to be said.
inline Sayings said_at_marks(std::string_view marked, const CheckOptions& options = {}) {
  const MarkedText text(marked);
  const Checked checked(text.text, options);
  EXPECT_TRUE(checked.read_without_error) << text.text;
  std::vector<Range> ranges;
  for (const Finding& finding : checked.worth_saying()) ranges.push_back(finding.range);
  EXPECT_EQ(text.ranges, ranges) << text.text;
  return checked.said();
}

/// What is said about a sound document, or one in which marks do not matter.
inline Sayings said_about(std::string_view text, const CheckOptions& options = {}) {
  const Checked checked(text, options);
  EXPECT_TRUE(checked.read_without_error) << text;
  return checked.said();
}

#endif
