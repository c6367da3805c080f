#include "libkel/text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using namespace std::string_view_literals;

TEST(Text, IsNullAtFirst) {
  Text text;
  EXPECT_EQ(nullptr, text.c_str());
  EXPECT_TRUE(text.empty());
  EXPECT_EQ("", text.view());
  EXPECT_FALSE(text.has_percent());
}

TEST(Text, IsACopy) {
  std::string original = "name";
  Text text(original.c_str());
  original = "else";
  EXPECT_STREQ("name", text);
  EXPECT_NE(original.c_str(), text.c_str());
}

TEST(Text, KeepsNullAndEmptyApart) {
  Text null(nullptr);
  Text empty("");
  EXPECT_EQ(nullptr, null.c_str());
  EXPECT_STREQ("", empty);
  EXPECT_TRUE(empty.empty());
  EXPECT_FALSE(null == empty);
  EXPECT_FALSE(null == "");
  EXPECT_FALSE(empty == static_cast<const char*>(nullptr));
  EXPECT_TRUE(null == static_cast<const char*>(nullptr));
}

TEST(Text, EndsAtItsFirstNul) {
  Text text("ab\0cd"sv);
  EXPECT_STREQ("ab", text);
  EXPECT_EQ("ab", text.view());
  EXPECT_TRUE(text == Text("ab"));
  EXPECT_TRUE(Text("\0x"sv).empty());
  EXPECT_NE(nullptr, Text("\0x"sv).c_str());
}

TEST(Text, ComparesByItsCharacters) {
  EXPECT_TRUE(Text("name") == Text(std::string("name").c_str()));
  EXPECT_FALSE(Text("name") == Text("Name"));
  EXPECT_FALSE(Text("name") == Text("nam"));
  EXPECT_TRUE(Text("name") == "name");
  EXPECT_FALSE(Text("name") == "names");
}

TEST(Text, HashesEqualTextsAlike) { EXPECT_EQ(Text("name").hash(), Text("name"sv).hash()); }

TEST(Text, OutlivesTheTextItWasCopiedFrom) {
  Text copy;
  {
    Text original("name");
    copy = original;
  }
  EXPECT_STREQ("name", copy);
}

TEST(Text, MayBeGivenItsOwnValue) {
  Text text("name");
  Text& same = text;
  text = same;
  EXPECT_STREQ("name", text);
  text = text.c_str();
  EXPECT_STREQ("name", text);
  text = text.c_str() + 2;
  EXPECT_STREQ("me", text);
}

TEST(Text, LeavesNullBehindWhenMoved) {
  Text from("name");
  Text to(std::move(from));
  EXPECT_STREQ("name", to);
  EXPECT_EQ(nullptr, from.c_str());  // NOLINT: what a moved text holds is promised
}

TEST(Text, GoesBackToNull) {
  Text text("name");
  text = nullptr;
  EXPECT_EQ(nullptr, text.c_str());
}

TEST(Text, KnowsItsPerCentSigns) {
  EXPECT_TRUE(Text("100%").has_percent());
  EXPECT_TRUE(Text("%%").has_percent());
  EXPECT_FALSE(Text("100").has_percent());
  EXPECT_FALSE(Text("a\0%"sv).has_percent());
}

TEST(Text, KeepsBytesAbove127) {
  EXPECT_EQ("\xe9\xff\x80"sv, Text("\xe9\xff\x80").view());
  EXPECT_FALSE(Text("\xe9") == Text("\xe8"));
}

TEST(Text, HasNoGreatestLength) {
  const std::string longest(1000000, 'x');
  EXPECT_EQ(longest, Text(longest.c_str()).view());
}

TEST(Text, KeepsThousandsOfTextsApart) {
  std::vector<Text> texts;
  for (int i = 0; i < 20000; ++i) texts.emplace_back(std::to_string(i).c_str());
  for (int i = 0; i < 20000; i += 2) texts[static_cast<std::size_t>(i)] = nullptr;
  for (int i = 1; i < 20000; i += 2) {
    EXPECT_EQ(std::to_string(i), texts[static_cast<std::size_t>(i)].view());
    EXPECT_TRUE(texts[static_cast<std::size_t>(i)] == Text(std::to_string(i).c_str()));
  }
}

TEST(NonEmpty, MakesNullOfAnEmptyText) {
  EXPECT_EQ(nullptr, non_empty(Text("")).c_str());
  EXPECT_EQ(nullptr, non_empty(Text()).c_str());
  EXPECT_STREQ("x", non_empty(Text("x")));
}

}  // namespace
