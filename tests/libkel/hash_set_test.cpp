#include "libkel/hash_set.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using Numbers = vqc::HashSet<int, std::hash<int>>;

TEST(HashSet, KnowsWhatItHasBeenGiven) {
  Numbers numbers;
  EXPECT_TRUE(numbers.insert(1));
  EXPECT_FALSE(numbers.insert(1));
  EXPECT_TRUE(numbers.contains(1));
  EXPECT_EQ(nullptr, numbers.find(2));
  numbers.erase(1);
  EXPECT_FALSE(numbers.contains(1));
}

TEST(HashSet, KeepsThousandsThroughComingAndGoing) {
  Numbers numbers;
  for (int i = 0; i < 5000; ++i) {
    EXPECT_TRUE(numbers.insert(i));
    if (i >= 40) numbers.erase(i - 40);
  }
  for (int i = 0; i < 5000; ++i) EXPECT_EQ(i >= 4960, numbers.contains(i)) << i;
}

}  // namespace
