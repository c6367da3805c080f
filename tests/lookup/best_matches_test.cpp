#include "vqc/cmd/lookup/best_matches.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace vqc;

namespace {

using Names = std::vector<std::string>;

/// The names that match best, and behind them how many match.
Names found(std::string_view typed, const Names& names, std::size_t most = 10) {
  const Matches matches = best_matches(typed, names, most);
  Names best;
  for (const std::size_t place : matches.places) best.push_back(names[place]);
  best.push_back(std::to_string(matches.count));
  return best;
}

TEST(BestMatches, AreAllNamesWhereNothingIsTyped) { EXPECT_EQ((Names{"b", "a", "2"}), found("", {"b", "a"})); }

TEST(BestMatches, LeaveOutWhatDoesNotMatch) { EXPECT_EQ((Names{"Label", "1"}), found("lab", {"Text", "Label"})); }

TEST(BestMatches, BeginWithTheBest) {
  EXPECT_EQ((Names{"Label", "LabelSet", "AsciiLabel", "3"}), found("label", {"AsciiLabel", "LabelSet", "Label"}));
}

TEST(BestMatches, KeepTheOrderOfEquals) { EXPECT_EQ((Names{"ab", "aa", "ac", "3"}), found("a", {"ab", "aa", "ac"})); }

TEST(BestMatches, SayHowManyThereAreBesideThoseGiven) {
  EXPECT_EQ((Names{"a", "abc", "3"}), found("a", {"abc", "a", "ab"}, 2));
}

}  // namespace
