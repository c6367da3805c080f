#include <gtest/gtest.h>

#include <algorithm>

#include "support/document.h"
#include "support/random_document.h"

using namespace vqc;

namespace {

// Documents at random, sound and broken. An error is found exactly when the document is not read to its end.

class RandomDocuments : public DocumentTest {
 protected:
  /// Reads a text as the generators do: up to the first error. Whether its last item was read.
  bool is_read_to_the_end(const std::string& text) {
    document.clear();
    read_document(text);
    return document.families.find(Text(RandomDocument::kLast)) != nullptr;
  }

  /// Reads a text as a check does: beyond all errors.
  void find_all(const std::string& text) {
    document.clear();
    read_document(text, AfterError::go_on);
  }

  bool has_error() const {
    return has([](const FindingKind& kind) { return kind.severity == Severity::error; });
  }
  bool is_open_at_the_end() const {
    return has([](const FindingKind& kind) {
      return kind.name == std::string_view("open_text") || kind.name == std::string_view("open_comment");
    });
  }

 private:
  template <class Predicate>
  bool has(Predicate predicate) const {
    return std::ranges::any_of(diagnostics.findings(),
                               [&](const Finding& finding) { return predicate(kind_of(finding.id)); });
  }
};

TEST_F(RandomDocuments, ThatTheGrammarAllowsHaveNoError) {
  for (unsigned seed = 1; seed <= 500; ++seed) {
    const std::string text = RandomDocument(seed).text();
    ASSERT_TRUE(is_read_to_the_end(text)) << text;
    find_all(text);
    ASSERT_FALSE(has_error()) << text;
  }
}

TEST_F(RandomDocuments, HaveAnErrorExactlyWhenTheyAreNotReadToTheEnd) {
  int with_error = 0;
  for (unsigned seed = 1; seed <= 3000; ++seed) {
    const std::string text = RandomDocument(seed).broken_text();
    const bool is_read = is_read_to_the_end(text);
    find_all(text);
    // What is open at the end holds the last item.
    if (is_open_at_the_end() && !has_error()) continue;
    ASSERT_EQ(!is_read, has_error()) << seed << '\n' << text;
    with_error += has_error() ? 1 : 0;
  }
  EXPECT_LT(1000, with_error);
  EXPECT_GT(2900, with_error);
}

}  // namespace
