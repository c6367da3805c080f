#include "vqc/cmd/model/stop_list.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

using namespace vqc;

namespace {

using Classes = std::vector<std::string_view>;

TEST(StopList, IsTakenApartAtItsCommas) {
  EXPECT_EQ((Classes{"XmFrame"}), classes_in("XmFrame"));
  EXPECT_EQ((Classes{"XmFrame", " XmList "}), classes_in("XmFrame, XmList "));
  EXPECT_EQ((Classes{"", "XmFrame", ""}), classes_in(",XmFrame,"));
}

TEST(StopList, MayBeEmpty) { EXPECT_EQ(Classes{}, classes_in("")); }

}  // namespace
