#ifndef VQC_CMD_MODEL_NAME_LIST_H
#define VQC_CMD_MODEL_NAME_LIST_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "libkel/hash_set.h"
#include "libkel/text.h"
#include "vqc/cmd/model/name_of.h"
#include "vqc/cmd/model/sort_by_name.h"

enum class Order { sorted, appended };

/// A linked list of named elements, each name once. It links its elements; who fills it owns them.
///
/// A long list that is searched has an index by name. A sorted list takes new elements at its end and brings them to
/// their places when it is next walked: documents come in any order, and a walk to the place of each of 100,000 names
/// would never end.
template <class Element, Order order>
class NameList {
 public:
  class Iterator {
   public:
    explicit Iterator(Element* element = nullptr) : element_(element) {}
    Element& operator*() const { return *element_; }
    Element* operator->() const { return element_; }
    /// Elements that were made one after the other lie one behind the other: what is soon reached can be on its way.
    Iterator& operator++() {
      constexpr std::size_t kAhead = 512;
      __builtin_prefetch(reinterpret_cast<const char*>(element_) + kAhead);
      element_ = element_->next;
      return *this;
    }
    bool operator==(const Iterator&) const = default;

   private:
    Element* element_;
  };

  Iterator begin() const { return Iterator(head()); }
  Iterator end() const { return Iterator(); }

  /// The first element in the list's order, or null.
  Element* head() const {
    settle();
    return head_;
  }
  /// Any element, or null, for who takes all of them out: their order matters no more, and needs no memory.
  Element* any() {
    unsettled_after_ = nullptr;
    return head_;
  }
  unsigned size() const { return size_; }
  bool empty() const { return size_ == 0; }

  /// The element of that name, or null.
  ///
  /// What has just been added is soon looked for, and so is what has just been found; and documents name elements in
  /// the order in which they stand.
  Element* find(const Text& name) const {
    if (tail_ && name_of(*tail_) == name) return tail_;
    if (index_) return index_->find(name);
    for (Element* likely : {found_, found_ ? found_->next : head_}) {
      if (likely && name_of(*likely) == name) return found_ = likely;
    }
    return found_ = size_ > kSearched ? indexed(name) : searched(name);
  }

  /// Whether a name sorts behind all others, and so cannot be there. Asking is cheap; most names come in their order.
  bool sorts_last(const Text& name) const {
    const bool in_order = order == Order::sorted && tail_ && !unsettled_after_ && !rearranged_;
    return in_order && std::strcmp(name_of(*tail_), name) < 0;
  }

  /// Links an element whose name the list does not hold yet. `last` says that it sorts behind all others.
  void link(Element* element, bool last) {
    if (order == Order::sorted && !unsettled_after_ && !last) unsettled_after_ = tail_;
    join(tail_, element);
    join(element, nullptr);
    ++size_;
    if (index_) into_index(element);
  }

  /// Unlinks an element of this list.
  void unlink(Element* element) {
    settle();
    join(before_element(element), element->next);
    --size_;
    found_ = nullptr;
    if (index_) index_->erase(element);
    if (size_ == 0) rearranged_ = false;
  }

  /// Swaps an element with the one after it; the last element stays.
  void move_down(Element* element) {
    settle();
    Element* follower = element->next;
    if (!follower) return;
    rearranged_ = true;
    join(before_element(element), follower);
    join(element, follower->next);
    join(follower, element);
  }

  /// Swaps an element with the one before it; the first element stays.
  void move_up(Element* element) {
    settle();
    if (Element* previous = before_element(element)) move_down(previous);
  }

  /// Brings what was added out of order to its place: sorts it and merges it with what stands in order already.
  void settle() const {
    if (!unsettled_after_) return;
    index_.reset();  // it can be made again, and sorting takes memory too
    std::vector<Named<Element>> late;
    late.reserve(size_);
    for (Element* each = unsettled_after_->next; each; each = each->next) late.push_back({0, each});
    sort_by_name<Element>(late);
    join(unsettled_after_, nullptr);
    Element* previous = nullptr;
    for (const auto& [key, element] : late) {
      const char* name = name_of(*element);
      Element* next = previous ? previous->next : head_;
      for (; next && std::strcmp(name_of(*next), name) < 0; next = next->next) previous = next;
      join(previous, element);
      join(element, next);
      previous = element;
    }
    unsettled_after_ = nullptr;
  }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Text& name) const { return name.hash(); }
    std::size_t operator()(const Element* element) const { return name_of(*element).hash(); }
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Element* a, const Element* b) const { return a == b; }
    bool operator()(const Element* a, const Text& b) const { return name_of(*a) == b; }
  };

  /// The elements by name. Names that are looked for recur soon, and so what was found last is kept at hand.
  class Index {
   public:
    explicit Index(std::size_t size) : all_(size) {}
    void insert(Element* element) { all_.insert(element); }
    void erase(Element* element) {
      all_.erase(element);
      recent(name_of(*element)) = nullptr;
    }
    Element* find(const Text& name) {
      Element*& recent_one = recent(name);
      if (recent_one && name_of(*recent_one) == name) return recent_one;
      Element* const* found = all_.find(name);
      return found ? recent_one = *found : nullptr;
    }

   private:
    Element*& recent(const Text& name) { return recent_[name.hash() % recent_.size()]; }

    HashSet<Element*, Hash, Equal> all_;
    std::array<Element*, 16> recent_{};
  };

  static constexpr unsigned kSearched = 24;  // up to here a search is as quick as an index

  static constexpr bool doubly_linked = requires(Element element) { element.previous; };

  /// Makes two elements neighbours; null stands for what is before the first and after the last.
  void join(Element* left, Element* right) const {
    (left ? left->next : head_) = right;
    if (!right) tail_ = left;
    if constexpr (doubly_linked) {
      if (right) right->previous = left;
    }
  }

  Element* before_element(const Element* element) const {
    if constexpr (doubly_linked) return element->previous;
    if (element == head_) return nullptr;
    Element* previous = head_;
    while (previous->next != element) previous = previous->next;
    return previous;
  }

  Element* searched(const Text& name) const {
    Element* element = head_;
    while (element && !(name_of(*element) == name)) element = element->next;
    return element;
  }

  Element* indexed(const Text& name) const {
    index_ = std::make_unique<Index>(size_);
    for (Element* each = head_; each; each = each->next) index_->insert(each);
    return index_->find(name);
  }

  /// Where memory is short, which is thrown, the list has the element all the same, and an index again when it needs
  /// one.
  void into_index(Element* element) {
    try {
      index_->insert(element);
    } catch (const std::bad_alloc&) {
      index_.reset();
      throw;
    }
  }

  mutable Element* head_ = nullptr;
  mutable Element* tail_ = nullptr;
  mutable Element* found_ = nullptr;            // what was found last, without an index
  mutable Element* unsettled_after_ = nullptr;  // the last element in order, when later ones are not
  unsigned size_ = 0;
  bool rearranged_ = false;  // moves have been made: no longer may a new element be compared with the last one alone
  mutable std::unique_ptr<Index> index_;  // built when it is first needed
};

#endif
