#include "vqc/cmd/lookup/match.h"

#include <gtest/gtest.h>

#include <string>

using namespace vqc;

namespace {

std::optional<int> rank(std::string_view typed, std::string_view name) { return Pattern(typed).rank(name); }

bool matches(std::string_view typed, std::string_view name) { return rank(typed, name).has_value(); }

TEST(Match, OfNothingTypedIsEveryName) {
  EXPECT_TRUE(Pattern("").empty());
  EXPECT_TRUE(Pattern(" \t ").empty());
  EXPECT_TRUE(matches("", "Dial"));
  EXPECT_TRUE(matches("", ""));
  EXPECT_FALSE(matches("d", ""));
}

TEST(Match, IsWithoutCase) {
  EXPECT_EQ(Pattern::exact, rank("dial", "Dial"));
  EXPECT_EQ(Pattern::exact, rank("DIAL", "dial"));
  EXPECT_FALSE(matches("dial", "Dal"));
}

TEST(Match, IsTheBetterTheMoreIsSaid) {
  EXPECT_EQ(Pattern::exact, rank("label", "Label"));
  EXPECT_EQ(Pattern::prefix, rank("label", "LabelGadget"));
  EXPECT_EQ(Pattern::begin_of_part, rank("label", "MenuLabel"));
  EXPECT_EQ(Pattern::parts, rank("mla", "MenuLabel"));
  EXPECT_EQ(Pattern::inside, rank("abel", "MenuLabel"));
  EXPECT_LT(Pattern::exact, Pattern::prefix);
  EXPECT_LT(Pattern::prefix, Pattern::begin_of_part);
  EXPECT_LT(Pattern::begin_of_part, Pattern::parts);
  EXPECT_LT(Pattern::parts, Pattern::inside);
}

TEST(Match, SeesWhereThePartsOfANameBegin) {
  EXPECT_EQ(Pattern::begin_of_part, rank("clock", "ascii_clock"));
  EXPECT_EQ(Pattern::begin_of_part, rank("clock", "AsciiClock"));
  EXPECT_EQ(Pattern::begin_of_part, rank("h", "dial.h"));
  EXPECT_EQ(Pattern::begin_of_part, rank("2", "dial2"));
  EXPECT_EQ(Pattern::begin_of_part, rank("dialog", "XMDialog"));
  EXPECT_EQ(Pattern::inside, rank("d", "XMD"));
  EXPECT_EQ(Pattern::inside, rank("2", "dial12"));
  EXPECT_EQ(Pattern::begin_of_part, rank("label", "XtNlabel"));
  EXPECT_EQ(Pattern::begin_of_part, rank("label", "XmRlabel"));
  EXPECT_EQ(Pattern::inside, rank("label", "XAlabel"));
  EXPECT_EQ(Pattern::begin_of_part, rank("la", "XtNblahLabel")) << "the second place is better than the first";
}

TEST(Match, TakesLettersFromThePartsInTheirOrder) {
  for (const char* typed : {"ac", "asc", "ascl", "aclo", "asciiclo"}) {
    EXPECT_TRUE(matches(typed, "AsciiClock")) << typed;
    EXPECT_TRUE(matches(typed, "ascii_clock")) << typed;
  }
  EXPECT_FALSE(matches("ca", "AsciiClock")) << "not their order";
  EXPECT_FALSE(matches("ak", "AsciiClock")) << "no beginning of a part";
  EXPECT_FALSE(matches("aic", "AsciiClock"));
  EXPECT_TRUE(matches("ad", "AsciiClockDial")) << "a part is left out";
}

TEST(Match, TriesAllWaysThroughTheParts) {
  EXPECT_TRUE(matches("abbc", "AbxBbcx")) << "the b of the first part is not meant";
  EXPECT_TRUE(matches("abac", "AbaxAbAcx"));
  EXPECT_FALSE(matches("abbd", "AbxBbcx"));
}

TEST(Match, NeedsEachWord) {
  EXPECT_TRUE(matches("clock ascii", "AsciiClock"));
  EXPECT_FALSE(matches("clock dial", "AsciiClock"));
  EXPECT_EQ(Pattern::inside, rank("ascii lock", "AsciiClock")) << "the word that matches worst counts";
}

TEST(Match, StaysWhenLettersAreTakenFromTheEnd) {
  const std::string names[] = {"AsciiClock", "XtNlabelString", "make_dial2", "a b"};
  const std::string typed = "XtNlab asclo m2 b";
  for (std::size_t begin = 0; begin < typed.size(); ++begin) {
    for (std::size_t size = 1; begin + size <= typed.size(); ++size) {
      for (const std::string& name : names) {
        if (!matches(typed.substr(begin, size), name)) continue;
        EXPECT_TRUE(matches(typed.substr(begin, size - 1), name)) << name;
      }
    }
  }
}

TEST(Match, TakesTextsOfAnyLength) {
  const std::string name(100'000, 'x');
  EXPECT_EQ(Pattern::exact, rank(name, name));
  EXPECT_EQ(Pattern::prefix, rank(name.substr(1), name));
  EXPECT_FALSE(matches(name + "y", name));
  EXPECT_FALSE(matches(std::string(64, 'x') + "y", name));
}

TEST(Match, TakesBytesBeyondAsciiAsTheyAre) {
  EXPECT_TRUE(matches("\xc3\xa4", "Z\xc3\xa4hler"));
  EXPECT_FALSE(matches("\xc3\x84", "Z\xc3\xa4hler"));
}

}  // namespace
