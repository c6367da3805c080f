#include "vqc/cmd/savefile/keywords.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "savefile/keyword_table.h"

using namespace vqc;

namespace {

TEST(Keywords, AreFoundWithTheirNumbers) {
  for (const KeywordRow& row : keyword_table) {
    const Keyword* found = find_keyword(row.word);
    ASSERT_NE(nullptr, found) << row.word;
    EXPECT_EQ(row.word, found->word);
    EXPECT_EQ(row.number, static_cast<int>(found->kw)) << row.word;
  }
}

TEST(Keywords, AreSpelledAsTheyAreFound) {
  for (const KeywordRow& row : keyword_table) {
    EXPECT_EQ(row.word, keyword_text(static_cast<Kw>(row.number)));
  }
}

TEST(Keywords, AreSixtyEight) { EXPECT_EQ(68u, std::size(keyword_table)); }

TEST(Keywords, TellCaseApart) {
  for (const KeywordRow& row : keyword_table) {
    std::string changed = row.word;
    changed[0] = static_cast<char>(changed[0] ^ 0x20);
    EXPECT_EQ(nullptr, find_keyword(changed)) << changed;
  }
  EXPECT_EQ(nullptr, find_keyword("vqconfig"));
  EXPECT_EQ(nullptr, find_keyword("VQCONFIG"));
}

TEST(Keywords, AreWholeWords) {
  for (const KeywordRow& row : keyword_table) {
    const std::string word = row.word;
    EXPECT_EQ(nullptr, find_keyword(word + "x")) << word;
    EXPECT_EQ(nullptr, find_keyword(word + ".")) << word;
    EXPECT_EQ(nullptr, find_keyword(" " + word)) << word;
  }
  EXPECT_EQ(nullptr, find_keyword("famil"));
  EXPECT_EQ(nullptr, find_keyword(""));
}

TEST(Keywords, AreNoOtherWords) {
  for (const char* word : {"True", "False", "VQC_FREE", "name", "zzz", "A", "~"}) {
    EXPECT_EQ(nullptr, find_keyword(word)) << word;
  }
}

}  // namespace
