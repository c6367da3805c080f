#ifndef VQC_CMD_EDITORS_KIT_EDITED_DOCUMENT_H
#define VQC_CMD_EDITORS_KIT_EDITED_DOCUMENT_H

#include <new>
#include <optional>
#include <string>
#include <type_traits>

#include "vqc/cmd/model/document.h"

// The document that is being edited, and what the editors keep beside each kind of its lists: a cursor and the current
// element.

namespace vqc::editors {

inline constexpr ErrorCode kOutOfMemory = 99;

/// Throws std::bad_alloc for that failure, where what follows cannot do without the element.
inline ErrorCode with_memory(ErrorCode code) {
  if (code == kOutOfMemory) throw std::bad_alloc();
  return code;
}

/// A name as callers have it. It is only looked at during the call.
struct Name : Text {
  Name(const char* name) : Text(name) {}
  Name(Text name) : Text(name) {}
  Name(const std::string& name) : Text(std::string_view(name)) {}
};

/// Tells all kinds of lists that an element goes.
inline void forget_everywhere(const void* element);

struct EditedDocument : Document {
  EditedDocument() { on_removal = forget_everywhere; }
};
inline EditedDocument edited_document;

/// The path of its file; none while it has none.
inline std::optional<std::string> save_file;
/// The same for who takes null for none.
inline const char* save_file_path() { return save_file ? save_file->c_str() : nullptr; }
inline bool& dirty = edited_document.dirty;

/// Whatever kind of list it is.
struct AnyKind {
  virtual void forget(const void* element) = 0;
  /// Leaves no cursor behind.
  virtual void zero() = 0;

 protected:
  ~AnyKind() = default;
};

/// A kind of list: one cursor for walking and one current element, whichever list of the kind they are in.
template <class ListType>
class Kind : public AnyKind {
 public:
  using List = ListType;
  using Element = typename List::Element;

  /// Called with the current element (null for none) whenever one is set, also the same again, and with null before a
  /// current element goes. It must not delete.
  void (*on_current)(Element*) = nullptr;

  /// The element after the cursor, or null at the end, where the cursor stays.
  Element* next() {
    if (!cursor_) return nullptr;
    walked_->settle();
    return cursor_ = cursor_->next;
  }
  Element* current() const { return current_; }
  void set_current(Element* element) {
    current_ = element;
    if (on_current) on_current(element);
  }

  void zero() final { cursor_ = nullptr; }
  void forget(const void* element) final {
    if (current_ == element) set_current(nullptr);
    if (cursor_ == element) cursor_ = nullptr;
  }

 protected:
  Element* point_into(const List& list, Element* element) {
    walked_ = &list;
    return cursor_ = element;
  }
  /// Adds an element to a list, or to one of a family's lists with its pool.
  template <class... Pool>
  static ErrorCode add_to(List& list, Name name, Pool&... pool) try {
    return vqc::add(edited_document, list, edited_document.keep(name), pool...);
  } catch (const std::bad_alloc&) {
    return kOutOfMemory;
  }

 private:
  const List* walked_ = nullptr;  // the list that the cursor is in
  Element* cursor_ = nullptr;
  Element* current_ = nullptr;
};

/// A kind of which there is one list: all records of a kind. A record that a family still refers to must not be
/// removed.
template <auto pool>
class PoolKind : public Kind<std::remove_reference_t<decltype(edited_document.*pool)>> {
 public:
  using typename Kind<std::remove_reference_t<decltype(edited_document.*pool)>>::Element;

  static auto& list() { return edited_document.*pool; }
  ErrorCode add(Name name) { return this->add_to(list(), name); }
  ErrorCode remove(Name name) { return vqc::remove(edited_document, list(), name); }
  Element* first() { return this->point_into(list(), list().head()); }
  Element* ptr(Name name) { return this->point_into(list(), list().find(name)); }
  int count() const { return static_cast<int>(list().size()); }
  ErrorCode move_up(Name name) { return vqc::move_up(list(), name); }
  ErrorCode move_down(Name name) { return vqc::move_down(list(), name); }
};

/// A kind of which every owner has a list. A null owner has an empty one, to which nothing can be added.
template <class Owner, auto member, auto... pool>
class OwnedKind : public Kind<std::remove_reference_t<decltype(std::declval<Owner>().*member)>> {
  using Base = Kind<std::remove_reference_t<decltype(std::declval<Owner>().*member)>>;

 public:
  using typename Base::Element;
  using typename Base::List;

  ErrorCode add(Name name, Owner* owner) {
    return owner ? this->add_to(owner->*member, name, edited_document.*pool...) : List::codes.no_owner;
  }
  ErrorCode remove(Owner* owner, Name name) {
    return owner ? vqc::remove(edited_document, owner->*member, name, edited_document.*pool...) : List::codes.no_owner;
  }
  Element* first(const Owner* owner) {
    return owner ? this->point_into(owner->*member, (owner->*member).head()) : nullptr;
  }
  Element* ptr(const Owner* owner, Name name) {
    return owner ? this->point_into(owner->*member, (owner->*member).find(name)) : nullptr;
  }
  int count(const Owner* owner) const { return owner ? static_cast<int>((owner->*member).size()) : 0; }
  int index(const Owner* owner, Name name) const { return owner ? (owner->*member).position(name) : 0; }
  ErrorCode move_up(Owner* owner, Name name) {
    return owner ? vqc::move_up(owner->*member, name) : List::codes.no_owner;
  }
  ErrorCode move_down(Owner* owner, Name name) {
    return owner ? vqc::move_down(owner->*member, name) : List::codes.no_owner;
  }
};

#define POOL(prefix, kind, pool) inline PoolKind<&Document::pool> kind;
#define FAMILY_LIST(prefix, kind, list) inline OwnedKind<Family, &Family::list, &Document::list> kind;
#define OWNED_LIST(kind, owner, list) inline OwnedKind<owner, &owner::list> kind;
#include "vqc/cmd/editors/kit/kinds.def"
#undef POOL
#undef FAMILY_LIST
#undef OWNED_LIST

inline AnyKind* const all_kinds[] = {
#define POOL(prefix, kind, pool) &kind,
#define FAMILY_LIST(prefix, kind, list) &kind,
#define OWNED_LIST(kind, owner, list) &kind,
#include "vqc/cmd/editors/kit/kinds.def"
#undef POOL
#undef FAMILY_LIST
#undef OWNED_LIST
};

inline void forget_everywhere(const void* element) {
  for (AnyKind* kind : all_kinds) kind->forget(element);
}

}  // namespace vqc::editors

#endif
