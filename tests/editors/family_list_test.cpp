#include <gtest/gtest.h>

#include "editors/list_kinds.h"

using namespace vqc;

namespace {

// The lists that families have, and the records they refer to.

class FamilyListTest : public KindTest {};
FOR_KINDS(FamilyListTest, [](const ListKind& kind) { return kind.pool != nullptr; });

TEST_P(FamilyListTest, RefusesANullFamily) {
  EXPECT_EQ(1, kind.add_to(nullptr, "a"));
  EXPECT_EQ(1, kind.remove_from(nullptr, "a"));
  EXPECT_EQ(nullptr, kind.first_of(nullptr));
  EXPECT_EQ(nullptr, kind.ptr_in(nullptr, "a"));
  EXPECT_EQ(0, kind.count_of(nullptr));
  EXPECT_EQ(nullptr, kind.pool->ptr("a"));
  EXPECT_FALSE(dirty);
}

TEST_P(FamilyListTest, NamingARecordCreatesIt) {
  EXPECT_EQ(0, kind.add("a"));
  AnyElement record = kind.pool->ptr("a");
  ASSERT_NE(nullptr, record);
  EXPECT_EQ(record, kind.record(kind.ptr("a")));
}

TEST_P(FamilyListTest, RefersToTheRecordThatIsThere) {
  kind.pool->add("a");
  AnyElement record = kind.pool->ptr("a");
  EXPECT_EQ(0, kind.add("a"));
  EXPECT_EQ(record, kind.record(kind.ptr("a")));
  EXPECT_EQ(record, kind.pool->ptr("a"));
}

TEST_P(FamilyListTest, FamiliesShareARecord) {
  Family* other = new_family("G");
  kind.add("a");
  EXPECT_EQ(0, kind.add_to(other, "a"));
  EXPECT_EQ(kind.record(kind.ptr("a")), kind.record(kind.ptr_in(other, "a")));
}

TEST_P(FamilyListTest, FamiliesHaveListsOfTheirOwn) {
  Family* other = new_family("G");
  kind.add("a");
  EXPECT_EQ(nullptr, kind.ptr_in(other, "a"));
  EXPECT_EQ(kind.row.absent, kind.remove_from(other, "a"));
  EXPECT_EQ(1, kind.count());
}

TEST_P(FamilyListTest, DeletingFromOneFamilyLeavesTheOthers) {
  Family* other = new_family("G");
  kind.add("a");
  kind.add_to(other, "a");
  EXPECT_EQ(0, kind.remove("a"));
  ASSERT_NE(nullptr, kind.ptr_in(other, "a"));
  EXPECT_EQ(kind.pool->ptr("a"), kind.record(kind.ptr_in(other, "a")));
}

TEST_P(FamilyListTest, DeletingAFamilyForgetsItsCurrentElement) {
  kind.add("a");
  kind.set_current(kind.ptr("a"));
  family_delete("F");
  EXPECT_EQ(nullptr, kind.current());
  EXPECT_EQ(nullptr, kind.next());
}

TEST_P(FamilyListTest, DeletingAllFamiliesLeavesNoCursor) {
  kind.add_all({"a", "b"});
  kind.set_current(kind.ptr("b"));
  kind.first();
  family_delete_all();
  EXPECT_EQ(nullptr, kind.next());
  EXPECT_EQ(nullptr, kind.current());
}

// Records that count their uses.

class UseCountTest : public KindTest {
 protected:
  Family* other = new_family("G");
};
FOR_KINDS(UseCountTest, [](const ListKind& kind) { return kind.uses != nullptr; });

TEST_P(UseCountTest, IsOneForEachFamily) {
  kind.pool->add("a");
  EXPECT_EQ(0, kind.uses("a"));
  kind.add("a");
  EXPECT_EQ(1, kind.uses("a"));
  kind.add_to(other, "a");
  EXPECT_EQ(2, kind.uses("a"));
  kind.remove("a");
  EXPECT_EQ(1, kind.uses("a"));
}

TEST_P(UseCountTest, IsNotRaisedByADuplicate) {
  kind.add("a");
  kind.add("a");
  EXPECT_EQ(1, kind.uses("a"));
}

TEST_P(UseCountTest, TakesTheRecordAwayWithItsLastUse) {
  kind.add("a");
  kind.add_to(other, "a");
  kind.remove("a");
  EXPECT_NE(nullptr, kind.pool->ptr("a"));
  kind.remove_from(other, "a");
  EXPECT_EQ(nullptr, kind.pool->ptr("a"));
}

TEST_P(UseCountTest, TakesTheRecordAwayWithItsLastFamily) {
  kind.add("a");
  kind.add_to(other, "a");
  family_delete("G");
  EXPECT_NE(nullptr, kind.pool->ptr("a"));
  family_delete("F");
  EXPECT_EQ(nullptr, kind.pool->ptr("a"));
}

TEST_P(UseCountTest, LeavesARecordThatNoFamilyEverUsed) {
  kind.pool->add("unused");
  kind.add("a");
  kind.remove("a");
  family_delete_all();
  EXPECT_NE(nullptr, kind.pool->ptr("unused"));
  EXPECT_EQ(1, kind.pool->count());
}

TEST_P(UseCountTest, StartsAnewWithARecordThatComesBack) {
  kind.add("a");
  kind.remove("a");
  kind.add("a");
  EXPECT_EQ(1, kind.uses("a"));
}

class PopupsAndPages : public EditedDocumentTest {};

TEST_F(PopupsAndPages, StayInTheirPoolsWithoutAnyFamily) {
  Family* family = new_family("F");
  popuplist_add("mine", family);
  pagelist_add("mine", family);
  popuplist_delete(family, "mine");
  pagelist_delete(family, "mine");
  EXPECT_NE(nullptr, popup_ptr("mine"));
  EXPECT_NE(nullptr, page_ptr("mine"));
  family_delete_all();
  EXPECT_EQ(6, popup_count());
  EXPECT_EQ(6, page_count());
}

}  // namespace
