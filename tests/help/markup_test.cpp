#include "help/viewer/markup.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

/// The pieces, tags in brackets as they are, comments as "#", texts in bars.
std::string shown(std::string_view page) {
  std::string result;
  for (const Piece& piece : pieces_of(page)) {
    const std::string source(piece.source);
    result += piece.kind == Piece::Kind::tag ? source : piece.kind == Piece::Kind::comment ? "#" : "|" + source + "|";
  }
  return result;
}

TEST(Pieces, AreTagsCommentsAndText) { EXPECT_EQ("<p>|a |<b>|c|</b>#|d|", shown("<p>a <b>c</b><!-- <x> -->d")); }

TEST(Pieces, KeepAQuotedBracketInTheTag) { EXPECT_EQ("<a title='>' x=\">\">|b|", shown("<a title='>' x=\">\">b")); }

TEST(Pieces, TakeAQuoteThatIsNotClosedForACharacter) { EXPECT_EQ("<p title=\"x>|b|", shown("<p title=\"x>b")); }

TEST(Pieces, LeaveALoneBracketInTheText) { EXPECT_EQ("|a < b <|", shown("a < b <")); }

TEST(Pieces, MayEndInTheMiddle) {
  EXPECT_EQ("|a|<b", shown("a<b"));
  EXPECT_EQ("|a|#", shown("a<!-- b"));
}

TEST(Tag, HasANameInLowerCase) {
  EXPECT_EQ("h1", name_of("<H1 align=center>"));
  EXPECT_EQ("/h1", name_of("</H1>"));
  EXPECT_EQ("br", name_of("<br/>"));
  EXPECT_EQ("!doctype", name_of("<!DOCTYPE html>"));
}

TEST(Attribute, IsFoundHoweverItIsWritten) {
  EXPECT_EQ("b c", attribute("<a x=\"1\" href=\"b c\">", "href"));
  EXPECT_EQ("b", attribute("<a HREF = 'b'>", "href"));
  EXPECT_EQ("b", attribute("<a href=b x=1>", "href"));
  EXPECT_EQ("a&b", attribute("<a href='a&amp;b'>", "href"));
  EXPECT_EQ("b>", attribute("<a href='b>'>", "href"));
}

TEST(Attribute, IsEmptyWhereThereIsNone) {
  EXPECT_EQ("", attribute("<a name=href>", "href"));
  EXPECT_EQ("", attribute("<a href>", "href"));
  EXPECT_EQ("", attribute("<a title='href=x'>", "href"));
  EXPECT_EQ("", attribute("<a = '", "href"));
}

}  // namespace
