#ifndef VQC_CMD_MODEL_ORDERED_LIST_H
#define VQC_CMD_MODEL_ORDERED_LIST_H

#include <new>
#include <utility>

#include "libkel/text.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/name_list.h"

/// What a list operation returns: 0 for success, or a number that the list's kind fixes for the failure.
using ErrorCode = int;
inline constexpr ErrorCode kOutOfMemory = 99;

/// Throws std::bad_alloc for that failure, where what follows cannot do without the element.
inline ErrorCode with_memory(ErrorCode code) {
  if (code == kOutOfMemory) throw std::bad_alloc();
  return code;
}

/// The failures of one kind of list.
struct Codes {
  ErrorCode duplicate;
  ErrorCode absent;
  ErrorCode no_owner = 1;     // a null family, or whatever else owns the list
  ErrorCode cannot_move = 0;  // the element to move is absent
};

/// The discipline that all lists of one kind share: unique names, one cursor for walking, one current element, and
/// `dirty` set by what adds and deletes. The lists themselves stand with their owners.
template <class ElementType, Order list_order, Codes list_codes>
class OrderedList {
 public:
  using Element = ElementType;
  using List = NameList<Element, list_order>;
  static constexpr Order order = list_order;
  static constexpr Codes codes = list_codes;

  /// Called with the current element (null for none) whenever one is set, also the same again, and with null before a
  /// current element is freed: by then its owner, if that goes too, is in no list any more. It must not delete.
  void (*on_current)(Element*) = nullptr;

  /// The first element, or null; the cursor moves there.
  Element* first(const List& list) { return point_into(list, list.head()); }
  /// The element after the cursor, or null at the end, where the cursor stays.
  Element* next() {
    if (!cursor_) return nullptr;
    walked_->settle();
    return cursor_ = cursor_->next;
  }
  /// The element of that name, or null; the cursor moves there.
  Element* ptr(const List& list, const Text& name) { return point_into(list, list.find(name)); }

  /// The place of that name in the list, counted from 1; 0 when it is absent.
  static int position(const List& list, const Text& name) {
    int place = 0;
    for (const Element& element : list) {
      ++place;
      if (name_of(element) == name) return place;
    }
    return 0;
  }

  Element* current() const { return current_; }
  void set_current(Element* element) {
    current_ = element;
    if (on_current) on_current(element);
  }

  /// Adds what `make` gives (an element of that name, or null when memory is short) unless the name is there, for which
  /// the list is searched unless it `is_new`. A null name is none.
  template <class Make>
  ErrorCode add(List& list, const Text& name, Make make, bool is_new = false) {
    if (!name) return codes.absent;
    const bool last = list.sorts_last(name);
    if (!last && !is_new && list.find(name)) return codes.duplicate;
    Element* element = make();
    if (!element) return kOutOfMemory;
    list.link(element, last);
    dirty = true;
    return 0;
  }

  /// Unlinks and frees the element of that name.
  ErrorCode remove(List& list, const Text& name) {
    Element* element = list.find(name);
    if (!element) return codes.absent;
    remove(list, element);
    return 0;
  }

  /// Unlinks and frees an element of the list.
  void remove(List& list, Element* element) {
    dirty = true;
    forget(element);
    list.unlink(element);
    delete element;
  }

  void clear(List& list) {
    while (Element* element = list.any()) remove(list, element);
  }

  ErrorCode move_up(List& list, const Text& name) {
    static_assert(codes.cannot_move != 0, "lists of this kind are not for moving in");
    Element* element = list.find(name);
    if (!element) return codes.cannot_move;
    list.move_up(element);
    return 0;
  }
  ErrorCode move_down(List& list, const Text& name) {
    static_assert(codes.cannot_move != 0, "lists of this kind are not for moving in");
    Element* element = list.find(name);
    if (!element) return codes.cannot_move;
    list.move_down(element);
    return 0;
  }

  /// Leaves no cursor behind.
  void zero() { cursor_ = nullptr; }

 private:
  Element* point_into(const List& list, Element* element) {
    walked_ = &list;
    return cursor_ = element;
  }

  void forget(const Element* element) {
    if (current_ == element) set_current(nullptr);
    if (cursor_ == element) cursor_ = nullptr;
  }

  const List* walked_ = nullptr;  // the list that the cursor is in
  Element* cursor_ = nullptr;
  Element* current_ = nullptr;
};

#endif
