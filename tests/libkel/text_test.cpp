#include "libkel/text.h"

#include <gtest/gtest.h>

using namespace vqc;

namespace {

TEST(Text, IsNullAtFirst) {
  EXPECT_FALSE(bool{Text()});
  EXPECT_TRUE(Text().empty());
  EXPECT_EQ("", Text().view());
}

TEST(Text, KeepsNullAndEmptyApart) {
  EXPECT_FALSE(bool{Text(nullptr)});
  EXPECT_TRUE(bool{Text("")});
  EXPECT_TRUE(Text("").empty());
  EXPECT_FALSE(Text("") == Text());
  EXPECT_TRUE(Text() == Text(nullptr));
}

TEST(Text, ComparesByItsCharacters) {
  const std::string_view name = "name and more";
  EXPECT_TRUE(Text(name.substr(0, 4)) == "name");
  EXPECT_FALSE(Text("name") == "Name");
  EXPECT_FALSE(Text("name") == Text());
}

TEST(NonEmpty, MakesNullOfAnEmptyText) {
  EXPECT_FALSE(bool{non_empty("")});
  EXPECT_FALSE(bool{non_empty(Text())});
  EXPECT_EQ("x", non_empty("x").view());
}

}  // namespace
