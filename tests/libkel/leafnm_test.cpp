#include "libkel/leafnm.h"

#include <gtest/gtest.h>

using namespace vqc;

namespace {

TEST(Leafnm, IsWhatFollowsTheLastSlash) {
  char path[] = "/usr/lib/x.vqc";
  EXPECT_STREQ("x.vqc", leafnm(path));
  EXPECT_EQ(path + 9, leafnm(path));
}

TEST(Leafnm, IsThePathItselfWhenItHasNoSlash) {
  char path[] = "x.vqc";
  EXPECT_EQ(path, leafnm(path));
}

TEST(Leafnm, IsEmptyAfterAClosingSlash) {
  char path[] = "/usr/lib/";
  EXPECT_EQ(path + 9, leafnm(path));
  EXPECT_STREQ("", leafnm(path));
}

TEST(Leafnm, IsAnEmptyPathItself) {
  char path[] = "";
  EXPECT_EQ(path, leafnm(path));
}

TEST(Leafnm, IsEmptyForTheRoot) {
  char path[] = "/";
  EXPECT_EQ(path + 1, leafnm(path));
}

TEST(Leafnm, PointsIntoAConstantPathToo) {
  const char* path = "a//b";
  EXPECT_EQ(path + 3, leafnm(path));
}

}  // namespace
