#include "libkel/nextwhite.h"

#include <gtest/gtest.h>

#include "libkel/overwhite.h"

using namespace vqc;

namespace {

TEST(Nextwhite, StopsAtEveryKindOfWhiteSpace) {
  for (char white : {' ', '\t', '\n', '\v', '\f', '\r'}) {
    char s[] = {'a', 'b', white, 'c', '\0'};
    EXPECT_EQ(s + 2, nextwhite(s)) << static_cast<int>(white);
  }
}

TEST(Nextwhite, StaysOnWhiteSpace) {
  char s[] = " word";
  EXPECT_EQ(s, nextwhite(s));
}

TEST(Nextwhite, StopsAtTheEndOfAWordWithoutBlanks) {
  char s[] = "word";
  EXPECT_EQ(s + 4, nextwhite(s));
  EXPECT_EQ('\0', *nextwhite(s));
}

TEST(Nextwhite, StaysAtTheEndOfAnEmptyString) {
  char s[] = "";
  EXPECT_EQ(s, nextwhite(s));
}

TEST(Nextwhite, PassesBytesAbove127) {
  char s[] = "\xa0\xe9 x";
  EXPECT_EQ(s + 2, nextwhite(s));
}

TEST(Nextwhite, IsolatesTheFirstWordOfAFieldTogetherWithOverwhite) {
  char field[] = "  first second ";
  char* word = overwhite(field);
  *nextwhite(word) = '\0';
  EXPECT_STREQ("first", word);
}

}  // namespace
