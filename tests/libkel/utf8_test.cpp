#include "libkel/utf8.h"

#include <gtest/gtest.h>

using namespace vqc;

namespace {

TEST(Utf8, WritesEachLengthOfSequence) {
  EXPECT_EQ("A", utf8('A'));
  EXPECT_EQ("\xC3\xA4", utf8(0xE4));
  EXPECT_EQ("\xE2\x82\xAC", utf8(0x20AC));
  EXPECT_EQ("\xF0\x9F\x98\x80", utf8(0x1F600));
}

TEST(Utf8, ReplacesWhatIsNoCharacter) {
  EXPECT_EQ("\xEF\xBF\xBD", utf8(0xD800));
  EXPECT_EQ("\xEF\xBF\xBD", utf8(0x110000));
}

TEST(Utf8, ReadsWhatItWrites) {
  for (char32_t c : {U'A', U'\u00E4', U'\u20AC', U'\U0001F600'}) {
    const Decoded read = first_character(utf8(c) + "x");
    EXPECT_EQ(c, read.character);
    EXPECT_EQ(utf8(c).size(), read.size);
  }
}

TEST(Utf8, IsNotFoundInBrokenSequences) {
  for (const char* bytes :
       {"\xA4", "\xC3", "\xC3z", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xFF"}) {
    EXPECT_FALSE(first_character(bytes).valid()) << bytes;
    EXPECT_EQ(1U, first_character(bytes).size) << bytes;
  }
}

TEST(AsUtf8, LeavesUtf8AsItIs) { EXPECT_EQ("Gr\u00F6\u00DFe", as_utf8("Gr\u00F6\u00DFe")); }

TEST(AsUtf8, TakesTheByteOrderMarkOff) { EXPECT_EQ("x", as_utf8("\xEF\xBB\xBFx")); }

TEST(AsUtf8, TakesEverythingElseForLatin1) {
  EXPECT_EQ("Gr\u00F6\u00DFe", as_utf8("Gr\xF6\xDF"
                                       "e"));
}

TEST(Utf8, EndsWhereTheFirstOtherByteStands) {
  EXPECT_EQ(0U, end_of_utf8(""));
  EXPECT_EQ(3U, end_of_utf8("abc"));
  EXPECT_EQ(4U, end_of_utf8("a\xC3\xB6z"));
  EXPECT_EQ(3U, end_of_utf8("a\xC3\xB6\xF6z"));
  EXPECT_EQ(1U, end_of_utf8("a\xC3"));
  EXPECT_TRUE(is_utf8("\xE2\x82\xAC"));
  EXPECT_FALSE(is_utf8("\xE2\x82"));
}

}  // namespace
