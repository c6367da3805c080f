#ifndef SUPPORT_DOCUMENT_H
#define SUPPORT_DOCUMENT_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "libkel/diagnostics.h"
#include "support/model.h"
#include "vqc/cmd/savefile/load.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

/// The document as the writer writes it.
inline std::string saved(const Document& document) {
  StringSink out;
  save(document, out);
  EXPECT_TRUE(out.finish());
  return out.text();
}

namespace vqc {

inline void PrintTo(const Range& range, std::ostream* out) { *out << range.begin << " to " << range.end; }

inline void PrintTo(const Finding& finding, std::ostream* out) {
  *out << kind_of(finding.id).name << " from " << finding.range.begin << " to " << finding.range.end;
  for (const std::string& argument : finding.arguments) *out << ", " << argument;
}

}  // namespace vqc

using Findings = std::vector<Finding>;

/// A text in which "<" and ">" stand around ranges, apart from each other.
struct MarkedText {
  explicit MarkedText(std::string_view marked) {
    for (char c : marked) {
      if (c == '<') ranges.push_back({text.size(), text.size()});
      if (c == '>') ranges.back().end = text.size();
      if (c != '<' && c != '>') text += c;
    }
  }

  std::string text;  // without the marks
  std::vector<Range> ranges;
};

/// A test on a document of its own, which is empty at first.
class DocumentTest : public testing::Test {
 protected:
  /// Adds a text to the document. What is found in it takes the place of what was found before.
  LoadResult read_document(std::string_view text, AfterError after_error = AfterError::stop, Places* places = nullptr) {
    diagnostics = {};
    return load(Source::from_text(text), document, diagnostics, after_error, places);
  }

  Document document;
  Diagnostics diagnostics;
};

#endif
