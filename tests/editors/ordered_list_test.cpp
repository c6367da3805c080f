#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "editors/list_kinds.h"

using namespace vqc;

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
Names in_order_of(const ListKind& kind, Names names) {
  if (kind.row.sorted) std::sort(names.begin(), names.end());
  return names;
}

Names numbered(int count) {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back("n" + std::to_string(i));
  return names;
}

// Every kind of list.

class OrderedListTest : public KindTest {};
FOR_KINDS(OrderedListTest, [](const ListKind&) { return true; });

TEST_P(OrderedListTest, IsEmptyAtFirst) {
  EXPECT_EQ(nullptr, kind.first());
  EXPECT_EQ(nullptr, kind.next());
  EXPECT_EQ(0, kind.count());
  EXPECT_EQ(nullptr, kind.ptr("a"));
}

TEST_P(OrderedListTest, AddsAtThePlaceThatItsOrderGives) {
  kind.add_all({"b", "a", "c"});
  EXPECT_EQ(kind.row.sorted ? (Names{"a", "b", "c"}) : (Names{"b", "a", "c"}), kind.walked());
}

TEST_P(OrderedListTest, TakesNamesInEveryOrderOfArrival) {
  Names names{"a", "b", "c", "d", "e"};
  do {
    kind.add_all(names);
    EXPECT_EQ(in_order_of(kind, names), kind.walked());
    kind.remove_all();
  } while (std::next_permutation(names.begin(), names.end()));
}

TEST_P(OrderedListTest, IsInOrderAfterEachArrival) {
  Names names{"a", "b", "c", "d"};
  do {
    Names arrived;
    for (const std::string& name : names) {
      kind.add(name.c_str());
      arrived.push_back(name);
      EXPECT_EQ(in_order_of(kind, arrived), kind.walked());
    }
    kind.remove_all();
  } while (std::next_permutation(names.begin(), names.end()));
}

TEST_P(OrderedListTest, ComparesBytes) {
  kind.add_all({"\xe9", "b", "a.b", "_", "B", "ab", "a"});
  EXPECT_EQ(kind.row.sorted ? (Names{"B", "_", "a", "a.b", "ab", "b", "\xe9"})
                            : (Names{"\xe9", "b", "a.b", "_", "B", "ab", "a"}),
            kind.walked());
}

TEST_P(OrderedListTest, TellsCaseApart) {
  EXPECT_EQ(0, kind.add("name"));
  EXPECT_EQ(0, kind.add("NAME"));
  EXPECT_EQ(2, kind.count());
}

