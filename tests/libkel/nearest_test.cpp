#include "libkel/nearest.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace vqc;

namespace {

constexpr std::string_view kWords[] = {"access", "counter", "resource_definitions", "resource_popups", "page"};

TEST(Nearest, IsOneLetterAway) {
  EXPECT_EQ("access", nearest("acess", kWords));
  EXPECT_EQ("access", nearest("acccess", kWords));
  EXPECT_EQ("access", nearest("axcess", kWords));
  EXPECT_EQ("counter", nearest("cuonter", kWords));
  EXPECT_EQ("page", nearest("pge", kWords));
}

TEST(Nearest, MayBeFurtherAwayFromALongWord) {
  EXPECT_EQ("resource_definitions", nearest("resorce_definitons", kWords));
  EXPECT_EQ("resource_popups", nearest("resource_popup", kWords));
}

TEST(Nearest, IsNothingWhenNoneIsNear) {
  EXPECT_EQ("", nearest("pipe", kWords));
  EXPECT_EQ("", nearest("", kWords));
  EXPECT_EQ("", nearest(std::string(1000000, 'a'), kWords));
  EXPECT_EQ("", nearest("access", std::vector<std::string_view>{}));
}

TEST(Nearest, IsTheFirstOfSeveral) {
  constexpr std::string_view kBoth[] = {"cat", "bat"};
  EXPECT_EQ("cat", nearest("hat", kBoth));
}

}  // namespace
