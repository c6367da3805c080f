#ifndef VQC_CMD_MODEL_POOL_H
#define VQC_CMD_MODEL_POOL_H

#include "vqc/cmd/model/ordered_list.h"
#include "vqc/cmd/model/records.h"

/// A kind of list of which there is one: all records of a kind. `first`, `next` and `ptr` move its cursor. A record
/// that a family still refers to must not be removed.
template <class Record, Order order, Codes codes>
class Pool : public OrderedList<Record, order, codes> {
  using Base = OrderedList<Record, order, codes>;

 public:
  typename Base::List list;

  ErrorCode add(const Text& name) {
    return Base::add(list, name, [&] { return new_record(name); });
  }
  ErrorCode remove(const Text& name) { return Base::remove(list, name); }
  void remove(Record* record) { Base::remove(list, record); }
  Record* first() { return Base::first(list); }
  Record* ptr(const Text& name) { return Base::ptr(list, name); }
  int count() const { return static_cast<int>(list.size()); }
  ErrorCode move_up(const Text& name) { return Base::move_up(list, name); }
  ErrorCode move_down(const Text& name) { return Base::move_down(list, name); }
  void clear() { Base::clear(list); }

 private:
  static Record* new_record(const Text& name) {
    auto* record = new (std::nothrow) Record{};
    if (record) record->name = name;
    return record;
  }
};

/// A kind of list of which every family has one: its references to the records of a pool. Naming a record that does
/// not exist creates it. A record that counts its uses goes with the last of them. A null family has an empty list,
/// to which nothing can be added. `first`, `next` and `ptr` move the kind's cursor.
template <auto& pool, auto member, Order order, Codes codes>
class FamilyList
    : public OrderedList<Reference<typename std::remove_reference_t<decltype(pool)>::Element>, order, codes> {
  using Record = typename std::remove_reference_t<decltype(pool)>::Element;
  using Base = OrderedList<Reference<Record>, order, codes>;

 public:
  using Element = typename Base::Element;

  ErrorCode add(const Text& name, Family* family) {
    if (!family) return codes.no_owner;
    return Base::add(
        family->*member, name, [&] { return new_reference(name); }, is_unused(name));
  }
  ErrorCode remove(Family* family, const Text& name) {
    if (!family) return codes.no_owner;
    Element* reference = (family->*member).find(name);
    if (!reference) return codes.absent;
    remove(family, reference);
    return 0;
  }
  void remove(Family* family, Element* reference) {
    Record* record = reference->record;
    Base::remove(family->*member, reference);
    if constexpr (counted) {
      if (--record->uses == 0) pool.remove(record);
    }
  }
  void clear(Family* family) {
    while (Element* reference = (family->*member).any()) remove(family, reference);
  }
  Element* first(const Family* family) { return family ? Base::first(family->*member) : nullptr; }
  Element* ptr(const Family* family, const Text& name) { return family ? Base::ptr(family->*member, name) : nullptr; }
  int count(const Family* family) const { return family ? static_cast<int>((family->*member).size()) : 0; }
  int index(const Family* family, const Text& name) const { return family ? Base::position(family->*member, name) : 0; }
  ErrorCode move_up(Family* family, const Text& name) {
    return family ? Base::move_up(family->*member, name) : codes.no_owner;
  }
  ErrorCode move_down(Family* family, const Text& name) {
    return family ? Base::move_down(family->*member, name) : codes.no_owner;
  }

 private:
  static constexpr bool counted = requires(Record record) { record.uses; };

  /// Whether no family uses the record of that name, so that no list has it.
  static bool is_unused(const Text& name) {
    if constexpr (counted) {
      const Record* record = pool.list.find(name);
      return !record || record->uses == 0;
    }
    return false;
  }

  static Element* new_reference(const Text& name) {
    Record* record = pool.list.find(name);
    if (!record && pool.add(name) == 0) record = pool.list.find(name);
    auto* reference = record ? new (std::nothrow) Element{{}, nullptr, nullptr, record} : nullptr;
    if constexpr (counted) {
      if (reference) ++record->uses;
    }
    return reference;
  }
};

#endif
