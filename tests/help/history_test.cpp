#include "help/viewer/history.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

TEST(History, BeginsNowhere) {
  const History history;
  EXPECT_TRUE(history.empty());
  EXPECT_FALSE(history.can_go_back());
  EXPECT_FALSE(history.can_go_forward());
}

TEST(History, GoesBackAndForward) {
  History history;
  history.go_to("a");
  history.here().scrolled = 7;
  history.go_to("b");
  EXPECT_TRUE(history.can_go_back());
  EXPECT_FALSE(history.can_go_forward());
  history.go_back();
  EXPECT_EQ((Visit{"a", 7}), history.here());
  EXPECT_FALSE(history.can_go_back());
  EXPECT_TRUE(history.can_go_forward());
  history.go_forward();
  EXPECT_EQ((Visit{"b", 0}), history.here());
}

TEST(History, ForgetsWhatIsAheadWhenItTurns) {
  History history;
  for (const char* file : {"a", "b", "c"}) history.go_to(file);
  history.go_back();
  history.go_back();
  history.go_to("d");
  EXPECT_FALSE(history.can_go_forward());
  history.go_back();
  EXPECT_EQ("a", history.here().file);
}

}  // namespace
