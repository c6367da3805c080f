#include "libkel/diagnostics.h"

#include <gtest/gtest.h>

using namespace vqc;

namespace {

TEST(Diagnostics, KeepTheOrderOfWhatIsFound) {
  Diagnostics findings;
  EXPECT_TRUE(findings.empty());
  findings.add({FindingId::unclosed_block, {7, 8}});
  findings.add({FindingId::expected_character, {1, 2}, {"="}});
  ASSERT_EQ(2u, findings.findings().size());
  EXPECT_EQ((Finding{FindingId::unclosed_block, {7, 8}}), findings.findings()[0]);
  EXPECT_EQ((Range{1, 2}), findings.findings()[1].range);
}

TEST(Findings, HaveWordsWithTheirArguments) {
  EXPECT_EQ("expected '='", words_of({FindingId::expected_character, {}, {"="}}));
  EXPECT_EQ("'%1' cannot stand here", words_of({FindingId::misplaced_word, {}, {"%1"}}));
  EXPECT_EQ("this block is not closed", words_of({FindingId::unclosed_block, {}}));
}

TEST(Findings, HaveNamesAndSeverities) {
  EXPECT_STREQ("unclosed_block", kind_of(FindingId::unclosed_block).name);
  EXPECT_EQ(Severity::error, kind_of(FindingId::unclosed_block).severity);
}

}  // namespace
