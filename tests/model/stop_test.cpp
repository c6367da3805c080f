#include "vqc/cmd/model/stop.h"

#include <gtest/gtest.h>

#include "support/model.h"

namespace {

class StopListTest : public ModelTest {};

TEST_F(StopListTest, IsNullAtFirst) { EXPECT_EQ(nullptr, excluded_classes.c_str()); }

TEST_F(StopListTest, IsSetAsAWhole) {
  set_stop_list("XmFrame,XmLabel");
  set_stop_list("XmForm");
  EXPECT_STREQ("XmForm", excluded_classes);
}

TEST_F(StopListTest, GoesBackToNull) {
  set_stop_list("XmFrame");
  set_stop_list(nullptr);
  EXPECT_EQ(nullptr, excluded_classes.c_str());
}

TEST_F(StopListTest, MayBeGivenItsOwnValue) {
  set_stop_list("XmFrame,XmLabel");
  set_stop_list(excluded_classes);
  EXPECT_STREQ("XmFrame,XmLabel", excluded_classes);
  set_stop_list(excluded_classes.c_str());
  EXPECT_STREQ("XmFrame,XmLabel", excluded_classes);
}

}  // namespace
