#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/document.h"
#include "support/files.h"
#include "vqc/cmd/savefile/lexer.h"

using namespace vqc;

namespace {

const std::string kExamples = std::string(TEST_DATA) + "/../examples/";

class Examples : public DocumentTest {
 protected:
  /// Reads a text that must have no fault.
  void read(const std::string& text) {
    EXPECT_TRUE(read_document(text).has_header);
    EXPECT_EQ(Findings{}, diagnostics.findings());
  }
};

TEST_F(Examples, AthenaIsWrittenAsItStands) {
  const std::string text = read_file(kExamples + "Athena.vqc");
  read(text);
  EXPECT_NE(nullptr, document.widgets.find("labelWidgetClass"));
  EXPECT_EQ(text, saved(document));
}

TEST_F(Examples, TourIsReadToItsEndAndKeepsItsMeaning) {
  read(read_file(kExamples + "tour.vqc"));
  EXPECT_GT(document.families.size(), 0U);
  const std::string once = saved(document);
  document.clear();
  read(once);
  EXPECT_EQ(once, saved(document));
}

TEST_F(Examples, TourHasEveryKeyword) {
  const auto tour = Source::read((kExamples + "tour.vqc").c_str());
  ASSERT_TRUE(tour);
  Lexer lexer(*tour);
  std::set<int> found;
  for (lexer.next_token(); !lexer.is(SaveFileToken::end_of_input); lexer.next_token()) {
    if (lexer.is(SaveFileToken::keyword)) found.insert(static_cast<int>(lexer.keyword()));
  }
  EXPECT_EQ(68U, found.size());
}

}  // namespace
