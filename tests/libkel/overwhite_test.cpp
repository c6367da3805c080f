#include "libkel/overwhite.h"

#include <gtest/gtest.h>

using namespace vqc;

namespace {

TEST(Overwhite, SkipsEveryKindOfWhiteSpace) {
  char s[] = " \t\n\v\f\rword ";
  EXPECT_EQ(s + 6, overwhite(s));
}

TEST(Overwhite, StaysWhereThereIsNothingToSkip) {
  char s[] = "word";
  EXPECT_EQ(s, overwhite(s));
}

TEST(Overwhite, StopsAtTheEndOfBlanks) {
  char s[] = "   ";
  EXPECT_EQ(s + 3, overwhite(s));
  EXPECT_EQ('\0', *overwhite(s));
}

TEST(Overwhite, StaysAtTheEndOfAnEmptyString) {
  char s[] = "";
  EXPECT_EQ(s, overwhite(s));
}

TEST(Overwhite, StopsAtAByteThatOnlyALocaleWouldSkip) {
  char s[] = " \xa0x";
  EXPECT_EQ(s + 1, overwhite(s));
}

TEST(Overwhite, StopsAtOtherControlCharacters) {
  char s[] = " \x01x";
  EXPECT_EQ(s + 1, overwhite(s));
}

}  // namespace
