#include <gtest/gtest.h>

#include "model/list_kinds.h"

namespace {

// The lists that families have, and the records they refer to.

template <class Kind>
class FamilyListTest : public KindTest<Kind> {};
TYPED_TEST_SUITE(FamilyListTest, KindsOfFamilies, KindNames);

TYPED_TEST(FamilyListTest, RefusesANullFamily) {
  EXPECT_EQ(1, TypeParam::add_to(nullptr, "a"));
  EXPECT_EQ(1, TypeParam::remove_from(nullptr, "a"));
  EXPECT_EQ(nullptr, TypeParam::first_of(nullptr));
  EXPECT_EQ(nullptr, TypeParam::ptr_in(nullptr, "a"));
  EXPECT_EQ(0, TypeParam::count_of(nullptr));
  EXPECT_EQ(nullptr, TypeParam::Pool::ptr("a"));
  EXPECT_FALSE(dirty);
}

TYPED_TEST(FamilyListTest, NamingARecordCreatesIt) {
  EXPECT_EQ(0, TypeParam::add("a"));
  auto* record = TypeParam::Pool::ptr("a");
  ASSERT_NE(nullptr, record);
  EXPECT_EQ(record, TypeParam::ptr("a")->record);
}

TYPED_TEST(FamilyListTest, RefersToTheRecordThatIsThere) {
  TypeParam::Pool::add("a");
  auto* record = TypeParam::Pool::ptr("a");
  EXPECT_EQ(0, TypeParam::add("a"));
  EXPECT_EQ(record, TypeParam::ptr("a")->record);
  EXPECT_EQ(record, TypeParam::Pool::ptr("a"));
}

TYPED_TEST(FamilyListTest, FamiliesShareARecord) {
  Family* other = this->new_family("G");
  TypeParam::add("a");
  EXPECT_EQ(0, TypeParam::add_to(other, "a"));
  EXPECT_EQ(TypeParam::ptr("a")->record, TypeParam::ptr_in(other, "a")->record);
}

TYPED_TEST(FamilyListTest, FamiliesHaveListsOfTheirOwn) {
  Family* other = this->new_family("G");
  TypeParam::add("a");
  EXPECT_EQ(nullptr, TypeParam::ptr_in(other, "a"));
  EXPECT_EQ(TypeParam::row.absent, TypeParam::remove_from(other, "a"));
  EXPECT_EQ(1, TypeParam::count());
}

TYPED_TEST(FamilyListTest, DeletingFromOneFamilyLeavesTheOthers) {
  Family* other = this->new_family("G");
  TypeParam::add("a");
  TypeParam::add_to(other, "a");
  EXPECT_EQ(0, TypeParam::remove("a"));
  ASSERT_NE(nullptr, TypeParam::ptr_in(other, "a"));
  EXPECT_EQ(TypeParam::Pool::ptr("a"), TypeParam::ptr_in(other, "a")->record);
}

TYPED_TEST(FamilyListTest, DeletingAFamilyForgetsItsCurrentElement) {
  TypeParam::add("a");
  TypeParam::set_current(TypeParam::ptr("a"));
  family_delete("F");
  EXPECT_EQ(nullptr, TypeParam::current());
  EXPECT_EQ(nullptr, TypeParam::next());
}

TYPED_TEST(FamilyListTest, DeletingAllFamiliesLeavesNoCursor) {
  add_all<TypeParam>({"a", "b"});
  TypeParam::set_current(TypeParam::ptr("b"));
  TypeParam::first();
  family_delete_all();
  EXPECT_EQ(nullptr, TypeParam::next());
  EXPECT_EQ(nullptr, TypeParam::current());
}

// Records that count their uses.

template <class Kind>
class UseCountTest : public KindTest<Kind> {
 protected:
  Family* other = this->new_family("G");
};
TYPED_TEST_SUITE(UseCountTest, KindsThatCountUses, KindNames);

TYPED_TEST(UseCountTest, IsOneForEachFamily) {
  TypeParam::Pool::add("a");
  EXPECT_EQ(0, TypeParam::Pool::ptr("a")->uses);
  TypeParam::add("a");
  EXPECT_EQ(1, TypeParam::Pool::ptr("a")->uses);
  TypeParam::add_to(this->other, "a");
  EXPECT_EQ(2, TypeParam::Pool::ptr("a")->uses);
  TypeParam::remove("a");
  EXPECT_EQ(1, TypeParam::Pool::ptr("a")->uses);
}

TYPED_TEST(UseCountTest, IsNotRaisedByADuplicate) {
  TypeParam::add("a");
  TypeParam::add("a");
  EXPECT_EQ(1, TypeParam::Pool::ptr("a")->uses);
}

TYPED_TEST(UseCountTest, TakesTheRecordAwayWithItsLastUse) {
  TypeParam::add("a");
  TypeParam::add_to(this->other, "a");
  TypeParam::remove("a");
  EXPECT_NE(nullptr, TypeParam::Pool::ptr("a"));
  TypeParam::remove_from(this->other, "a");
  EXPECT_EQ(nullptr, TypeParam::Pool::ptr("a"));
}

TYPED_TEST(UseCountTest, TakesTheRecordAwayWithItsLastFamily) {
  TypeParam::add("a");
  TypeParam::add_to(this->other, "a");
  family_delete("G");
  EXPECT_NE(nullptr, TypeParam::Pool::ptr("a"));
  family_delete("F");
  EXPECT_EQ(nullptr, TypeParam::Pool::ptr("a"));
}

TYPED_TEST(UseCountTest, LeavesARecordThatNoFamilyEverUsed) {
  TypeParam::Pool::add("unused");
  TypeParam::add("a");
  TypeParam::remove("a");
  family_delete_all();
  EXPECT_NE(nullptr, TypeParam::Pool::ptr("unused"));
  EXPECT_EQ(1, TypeParam::Pool::count());
}

TYPED_TEST(UseCountTest, StartsAnewWithARecordThatComesBack) {
  TypeParam::add("a");
  TypeParam::remove("a");
  TypeParam::add("a");
  EXPECT_EQ(1, TypeParam::Pool::ptr("a")->uses);
}

class PopupsAndPages : public ModelTest {};

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
