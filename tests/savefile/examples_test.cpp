#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/document.h"
#include "vqc/cmd/model/kinds.h"
#include "vqc/cmd/savefile/lexer.h"
#include "vqc/cmd/savefile/util.h"

namespace {

const std::string kExamples = std::string(TEST_DATA) + "/../examples/";

using Examples = DocumentTest;

TEST_F(Examples, AthenaIsWrittenAsItStands) {
  const std::string text = read_file(kExamples + "Athena.vqc");
  ASSERT_EQ(1, read_document(text));
  EXPECT_EQ(0, parse_errors);
  EXPECT_NE(nullptr, widget_pool.ptr("labelWidgetClass"));
  EXPECT_EQ(text, written_document());
}

TEST_F(Examples, TourIsReadToItsEndAndKeepsItsMeaning) {
  ASSERT_EQ(1, read_document(read_file(kExamples + "tour.vqc")));
  EXPECT_EQ(0, parse_errors);
  EXPECT_GT(family_count(), 0);
  const std::string once = written_document();
  ASSERT_EQ(1, read_document(once));
  EXPECT_EQ(once, written_document());
}

TEST_F(Examples, TourHasEveryKeyword) {
  Lexer lexer(openfile((kExamples + "tour.vqc").c_str(), "r"));
  std::set<int> found;
  for (lexer.next_token(); !lexer.is(SaveFileToken::end_of_input); lexer.next_token()) {
    if (lexer.is(SaveFileToken::keyword)) found.insert(static_cast<int>(lexer.keyword()));
  }
  EXPECT_EQ(68U, found.size());
}

}  // namespace
