#include "vqc/cmd/model/stop.h"

#include <gtest/gtest.h>

#include "support/model.h"

namespace {

class StopListTest : public ModelTest {};

TEST_F(StopListTest, IsNullAtFirst) { EXPECT_EQ(nullptr, excluded_classes.c_str()); }

TEST_F(StopListTest, IsSetAsAWhole) {
  stop_list_set("XmFrame,XmLabel");
  stop_list_set("XmForm");
  EXPECT_STREQ("XmForm", excluded_classes);
}

TEST_F(StopListTest, GoesBackToNull) {
  stop_list_set("XmFrame");
  stop_list_set(nullptr);
  EXPECT_EQ(nullptr, excluded_classes.c_str());
}

TEST_F(StopListTest, MayBeGivenItsOwnValue) {
  stop_list_set("XmFrame,XmLabel");
  stop_list_set(excluded_classes);
  EXPECT_STREQ("XmFrame,XmLabel", excluded_classes);
  stop_list_set(excluded_classes.c_str());
  EXPECT_STREQ("XmFrame,XmLabel", excluded_classes);
}

}  // namespace
