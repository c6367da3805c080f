#ifndef VQC_CMD_MODEL_NAME_LIST_H
#define VQC_CMD_MODEL_NAME_LIST_H

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "libkel/text.h"
#include "vqc/cmd/model/name_index.h"

namespace vqc {

/// The name by which an element is found: its own, or that of the record it refers to.
template <class Element>
Text name_of(const Element& element) {
  if constexpr (requires { element.record; }) {
    return element.record->name;
  } else {
    return element.name;
  }
}

enum class Order { sorted, appended };

/// A linked list of named elements, each name once. It links its elements; who fills it owns them.
///
/// A long list that is searched has an index by name. A sorted list takes new elements at its end and brings them to
/// their places when it is next walked: documents come in any order, and a walk to the place of each of 100,000 names
/// would never end.
template <class ElementType, Order order>
class NameList {
 public:
  using Element = ElementType;

  class Iterator {
   public:
    explicit Iterator(Element* element = nullptr) : element_(element) {}
    Element& operator*() const { return *element_; }
    Element* operator->() const { return element_; }
    Iterator& operator++() {
      element_ = element_->next;
      return *this;
    }
    bool operator==(const Iterator&) const = default;

   private:
    Element* element_;
  };

  NameList() = default;
  NameList(const NameList&) = delete;
  NameList& operator=(const NameList&) = delete;

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
  Element* find(Text name) const {
    if (tail_ && name_of(*tail_) == name) return tail_;  // what has just been added is soon looked for
    if (!index_ && size_ <= kSearched) return searched(name);
    if (!index_) make_index();
    return static_cast<Element*>(index_->find(name));
  }

  /// The place of that name, counted from 1; 0 when it is absent.
  int position(Text name) const {
    int place = 0;
    for (const Element& element : *this) {
      ++place;
      if (name_of(element) == name) return place;
    }
    return 0;
  }

  /// Whether a name sorts behind all others, and so cannot be there. Asking is cheap; most names come in their order.
  bool sorts_last(Text name) const {
    const bool in_order = order == Order::sorted && tail_ && !unsettled_after_ && !rearranged_;
    return in_order && name_of(*tail_).view() < name.view();
  }

  /// Links an element whose name the list does not hold yet.
  void link(Element* element) {
    if (order == Order::sorted && !unsettled_after_ && !sorts_last(name_of(*element))) unsettled_after_ = tail_;
    join(tail_, element);
    join(element, nullptr);
    ++size_;
    if (index_) into_index(element);
  }

  /// Unlinks an element of this list.
  void unlink(Element* element) {
    settle();
    join(element->previous, element->next);
    --size_;
    if (index_) index_->erase(element);
    if (size_ == 0) rearranged_ = false;
  }

  /// An element of this list, which was settled, has got another name: a sorted list puts it where that belongs, in
  /// others it stays. Needs no memory.
  void renamed(Element* element) {
    index_.reset();
    if (order == Order::appended || size_ == 1) return;
    join(element->previous, element->next);
    unsettled_after_ = tail_;
    join(tail_, element);
    join(element, nullptr);
  }

  /// Swaps an element with the one after it; the last element stays.
  void move_down(Element* element) {
    settle();
    Element* follower = element->next;
    if (!follower) return;
    rearranged_ = true;
    join(element->previous, follower);
    join(element, follower->next);
    join(follower, element);
  }

  /// Swaps an element with the one before it; the first element stays.
  void move_up(Element* element) {
    settle();
    if (element->previous) move_down(element->previous);
  }

  /// Gives all elements of the list another order.
  void arrange(const std::vector<Element*>& all) {
    unsettled_after_ = nullptr;
    rearranged_ = !std::ranges::is_sorted(all, {}, [](const Element* each) { return name_of(*each).view(); });
    Element* previous = nullptr;
    for (Element* element : all) join(std::exchange(previous, element), element);
    join(previous, nullptr);
  }

  /// Brings what was added out of order to its place: sorts it and merges it with what stands in order already.
  void settle() const {
    if (!unsettled_after_) return;
    std::vector<Element*> late;
    late.reserve(size_);
    for (Element* each = unsettled_after_->next; each; each = each->next) late.push_back(each);
    std::ranges::sort(late, {}, [](const Element* each) { return name_of(*each).view(); });
    join(unsettled_after_, nullptr);
    Element* previous = nullptr;
    for (Element* element : late) {
      Element* next = previous ? previous->next : head_;
      for (; next && name_of(*next).view() < name_of(*element).view(); next = next->next) previous = next;
      join(previous, element);
      join(element, next);
      previous = element;
    }
    unsettled_after_ = nullptr;
  }

 private:
  static constexpr unsigned kSearched = 32;  // up to here a search is as quick as an index, which takes memory

  /// Makes two elements neighbours; null stands for what is before the first and after the last.
  void join(Element* left, Element* right) const {
    (left ? left->next : head_) = right;
    (right ? right->previous : tail_) = left;
  }

  Element* searched(Text name) const {
    Element* element = head_;
    while (element && !(name_of(*element) == name)) element = element->next;
    return element;
  }

  void make_index() const {
    const auto name = [](const void* element) { return name_of(*static_cast<const Element*>(element)); };
    auto index = std::make_unique<NameIndex>(name, size_);
    for (Element* each = head_; each; each = each->next) index->insert(each);
    index_ = std::move(index);
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
  mutable Element* unsettled_after_ = nullptr;  // the last element in order, when later ones are not
  mutable std::unique_ptr<NameIndex> index_;    // made when it is first needed
  unsigned size_ = 0;
  bool rearranged_ = false;  // moves have been made: no longer may a new element be compared with the last one alone
};

}  // namespace vqc

#endif
