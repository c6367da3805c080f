#include "vqc/cmd/model/ordered_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "model/list_kinds.h"

namespace {

/// The same list in the plainest way.
class PlainList {
 public:
  explicit PlainList(bool sorted) : sorted_(sorted) {}

  const Names& names() const { return names_; }
  bool add(const std::string& name) {
    if (place(name) != names_.end()) return false;
    names_.insert(
        sorted_ ? std::find_if(names_.begin(), names_.end(), [&](auto& each) { return each >= name; }) : names_.end(),
        name);
    return true;
  }
  bool remove(const std::string& name) {
    auto found = place(name);
    if (found == names_.end()) return false;
    names_.erase(found);
    return true;
  }
  bool move_up(const std::string& name) {
    auto found = place(name);
    if (found != names_.begin() && found != names_.end()) std::iter_swap(found, found - 1);
    return found != names_.end();
  }
  bool move_down(const std::string& name) {
    auto found = place(name);
    if (found == names_.end()) return false;
    if (found + 1 != names_.end()) std::iter_swap(found, found + 1);
    return true;
  }

 private:
  Names::iterator place(const std::string& name) { return std::find(names_.begin(), names_.end(), name); }

  bool sorted_;
  Names names_;
};

/// What a list of the kind holds after names came in that order.
template <class Kind>
Names in_order_of(Names names) {
  if (Kind::row.sorted) std::sort(names.begin(), names.end());
  return names;
}

Names numbered(int count) {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back("n" + std::to_string(i));
  return names;
}

// Every kind of list.

template <class Kind>
class OrderedListTest : public KindTest<Kind> {};
TYPED_TEST_SUITE(OrderedListTest, AllKinds, KindNames);

TYPED_TEST(OrderedListTest, IsEmptyAtFirst) {
  EXPECT_EQ(nullptr, TypeParam::first());
  EXPECT_EQ(nullptr, TypeParam::next());
  EXPECT_EQ(0, TypeParam::count());
  EXPECT_EQ(nullptr, TypeParam::ptr("a"));
}

TYPED_TEST(OrderedListTest, AddsAtThePlaceThatItsOrderGives) {
  add_all<TypeParam>({"b", "a", "c"});
  EXPECT_EQ(TypeParam::row.sorted ? (Names{"a", "b", "c"}) : (Names{"b", "a", "c"}), walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, TakesNamesInEveryOrderOfArrival) {
  Names names{"a", "b", "c", "d", "e"};
  do {
    add_all<TypeParam>(names);
    EXPECT_EQ(in_order_of<TypeParam>(names), walked<TypeParam>());
    remove_all<TypeParam>();
  } while (std::next_permutation(names.begin(), names.end()));
}

TYPED_TEST(OrderedListTest, IsInOrderAfterEachArrival) {
  Names names{"a", "b", "c", "d"};
  do {
    Names arrived;
    for (const std::string& name : names) {
      TypeParam::add(name.c_str());
      arrived.push_back(name);
      EXPECT_EQ(in_order_of<TypeParam>(arrived), walked<TypeParam>());
    }
    remove_all<TypeParam>();
  } while (std::next_permutation(names.begin(), names.end()));
}

TYPED_TEST(OrderedListTest, ComparesBytes) {
  add_all<TypeParam>({"\xe9", "b", "a.b", "_", "B", "ab", "a"});
  EXPECT_EQ(TypeParam::row.sorted ? (Names{"B", "_", "a", "a.b", "ab", "b", "\xe9"})
                                  : (Names{"\xe9", "b", "a.b", "_", "B", "ab", "a"}),
            walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, TellsCaseApart) {
  EXPECT_EQ(0, TypeParam::add("name"));
  EXPECT_EQ(0, TypeParam::add("NAME"));
  EXPECT_EQ(2, TypeParam::count());
}

TYPED_TEST(OrderedListTest, RefusesANameTwice) {
  add_all<TypeParam>({"b", "a"});
  const Names before = walked<TypeParam>();
  dirty = false;
  EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add("a"));
  EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add("b"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(before, walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, RefusesAnElementsOwnName) {
  TypeParam::add("a");
  EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add(name_of(*TypeParam::ptr("a"))));
}

TYPED_TEST(OrderedListTest, AddMarksTheDocumentChanged) {
  TypeParam::add("a");
  EXPECT_TRUE(dirty);
}

TYPED_TEST(OrderedListTest, DeleteMarksTheDocumentChanged) {
  TypeParam::add("a");
  dirty = false;
  EXPECT_EQ(0, TypeParam::remove("a"));
  EXPECT_TRUE(dirty);
}

TYPED_TEST(OrderedListTest, DeleteOfAnAbsentNameChangesNothing) {
  TypeParam::add("a");
  dirty = false;
  EXPECT_EQ(TypeParam::row.absent, TypeParam::remove("b"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Names{"a"}, walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, DeletesAtEveryPlace) {
  for (const std::string& name : Names{"a", "b", "c", "d"}) {
    add_all<TypeParam>({"a", "b", "c", "d"});
    Names left{"a", "b", "c", "d"};
    left.erase(std::find(left.begin(), left.end(), name));
    EXPECT_EQ(0, TypeParam::remove(name.c_str()));
    EXPECT_EQ(left, walked<TypeParam>());
    EXPECT_EQ(3, TypeParam::count());
    remove_all<TypeParam>();
  }
}

TYPED_TEST(OrderedListTest, DeletesByTheElementsOwnName) {
  add_all<TypeParam>({"a", "b"});
  EXPECT_EQ(0, TypeParam::remove(name_of(*TypeParam::ptr("a"))));
  EXPECT_EQ(Names{"b"}, walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, AddsAgainAfterTheLastElementWasDeleted) {
  add_all<TypeParam>({"a", "b", "c"});
  TypeParam::remove("c");
  add_all<TypeParam>({"d", "c"});
  EXPECT_EQ(TypeParam::row.sorted ? (Names{"a", "b", "c", "d"}) : (Names{"a", "b", "d", "c"}), walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, NextAfterTheEndStaysNull) {
  TypeParam::add("a");
  EXPECT_NE(nullptr, TypeParam::first());
  EXPECT_EQ(nullptr, TypeParam::next());
  EXPECT_EQ(nullptr, TypeParam::next());
}

TYPED_TEST(OrderedListTest, PtrMovesTheCursor) {
  add_all<TypeParam>({"a", "b", "c"});
  EXPECT_EQ("b", name_of(*TypeParam::ptr("b")).view());
  EXPECT_EQ("c", name_of(*TypeParam::next()).view());
}

TYPED_TEST(OrderedListTest, PtrMovesTheCursorToItsPlaceAmongNamesThatCameInAnyOrder) {
  add_all<TypeParam>({"b", "a", "c"});
  TypeParam::ptr("b");
  auto* next = TypeParam::next();
  ASSERT_NE(nullptr, next);
  EXPECT_EQ(TypeParam::row.sorted ? "c" : "a", name_of(*next).view());
}

TYPED_TEST(OrderedListTest, PtrOfAnAbsentNameLeavesNoCursor) {
  add_all<TypeParam>({"a", "b"});
  TypeParam::first();
  EXPECT_EQ(nullptr, TypeParam::ptr("c"));
  EXPECT_EQ(nullptr, TypeParam::next());
}

TYPED_TEST(OrderedListTest, DeletingTheElementUnderTheCursorLeavesNoCursor) {
  add_all<TypeParam>({"a", "b"});
  TypeParam::ptr("a");
  TypeParam::remove("a");
  EXPECT_EQ(nullptr, TypeParam::next());
}

TYPED_TEST(OrderedListTest, AWalkMeetsOnlyWhatIsAddedAheadOfIt) {
  add_all<TypeParam>({"a", "c"});
  TypeParam::ptr("c");
  TypeParam::add("b");
  auto* next = TypeParam::next();
  EXPECT_EQ(TypeParam::row.sorted ? "" : "b", next ? name_of(*next).view() : "");
}

TYPED_TEST(OrderedListTest, FindsEveryNameOfALongList) {
  Names names = numbered(1000);
  std::shuffle(names.begin(), names.end(), std::mt19937(1));
  add_all<TypeParam>(names);
  EXPECT_EQ(1000, TypeParam::count());
  for (const std::string& name : names) {
    auto* element = TypeParam::ptr(name.c_str());
    ASSERT_NE(nullptr, element) << name;
    EXPECT_EQ(name, name_of(*element).view());
    EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add(name.c_str()));
  }
  EXPECT_EQ(nullptr, TypeParam::ptr("n1000"));
  EXPECT_EQ(in_order_of<TypeParam>(names), walked<TypeParam>());
}

TYPED_TEST(OrderedListTest, ForgetsWhatIsDeletedFromALongList) {
  add_all<TypeParam>(numbered(100));
  for (int i = 0; i < 100; i += 2) EXPECT_EQ(0, TypeParam::remove(("n" + std::to_string(i)).c_str()));
  EXPECT_EQ(50, TypeParam::count());
  EXPECT_EQ(nullptr, TypeParam::ptr("n98"));
  EXPECT_NE(nullptr, TypeParam::ptr("n99"));
  EXPECT_EQ(TypeParam::row.absent, TypeParam::remove("n98"));
  EXPECT_EQ(0, TypeParam::add("n98"));
}

TYPED_TEST(OrderedListTest, IsTheSameAsThePlainestListWhateverIsDone) {
  PlainList plain(TypeParam::row.sorted);
  std::mt19937 random(7);
  for (int step = 0; step < 3000; ++step) {
    const std::string name = "n" + std::to_string(random() % 120);
    if (random() % 2) {
      EXPECT_EQ(plain.add(name) ? 0 : TypeParam::row.duplicate, TypeParam::add(name.c_str()));
    } else {
      EXPECT_EQ(plain.remove(name) ? 0 : TypeParam::row.absent, TypeParam::remove(name.c_str()));
    }
    if (random() % 4 == 0) {
      ASSERT_EQ(plain.names(), walked<TypeParam>()) << "after step " << step;
    }
  }
}

// Kinds that know the place of a name.

template <class Kind>
class ListIndexTest : public KindTest<Kind> {};
TYPED_TEST_SUITE(ListIndexTest, KindsWithIndex, KindNames);

TYPED_TEST(ListIndexTest, CountsFromOne) {
  add_all<TypeParam>({"b", "a", "c"});
  EXPECT_EQ(TypeParam::row.sorted ? 1 : 2, TypeParam::index("a"));
  EXPECT_EQ(TypeParam::row.sorted ? 2 : 1, TypeParam::index("b"));
  EXPECT_EQ(3, TypeParam::index("c"));
}

TYPED_TEST(ListIndexTest, IsZeroForAnAbsentNameAndAnEmptyList) {
  EXPECT_EQ(0, TypeParam::index("a"));
  TypeParam::add("b");
  EXPECT_EQ(0, TypeParam::index("a"));
}

// Kinds with a current element.

template <class Element>
struct Told {
  inline static std::vector<Element*> elements;
  static void record(Element* element) { elements.push_back(element); }
};

template <class Kind>
class CurrentElementTest : public KindTest<Kind> {
 protected:
  using Element = typename std::remove_reference_t<decltype(Kind::object)>::Element;
  using ToldElements = Told<Element>;

  CurrentElementTest() {
    ToldElements::elements.clear();
    Kind::object.on_current = ToldElements::record;
  }
  ~CurrentElementTest() override { Kind::object.on_current = nullptr; }
};
TYPED_TEST_SUITE(CurrentElementTest, KindsWithCurrent, KindNames);

TYPED_TEST(CurrentElementTest, IsTheOneThatWasSet) {
  add_all<TypeParam>({"a", "b"});
  EXPECT_EQ(nullptr, TypeParam::current());
  TypeParam::set_current(TypeParam::ptr("b"));
  EXPECT_EQ(TypeParam::ptr("b"), TypeParam::current());
}

TYPED_TEST(CurrentElementTest, MayBeNone) {
  TypeParam::add("a");
  TypeParam::set_current(TypeParam::ptr("a"));
  TypeParam::set_current(static_cast<typename TestFixture::Element*>(nullptr));
  EXPECT_EQ(nullptr, TypeParam::current());
}

TYPED_TEST(CurrentElementTest, DoesNotFollowTheCursor) {
  add_all<TypeParam>({"a", "b"});
  auto* chosen = TypeParam::ptr("b");
  TypeParam::set_current(chosen);
  TypeParam::first();
  EXPECT_EQ(chosen, TypeParam::current());
}

TYPED_TEST(CurrentElementTest, IsNoneAfterItWasDeleted) {
  add_all<TypeParam>({"a", "b"});
  TypeParam::set_current(TypeParam::ptr("a"));
  TypeParam::remove("a");
  EXPECT_EQ(nullptr, TypeParam::current());
}

TYPED_TEST(CurrentElementTest, StaysWhenAnotherIsDeleted) {
  add_all<TypeParam>({"a", "b"});
  TypeParam::set_current(TypeParam::ptr("a"));
  TypeParam::remove("b");
  EXPECT_EQ(TypeParam::ptr("a"), TypeParam::current());
}

TYPED_TEST(CurrentElementTest, TellsOfEachChange) {
  TypeParam::add("a");
  auto* element = TypeParam::ptr("a");
  TypeParam::set_current(element);
  TypeParam::set_current(static_cast<typename TestFixture::Element*>(nullptr));
  EXPECT_EQ((std::vector<typename TestFixture::Element*>{element, nullptr}), TestFixture::ToldElements::elements);
}

TYPED_TEST(CurrentElementTest, TellsOfItsDeletionOnly) {
  add_all<TypeParam>({"a", "b"});
  auto* element = TypeParam::ptr("a");
  TypeParam::set_current(element);
  TypeParam::remove("b");
  TypeParam::remove("a");
  EXPECT_EQ((std::vector<typename TestFixture::Element*>{element, nullptr}), TestFixture::ToldElements::elements);
}

// Kinds whose elements can be moved.

template <class Kind>
class MoveTest : public KindTest<Kind> {
 protected:
  MoveTest() {
    add_all<Kind>({"a", "b", "c"});
    dirty = false;
  }
};
TYPED_TEST_SUITE(MoveTest, KindsWithMoves, KindNames);

TYPED_TEST(MoveTest, UpSwapsWithTheOneBefore) {
  EXPECT_EQ(0, TypeParam::move_up("c"));
  EXPECT_EQ((Names{"a", "c", "b"}), walked<TypeParam>());
  EXPECT_EQ(0, TypeParam::move_up("c"));
  EXPECT_EQ((Names{"c", "a", "b"}), walked<TypeParam>());
}

TYPED_TEST(MoveTest, DownSwapsWithTheOneAfter) {
  EXPECT_EQ(0, TypeParam::move_down("a"));
  EXPECT_EQ((Names{"b", "a", "c"}), walked<TypeParam>());
  EXPECT_EQ(0, TypeParam::move_down("a"));
  EXPECT_EQ((Names{"b", "c", "a"}), walked<TypeParam>());
}

TYPED_TEST(MoveTest, FirstUpAndLastDownStay) {
  EXPECT_EQ(0, TypeParam::move_up("a"));
  EXPECT_EQ(0, TypeParam::move_down("c"));
  EXPECT_EQ((Names{"a", "b", "c"}), walked<TypeParam>());
}

TYPED_TEST(MoveTest, AnElementThatIsAloneStays) {
  TypeParam::remove("a");
  TypeParam::remove("c");
  EXPECT_EQ(0, TypeParam::move_up("b"));
  EXPECT_EQ(0, TypeParam::move_down("b"));
  EXPECT_EQ(Names{"b"}, walked<TypeParam>());
}

TYPED_TEST(MoveTest, DoesNotMarkTheDocumentChanged) {
  TypeParam::move_up("b");
  TypeParam::move_down("b");
  TypeParam::move_up("x");
  EXPECT_FALSE(dirty);
}

TYPED_TEST(MoveTest, OfAnAbsentNameFails) {
  EXPECT_NE(0, TypeParam::move_up("x"));
  EXPECT_NE(0, TypeParam::move_down("x"));
  EXPECT_EQ((Names{"a", "b", "c"}), walked<TypeParam>());
}

TYPED_TEST(MoveTest, KeepsTheCurrentElement) {
  auto* element = TypeParam::ptr("b");
  TypeParam::set_current(element);
  TypeParam::move_up("b");
  EXPECT_EQ(element, TypeParam::current());
}

TYPED_TEST(MoveTest, ANewNameGoesBeforeTheFirstThatIsNotLessOrToTheEnd) {
  TypeParam::move_up("c");
  TypeParam::move_up("c");  // c a b
  TypeParam::add("bb");
  TypeParam::add("d");
  EXPECT_EQ(TypeParam::row.sorted ? (Names{"bb", "c", "a", "b", "d"}) : (Names{"c", "a", "b", "bb", "d"}),
            walked<TypeParam>());
}

TYPED_TEST(MoveTest, ANameThatStandsOutOfOrderIsStillADuplicate) {
  TypeParam::move_up("c");
  TypeParam::move_up("c");
  EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add("a"));
  EXPECT_EQ(TypeParam::row.duplicate, TypeParam::add("c"));
  EXPECT_EQ(3, TypeParam::count());
}

TYPED_TEST(MoveTest, IsTheSameAsInThePlainestListWhateverIsDone) {
  PlainList plain(TypeParam::row.sorted);
  for (const char* name : {"a", "b", "c"}) plain.add(name);
  std::mt19937 random(11);
  for (int step = 0; step < 4000; ++step) {
    const std::string name = "n" + std::to_string(random() % 120);
    switch (random() % 5) {
      case 0:
      case 1:
        EXPECT_EQ(plain.add(name), TypeParam::add(name.c_str()) == 0);
        break;
      case 2:
        EXPECT_EQ(plain.remove(name), TypeParam::remove(name.c_str()) == 0);
        break;
      case 3:
        EXPECT_EQ(plain.move_up(name), TypeParam::move_up(name.c_str()) == 0);
        break;
      default:
        EXPECT_EQ(plain.move_down(name), TypeParam::move_down(name.c_str()) == 0);
    }
    if (random() % 3 == 0) {
      ASSERT_EQ(plain.names(), walked<TypeParam>()) << "after step " << step;
    }
  }
}

class MoveCode : public ModelTest {};

TEST_F(MoveCode, OfAnAbsentNameIsTheKindsOwn) {
  Family* family = new_family("F");
  EXPECT_EQ(1, family_move_up("x"));
  EXPECT_EQ(1, family_move_down("x"));
  EXPECT_EQ(5, widgetlist_move_up(family, "x"));
  EXPECT_EQ(5, widgetlist_move_down(family, "x"));
  EXPECT_EQ(23, converterlist_move_up(family, "x"));
  EXPECT_EQ(23, converterlist_move_down(family, "x"));
  EXPECT_EQ(19, codeheaderlist_move_up(family, "x"));
  EXPECT_EQ(19, codeheaderlist_move_down(family, "x"));
  EXPECT_EQ(19, familyheaderlist_move_up(family, "x"));
  EXPECT_EQ(19, familyheaderlist_move_down(family, "x"));
  EXPECT_EQ(19, confheaderlist_move_up(family, "x"));
  EXPECT_EQ(19, confheaderlist_move_down(family, "x"));
}

TEST_F(MoveCode, OfANullFamilyIsOne) {
  EXPECT_EQ(1, widgetlist_move_up(nullptr, "x"));
  EXPECT_EQ(1, widgetlist_move_down(nullptr, "x"));
  EXPECT_EQ(1, converterlist_move_up(nullptr, "x"));
  EXPECT_EQ(1, converterlist_move_down(nullptr, "x"));
  EXPECT_EQ(1, codeheaderlist_move_up(nullptr, "x"));
  EXPECT_EQ(1, familyheaderlist_move_down(nullptr, "x"));
  EXPECT_EQ(1, confheaderlist_move_up(nullptr, "x"));
  EXPECT_EQ(1, pagelist_move_down(nullptr, "x"));
}

}  // namespace
