#include <gtest/gtest.h>

#include "support/edited_document.h"

using namespace vqc;

namespace {

class EnumEntryTest : public EditedDocumentTest {
 protected:
  EnumEntryTest() { enum_add("E"); }
};

TEST_F(EnumEntryTest, NeedsAnEnumeration) {
  EXPECT_EQ(7, enumentry_add("e", nullptr));
  EXPECT_EQ(7, enumentry_delete(nullptr, "e"));
  EXPECT_EQ(nullptr, enumentry_first(nullptr));
  EXPECT_EQ(nullptr, enumentry_ptr(nullptr, "e"));
  EXPECT_EQ(0, enumentry_count(nullptr));
  EXPECT_EQ(0, enumentry_index(nullptr, "e"));
  EXPECT_EQ(7, enumentry_move_up(nullptr, "e"));
  EXPECT_EQ(7, enumentry_move_down(nullptr, "e"));
}

TEST_F(EnumEntryTest, BelongsToOneEnumeration) {
  enum_add("D");
  EXPECT_EQ(0, enumentry_add("e", enum_ptr("E")));
  EXPECT_EQ(nullptr, enumentry_ptr(enum_ptr("D"), "e"));
  EXPECT_EQ(0, enumentry_add("e", enum_ptr("D")));
  EXPECT_EQ(1, enumentry_count(enum_ptr("E")));
}

TEST_F(EnumEntryTest, GoesWithItsEnumeration) {
  enumentry_add("e", enum_ptr("E"));
  enumentry_setcurrent(enumentry_ptr(enum_ptr("E"), "e"));
  enumentry_first(enum_ptr("E"));
  EXPECT_EQ(0, enum_delete("E"));
  EXPECT_EQ(nullptr, enumentry_getcurrent());
  EXPECT_EQ(nullptr, enumentry_next());
}

TEST_F(EnumEntryTest, GoesWithTheLastUseOfItsEnumeration) {
  Family* family = new_family("F");
  enumlist_add("E", family);
  enumentry_add("e", enum_ptr("E"));
  enumentry_setcurrent(enumentry_ptr(enum_ptr("E"), "e"));
  family_delete("F");
  EXPECT_EQ(nullptr, enum_ptr("E"));
  EXPECT_EQ(nullptr, enumentry_getcurrent());
}

}  // namespace
