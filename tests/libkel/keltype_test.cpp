#include "libkel/keltype.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace vqc;

namespace {

struct ClassMembers {
  std::uint16_t bit;
  std::string members;
};

std::string range(int first, int last) {
  std::string characters;
  for (int c = first; c <= last; ++c) characters += static_cast<char>(c);
  return characters;
}

const ClassMembers classes[] = {
    {0x001, "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
    {0x002, "abcdefghijklmnopqrstuvwxyz"},
    {0x004, "0123456789"},
    {0x008, "\t\n\v\f\r "},
    {0x010, "!\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"},
    {0x020, range(0, 8) + range(14, 31) + range(127, 127)},
    {0x040, "ABCDEFabcdef"},
    {0x080, "_"},
    {0x100, " "},
    {0x200, "\t"},
    {0x400, "'-."},
};

std::uint16_t expected_mask(int c) {
  unsigned mask = 0;
  for (const ClassMembers& each : classes) {
    if (each.members.find(static_cast<char>(c)) != std::string::npos) mask |= each.bit;
  }
  return static_cast<std::uint16_t>(mask);
}

TEST(Keltype, GivesEachCharacterItsClasses) {
  for (int c = 0; c <= 127; ++c)
    EXPECT_EQ(expected_mask(c), keltype[static_cast<std::size_t>(c + 1)]) << "character " << c;
}

TEST(Keltype, GivesTheEndOfFileNoClass) { EXPECT_EQ(0, keltype[0]); }

TEST(Keltype, GivesBytesAbove127NoClass) {
  for (std::size_t c = 128; c <= 255; ++c) EXPECT_EQ(0, keltype[c + 1]) << "character " << c;
}

TEST(Keltype, HasAnEntryForEveryByteAndTheEndOfFile) { EXPECT_EQ(257u, keltype.size()); }

TEST(Keltype, NamesTheClassesByTheirBits) {
  EXPECT_EQ(0x001, KEL_UPPER);
  EXPECT_EQ(0x002, KEL_LOWER);
  EXPECT_EQ(0x004, KEL_DIGIT);
  EXPECT_EQ(0x008, KEL_SPACE);
  EXPECT_EQ(0x010, KEL_PUNCTUATION);
  EXPECT_EQ(0x020, KEL_CONTROL);
  EXPECT_EQ(0x040, KEL_HEX_LETTER);
  EXPECT_EQ(0x080, KEL_UNDERSCORE);
  EXPECT_EQ(0x100, KEL_BLANK);
  EXPECT_EQ(0x200, KEL_TAB);
  EXPECT_EQ(0x400, KEL_NAME_MARK);
  EXPECT_EQ(0x087, KEL_IDENTIFIER);
}

TEST(KelIs, TestsAnyOfTheClasses) {
  EXPECT_TRUE(kel_is('x', KEL_UPPER | KEL_LOWER));
  EXPECT_TRUE(kel_is('_', KEL_IDENTIFIER));
  EXPECT_FALSE(kel_is('x', KEL_UPPER));
  EXPECT_FALSE(kel_is('.', KEL_IDENTIFIER));
}

TEST(KelIs, AByteAbove127IsNeitherSpaceNorPartOfAName) {
  EXPECT_FALSE(kel_is('\x80', 0xffff));
  EXPECT_FALSE(kel_is('\xa0', KEL_SPACE));
  EXPECT_FALSE(kel_is('\xe9', KEL_IDENTIFIER));
  EXPECT_FALSE(kel_is('\xff', 0xffff));
}

TEST(KelIs, FindsNoClassOutsideTheTable) {
  EXPECT_FALSE(kel_is(-1, 0xffff));
  EXPECT_FALSE(kel_is(-2, 0xffff));
  EXPECT_FALSE(kel_is(255, 0xffff));
  EXPECT_FALSE(kel_is(256, 0xffff));
  EXPECT_FALSE(kel_is(256 + 'a', 0xffff));
}

TEST(KelIs, TakesACharacterAsItsNumberToo) {
  EXPECT_TRUE(kel_is(65, KEL_UPPER));
  EXPECT_FALSE(kel_is(65, KEL_LOWER));
}

}  // namespace
