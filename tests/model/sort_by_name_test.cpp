#include "vqc/cmd/model/sort_by_name.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace {

struct Thing {
  Text name;
};

using Names = std::vector<std::string>;

/// The names in the order in which things of these names are sorted.
Names sorted(const Names& names) {
  std::vector<Thing> things;
  for (const std::string& name : names) things.push_back({name.c_str()});
  std::vector<Named<Thing>> all;
  for (Thing& thing : things) all.push_back({0, &thing});
  sort_by_name<Thing>(all);
  Names result;
  for (const auto& each : all) result.emplace_back(each.name());
  return result;
}

TEST(SortByName, SortsByBytes) {
  EXPECT_EQ((Names{"", "B", "_", "a", "\x80", "\xff"}), sorted({"\xff", "a", "_", "", "\x80", "B"}));
}

TEST(SortByName, LeavesFewAsTheyAre) {
  EXPECT_EQ(Names{}, sorted({}));
  EXPECT_EQ(Names{"a"}, sorted({"a"}));
}

TEST(SortByName, PutsANameBeforeThoseThatItBegins) {
  const std::string a(7, 'a');
  EXPECT_EQ((Names{a, a + "a", a + "aa", a + "aaaaaaaab", a + "b"}),
            sorted({a + "b", a + "aa", a + "aaaaaaaab", a, a + "a"}));
}

TEST(SortByName, TellsNamesThatDifferLateApart) {
  const std::string start(5000, 'x');
  EXPECT_EQ((Names{start, start + "1", start + "1abcdefgh", start + "1abcdefgi", start + "2"}),
            sorted({start + "2", start + "1abcdefgi", start, start + "1abcdefgh", start + "1"}));
}

TEST(SortByName, SortsManyThatBeginAlike) {
  Names names;
  for (int i = 0; i < 3000; ++i)
    names.push_back("XmN" + std::string(static_cast<std::size_t>(i % 30), 'a') + std::to_string(i));
  Names expected = names;
  std::ranges::sort(expected);  // of characters below 128
  std::ranges::shuffle(names, std::mt19937(3));
  EXPECT_EQ(expected, sorted(names));
}

}  // namespace