TEST_P(OrderedListTest, RefusesANameTwice) {
  kind.add_all({"b", "a"});
  const Names before = kind.walked();
  dirty = false;
  EXPECT_EQ(kind.row.duplicate, kind.add("a"));
  EXPECT_EQ(kind.row.duplicate, kind.add("b"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(before, kind.walked());
}

TEST_P(OrderedListTest, RefusesAnElementsOwnName) {
  kind.add("a");
  EXPECT_EQ(kind.row.duplicate, kind.add(kind.name(kind.ptr("a"))));
}

TEST_P(OrderedListTest, AddMarksTheDocumentChanged) {
  kind.add("a");
  EXPECT_TRUE(dirty);
}

TEST_P(OrderedListTest, DeleteMarksTheDocumentChanged) {
  kind.add("a");
  dirty = false;
  EXPECT_EQ(0, kind.remove("a"));
  EXPECT_TRUE(dirty);
}

TEST_P(OrderedListTest, DeleteOfAnAbsentNameChangesNothing) {
  kind.add("a");
  dirty = false;
  EXPECT_EQ(kind.row.absent, kind.remove("b"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Names{"a"}, kind.walked());
}

TEST_P(OrderedListTest, DeletesAtEveryPlace) {
  for (const std::string& name : Names{"a", "b", "c", "d"}) {
    kind.add_all({"a", "b", "c", "d"});
    Names left{"a", "b", "c", "d"};
    left.erase(std::find(left.begin(), left.end(), name));
    EXPECT_EQ(0, kind.remove(name.c_str()));
    EXPECT_EQ(left, kind.walked());
    EXPECT_EQ(3, kind.count());
    kind.remove_all();
  }
}

TEST_P(OrderedListTest, DeletesByTheElementsOwnName) {
  kind.add_all({"a", "b"});
  EXPECT_EQ(0, kind.remove(kind.name(kind.ptr("a"))));
  EXPECT_EQ(Names{"b"}, kind.walked());
}

TEST_P(OrderedListTest, AddsAgainAfterTheLastElementWasDeleted) {
  kind.add_all({"a", "b", "c"});
  kind.remove("c");
  kind.add_all({"d", "c"});
  EXPECT_EQ(kind.row.sorted ? (Names{"a", "b", "c", "d"}) : (Names{"a", "b", "d", "c"}), kind.walked());
}

TEST_P(OrderedListTest, NextAfterTheEndStaysNull) {
  kind.add("a");
  EXPECT_NE(nullptr, kind.first());
  EXPECT_EQ(nullptr, kind.next());
  EXPECT_EQ(nullptr, kind.next());
}

TEST_P(OrderedListTest, PtrMovesTheCursor) {
  kind.add_all({"a", "b", "c"});
  EXPECT_EQ("b", kind.name(kind.ptr("b")).view());
  EXPECT_EQ("c", kind.name(kind.next()).view());
}

TEST_P(OrderedListTest, PtrMovesTheCursorToItsPlaceAmongNamesThatCameInAnyOrder) {
  kind.add_all({"b", "a", "c"});
  kind.ptr("b");
  AnyElement next = kind.next();
  ASSERT_NE(nullptr, next);
  EXPECT_EQ(kind.row.sorted ? "c" : "a", kind.name(next).view());
}

TEST_P(OrderedListTest, PtrOfAnAbsentNameLeavesNoCursor) {
  kind.add_all({"a", "b"});
  kind.first();
  EXPECT_EQ(nullptr, kind.ptr("c"));
  EXPECT_EQ(nullptr, kind.next());
}

TEST_P(OrderedListTest, DeletingTheElementUnderTheCursorLeavesNoCursor) {
  kind.add_all({"a", "b"});
  kind.ptr("a");
  kind.remove("a");
  EXPECT_EQ(nullptr, kind.next());
}

TEST_P(OrderedListTest, AWalkMeetsOnlyWhatIsAddedAheadOfIt) {
  kind.add_all({"a", "c"});
  kind.ptr("c");
  kind.add("b");
  AnyElement next = kind.next();
  EXPECT_EQ(kind.row.sorted ? "" : "b", next ? kind.name(next).view() : "");
}

TEST_P(OrderedListTest, FindsEveryNameOfALongList) {
  Names names = numbered(1000);
  std::shuffle(names.begin(), names.end(), std::mt19937(1));
  kind.add_all(names);
  EXPECT_EQ(1000, kind.count());
  for (const std::string& name : names) {
    AnyElement element = kind.ptr(name.c_str());
    ASSERT_NE(nullptr, element) << name;
    EXPECT_EQ(name, kind.name(element).view());
    EXPECT_EQ(kind.row.duplicate, kind.add(name.c_str()));
  }
  EXPECT_EQ(nullptr, kind.ptr("n1000"));
  EXPECT_EQ(in_order_of(kind, names), kind.walked());
}

TEST_P(OrderedListTest, ForgetsWhatIsDeletedFromALongList) {
  kind.add_all(numbered(100));
  for (int i = 0; i < 100; i += 2) EXPECT_EQ(0, kind.remove(("n" + std::to_string(i)).c_str()));
  EXPECT_EQ(50, kind.count());
  EXPECT_EQ(nullptr, kind.ptr("n98"));
  EXPECT_NE(nullptr, kind.ptr("n99"));
  EXPECT_EQ(kind.row.absent, kind.remove("n98"));
  EXPECT_EQ(0, kind.add("n98"));
}

TEST_P(OrderedListTest, IsTheSameAsThePlainestListWhateverIsDone) {
  PlainList plain(kind.row.sorted);
  std::mt19937 random(7);
  for (int step = 0; step < 3000; ++step) {
    const std::string name = "n" + std::to_string(random() % 120);
    if (random() % 2) {
      EXPECT_EQ(plain.add(name) ? 0 : kind.row.duplicate, kind.add(name.c_str()));
    } else {
      EXPECT_EQ(plain.remove(name) ? 0 : kind.row.absent, kind.remove(name.c_str()));
    }
    if (random() % 4 == 0) {
      ASSERT_EQ(plain.names(), kind.walked()) << "after step " << step;
    }
  }
}

// Kinds that know the place of a name.

class ListIndexTest : public KindTest {};
FOR_KINDS(ListIndexTest, [](const ListKind& kind) { return kind.index != nullptr; });

TEST_P(ListIndexTest, CountsFromOne) {
  kind.add_all({"b", "a", "c"});
  EXPECT_EQ(kind.row.sorted ? 1 : 2, kind.index("a"));
  EXPECT_EQ(kind.row.sorted ? 2 : 1, kind.index("b"));
  EXPECT_EQ(3, kind.index("c"));
}

TEST_P(ListIndexTest, IsZeroForAnAbsentNameAndAnEmptyList) {
  EXPECT_EQ(0, kind.index("a"));
  kind.add("b");
  EXPECT_EQ(0, kind.index("a"));
}

// Kinds with a current element.

class CurrentElementTest : public KindTest {
 protected:
  CurrentElementTest() {
    told_elements.clear();
    kind.listen(true);
  }
  ~CurrentElementTest() override { kind.listen(false); }
};
FOR_KINDS(CurrentElementTest, [](const ListKind& kind) { return kind.current != nullptr; });

TEST_P(CurrentElementTest, IsTheOneThatWasSet) {
  kind.add_all({"a", "b"});
  EXPECT_EQ(nullptr, kind.current());
  kind.set_current(kind.ptr("b"));
  EXPECT_EQ(kind.ptr("b"), kind.current());
}

TEST_P(CurrentElementTest, MayBeNone) {
  kind.add("a");
  kind.set_current(kind.ptr("a"));
  kind.set_current(nullptr);
  EXPECT_EQ(nullptr, kind.current());
}

TEST_P(CurrentElementTest, DoesNotFollowTheCursor) {
  kind.add_all({"a", "b"});
  AnyElement chosen = kind.ptr("b");
  kind.set_current(chosen);
  kind.first();
  EXPECT_EQ(chosen, kind.current());
}

TEST_P(CurrentElementTest, IsNoneAfterItWasDeleted) {
  kind.add_all({"a", "b"});
  kind.set_current(kind.ptr("a"));
  kind.remove("a");
  EXPECT_EQ(nullptr, kind.current());
}

TEST_P(CurrentElementTest, StaysWhenAnotherIsDeleted) {
  kind.add_all({"a", "b"});
  kind.set_current(kind.ptr("a"));
  kind.remove("b");
  EXPECT_EQ(kind.ptr("a"), kind.current());
}

TEST_P(CurrentElementTest, TellsOfEachChange) {
  kind.add("a");
  AnyElement element = kind.ptr("a");
  kind.set_current(element);
  kind.set_current(nullptr);
  EXPECT_EQ((std::vector<AnyElement>{element, nullptr}), told_elements);
}

TEST_P(CurrentElementTest, TellsOfItsDeletionOnly) {
  kind.add_all({"a", "b"});
  AnyElement element = kind.ptr("a");
  kind.set_current(element);
  kind.remove("b");
  kind.remove("a");
  EXPECT_EQ((std::vector<AnyElement>{element, nullptr}), told_elements);
}

// Kinds whose elements can be moved.

class MoveTest : public KindTest {
 protected:
  MoveTest() {
    kind.add_all({"a", "b", "c"});
    dirty = false;
  }
};
FOR_KINDS(MoveTest, [](const ListKind& kind) { return kind.move_up != nullptr; });

TEST_P(MoveTest, UpSwapsWithTheOneBefore) {
  EXPECT_EQ(0, kind.move_up("c"));
  EXPECT_EQ((Names{"a", "c", "b"}), kind.walked());
  EXPECT_EQ(0, kind.move_up("c"));
  EXPECT_EQ((Names{"c", "a", "b"}), kind.walked());
}

TEST_P(MoveTest, DownSwapsWithTheOneAfter) {
  EXPECT_EQ(0, kind.move_down("a"));
  EXPECT_EQ((Names{"b", "a", "c"}), kind.walked());
  EXPECT_EQ(0, kind.move_down("a"));
  EXPECT_EQ((Names{"b", "c", "a"}), kind.walked());
}

TEST_P(MoveTest, FirstUpAndLastDownStay) {
  EXPECT_EQ(0, kind.move_up("a"));
  EXPECT_EQ(0, kind.move_down("c"));
  EXPECT_EQ((Names{"a", "b", "c"}), kind.walked());
}

TEST_P(MoveTest, AnElementThatIsAloneStays) {
  kind.remove("a");
  kind.remove("c");
  EXPECT_EQ(0, kind.move_up("b"));
  EXPECT_EQ(0, kind.move_down("b"));
  EXPECT_EQ(Names{"b"}, kind.walked());
}

TEST_P(MoveTest, DoesNotMarkTheDocumentChanged) {
  kind.move_up("b");
  kind.move_down("b");
  kind.move_up("x");
  EXPECT_FALSE(dirty);
}

TEST_P(MoveTest, OfAnAbsentNameFails) {
  EXPECT_NE(0, kind.move_up("x"));
  EXPECT_NE(0, kind.move_down("x"));
  EXPECT_EQ((Names{"a", "b", "c"}), kind.walked());
}

TEST_P(MoveTest, KeepsTheCurrentElement) {
  AnyElement element = kind.ptr("b");
  kind.set_current(element);
  kind.move_up("b");
  EXPECT_EQ(element, kind.current());
}

TEST_P(MoveTest, ANewNameGoesBeforeTheFirstThatIsNotLessOrToTheEnd) {
  kind.move_up("c");
  kind.move_up("c");  // c a b
  kind.add("bb");
  kind.add("d");
  EXPECT_EQ(kind.row.sorted ? (Names{"bb", "c", "a", "b", "d"}) : (Names{"c", "a", "b", "bb", "d"}), kind.walked());
}

TEST_P(MoveTest, ANameThatStandsOutOfOrderIsStillADuplicate) {
  kind.move_up("c");
  kind.move_up("c");
  EXPECT_EQ(kind.row.duplicate, kind.add("a"));
  EXPECT_EQ(kind.row.duplicate, kind.add("c"));
  EXPECT_EQ(3, kind.count());
}

TEST_P(MoveTest, IsTheSameAsInThePlainestListWhateverIsDone) {
  PlainList plain(kind.row.sorted);
  for (const char* name : {"a", "b", "c"}) plain.add(name);
  std::mt19937 random(11);
  for (int step = 0; step < 4000; ++step) {
    const std::string name = "n" + std::to_string(random() % 120);
    switch (random() % 5) {
      case 0:
      case 1:
        EXPECT_EQ(plain.add(name), kind.add(name.c_str()) == 0);
        break;
      case 2:
        EXPECT_EQ(plain.remove(name), kind.remove(name.c_str()) == 0);
        break;
      case 3:
        EXPECT_EQ(plain.move_up(name), kind.move_up(name.c_str()) == 0);
        break;
      default:
        EXPECT_EQ(plain.move_down(name), kind.move_down(name.c_str()) == 0);
    }
    if (random() % 3 == 0) {
      ASSERT_EQ(plain.names(), kind.walked()) << "after step " << step;
    }
  }
}

class MoveCode : public EditedDocumentTest {};

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
