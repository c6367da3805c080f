#include <gtest/gtest.h>

#include "check/check_support.h"

namespace {

// The rule on the encoding of a document.

TEST(Bytes, ThatAreUtf8AreGood) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig family 'Kn\xC3\xB6pfe' { page='\\195\\182' }"));
}

TEST(Bytes, ThatAreNoneAreNotedOnceWithTheNumberOfTexts) {
  EXPECT_EQ((Sayings{"bytes_not_utf8: texts that are no UTF-8: 2"}),
            said_at_marks("VQconfig family 'Kn<\xF6>pf\xF6' { page='\xC3\xB6' page='\xFF' }"));
}

TEST(Bytes, OfEscapesCountToo) {
  EXPECT_EQ((Sayings{"bytes_not_utf8: texts that are no UTF-8: 1"}),
            said_at_marks("VQconfig family <'Kn\\246pfe'> {}"));
}

TEST(Bytes, OfCommentsAreNoMatter) { EXPECT_EQ(Sayings{}, said_about("VQconfig ! \xF6\n /* \xFF */ family 'F' {}")); }

}  // namespace
