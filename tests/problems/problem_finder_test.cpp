#include "vqc/cmd/problems/problem_finder.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <string>

#include "support/document.h"

namespace {

class ProblemFinderTest : public DocumentTest {
 protected:
  DocumentToCheck read(const std::string& text) {
    document.clear();
    read_document("VQconfig\n" + text);
    return {capture(document, nullptr)};
  }

  /// Waits until something has been found.
  bool has_found(int milliseconds = 5000) {
    pollfd end{finder.descriptor(), POLLIN, 0};
    return poll(&end, 1, milliseconds) == 1;
  }

  std::size_t warnings_found() {
    EXPECT_TRUE(has_found());
    const auto problems = finder.found();
    return problems ? problems->count(Severity::warning) : 0;
  }

  ProblemFinder finder;
};

constexpr const char* kOneProblem = "alias 'A' { }\nfamily 'F' { alias='A' }\n";

TEST_F(ProblemFinderTest, TellsWhenSomethingHasBeenFound) {
  finder.take(read(kOneProblem));
  EXPECT_EQ(1U, warnings_found());
  EXPECT_EQ(nullptr, finder.found());
  EXPECT_FALSE(has_found(0));
}

TEST_F(ProblemFinderTest, TellsThatThereIsNothingToo) {
  finder.take(read("family 'F' { }\n"));
  EXPECT_TRUE(has_found());
  const auto problems = finder.found();
  ASSERT_TRUE(problems);
  EXPECT_EQ(Problems(), *problems);
}

TEST_F(ProblemFinderTest, GoesOnWithWhatTheDocumentHasBecome) {
  finder.take(read(kOneProblem));
  EXPECT_EQ(1U, warnings_found());
  finder.take(read("alias 'A' { }\nalias 'B' { }\nfamily 'F' { alias='A' alias='B' }\n"));
  EXPECT_EQ(2U, warnings_found());
}

TEST_F(ProblemFinderTest, FindsNothingInADocumentThatHasChangedSince) {
  finder.take(read(kOneProblem));
  finder.take(read("family 'F' { }\n"));
  EXPECT_EQ(0U, warnings_found());
  EXPECT_FALSE(has_found(500));
}

/// A document that takes a while.
std::string large_text() {
  std::string text;
  for (int i = 0; i < 20000; ++i) text += "alias 'A" + std::to_string(i) + "' { }\n";
  return text;
}

TEST_F(ProblemFinderTest, StartsOverWhenTheDocumentChangesMeanwhile) {
  finder.take(read(large_text()));
  EXPECT_FALSE(has_found(static_cast<int>(Background<int>::kRest.count()) + 20));  // it is being looked at
  finder.take(read(kOneProblem));
  EXPECT_EQ(1U, warnings_found());
  EXPECT_FALSE(has_found(500));
}

TEST_F(ProblemFinderTest, CanGoWhileItIsAtWork) {
  finder.take(read(large_text()));
  EXPECT_FALSE(has_found(static_cast<int>(Background<int>::kRest.count()) + 20));
}

}  // namespace
