#ifndef VQC_CMD_MODEL_DOCUMENT_H
#define VQC_CMD_MODEL_DOCUMENT_H

#include <memory>
#include <memory_resource>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include "libkel/large_memory.h"
#include "libkel/source.h"
#include "vqc/cmd/model/builtin.h"
#include "vqc/cmd/model/options.h"
#include "vqc/cmd/model/part.h"
#include "vqc/cmd/model/records.h"

namespace vqc {

/// A description of widget sets: all that a file of it says, and its own state. A process may have any number of
/// documents. A document owns its records and the texts in them; its memory goes as a whole.
///
/// Adding throws std::bad_alloc when memory is short; what was there before is whole then.
class Document {
 public:
  template <class Record, Order order, Codes codes>
  using Pool = ListOf<Record, order, codes>;
  using HeaderPool = Pool<HeaderEntry, Order::sorted, Codes{18, 17, 19}>;

  Document() = default;
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;
  ~Document();

  // All records of a kind.
  Pool<WidgetDef, Order::sorted, Codes{4, 3}> widgets;
  Pool<EnumDef, Order::sorted, Codes{8, 7}> enumerations;
  Pool<AliasDef, Order::sorted, Codes{14, 13}> aliases;
  Pool<ConverterDef, Order::sorted, Codes{22, 21}> converters;
  Pool<PopupDef, Order::sorted, Codes{26, 25}> popups;
  Pool<PageDef, Order::appended, Codes{30, 29}> pages;
  HeaderPool code_headers;
  HeaderPool family_headers;
  HeaderPool config_headers;
  Pool<Family, Order::appended, Codes{2, 1, 1, 1}> families;

  NameOptions names;
  OutputNames output_names;
  Text excluded_classes;  // the stop list: comma-separated class names, or null
  BuiltinNames builtins;
  Compatibility compatibility;

  /// Whether it has changed since the last load or save. Every successful add and remove sets it; moves do not.
  bool dirty = false;

  /// Told of every element of every list before it goes, by its address; null for nobody. By then its owner, if that
  /// goes too, is in no list any more.
  void (*on_removal)(const void* element) = nullptr;

  /// A copy of a text, or null for null. It lives as long as the document, or until that is cleared.
  Text keep(Text text);
  /// Keeps a source whose characters become texts of the document, as long as these.
  void keep(std::shared_ptr<const Source> source) { memory_->sources.push_back(std::move(source)); }
  /// Keeps the document's texts as they are, whatever becomes of the document.
  std::shared_ptr<const void> texts() const { return memory_; }

  // Names that are given to these must live as long as the document.

  /// The element of that name in a list, made if there is none; null for a null name. Of families there are none with
  /// an empty name.
  template <class List>
  typename List::Element* ensure(List& list, Text name) {
    if (!name) return nullptr;
    auto* element = list.sorts_last(name) ? nullptr : list.find(name);
    return element ? element : insert(list, name);
  }
  Family* ensure(decltype(families)& list, Text name);
  /// The family's reference to the record of that name, either of them made if there is none.
  template <class References, class Pool>
  typename References::Element* ensure(References& references, Pool& pool, Text name) {
    if (!name) return nullptr;
    auto* reference = references.sorts_last(name) ? nullptr : references.find(name);
    return reference ? reference : refer(references, *ensure(pool, name));
  }

  /// Unlinks and frees an element of a list. No family may refer to it any more.
  template <class List>
  void remove(List& list, typename List::Element* element) {
    dirty = true;
    if (on_removal) on_removal(element);
    list.unlink(element);
    clear_lists_of(*element);
    std::destroy_at(element);  // its memory goes with the document
  }
  /// The same for a reference. A record that counts its uses goes with the last of them.
  template <class References, class Pool>
  void remove(References& references, Pool& pool, typename References::Element* reference) {
    auto* record = reference->record;
    remove(references, reference);
    if constexpr (requires { record->uses; }) {
      if (--record->uses == 0) remove(pool, record);
    }
  }

  /// Removes a reference, while the record stays that it refers to.
  template <class References>
  void release(References& references, typename References::Element* reference) {
    if constexpr (requires { reference->record->uses; }) --reference->record->uses;
    remove(references, reference);
  }

  /// Leaves no record, no name of its own and no stop list. What is removed sets `dirty`. The built-in names stay.
  void clear();

 private:
  template <class Element>
  Element* make() {
    return new (memory_->arena.allocate(sizeof(Element), alignof(Element))) Element{};
  }
  /// Links an element that is not in the list. Where memory is short, which is thrown, the list has it all the same.
  template <class List>
  void link(List& list, typename List::Element* element) {
    dirty = true;
    list.link(element);
  }
  template <class List>
  typename List::Element* insert(List& list, Text name) {
    auto* element = make<typename List::Element>();
    element->name = name;
    begin(*element);
    link(list, element);
    return element;
  }
  template <class References, class Record>
  typename References::Element* refer(References& references, Record& record) {
    auto* reference = make<typename References::Element>();
    reference->record = &record;
    if constexpr (requires { record.uses; }) ++record.uses;
    link(references, reference);
    return reference;
  }

  /// Gives a new element what a member cannot state as its first value.
  template <class Element>
  void begin(Element& /*element*/) const {}
  void begin(ResourceDef& resource) const;
  void predefine(Family& family);

  template <class Element>
  void clear_lists_of(Element& /*element*/) {}
  void clear_lists_of(WidgetDef& widget) { clear(widget.resource_definitions); }
  void clear_lists_of(EnumDef& enumeration) { clear(enumeration.entries); }
  void clear_lists_of(Family& family);

  /// Removes what is in a list.
  template <class List>
  void clear(List& list) {
    while (auto* element = list.any()) remove(list, element);
  }
  template <class References, class Pool>
  void clear(References& references, Pool& pool) {
    while (auto* reference = references.any()) remove(references, pool, reference);
  }

  struct Memory {
    std::pmr::monotonic_buffer_resource arena{large_memory()};
    std::vector<std::shared_ptr<const Source>> sources;  // whose characters stand in records
  };
  std::shared_ptr<Memory> memory_ = std::make_shared<Memory>();
};

/// Calls visit(list, pool) with where each list of a family is, and the pool of its records.
template <class Visit>
void each_family_list(Visit visit) {
  visit(&Family::widgets, &Document::widgets);
  visit(&Family::enumerations, &Document::enumerations);
  visit(&Family::aliases, &Document::aliases);
  visit(&Family::converters, &Document::converters);
  visit(&Family::code_headers, &Document::code_headers);
  visit(&Family::family_headers, &Document::family_headers);
  visit(&Family::config_headers, &Document::config_headers);
  visit(&Family::popups, &Document::popups);
  visit(&Family::pages, &Document::pages);
}

/// The parts that these lists have, in the same order.
constexpr Part family_list_parts[] = {Part::widget,        Part::enumeration, Part::alias,
                                      Part::converter,     Part::code_header, Part::family_header,
                                      Part::config_header, Part::popup,       Part::page};

// What is done by name tells by a code how it went: 0 when it was done.

/// Adds an element to a list, or a reference to a record of a pool.
template <class List, class... Pool>
ErrorCode add(Document& document, List& list, Text name, Pool&... pool) {
  if (!name) return List::codes.absent;
  if (list.find(name)) return List::codes.duplicate;
  return document.ensure(list, pool..., name) ? 0 : List::codes.no_owner;
}

template <class List, class... Pool>
ErrorCode remove(Document& document, List& list, Text name, Pool&... pool) {
  auto* element = list.find(name);
  if (!element) return List::codes.absent;
  document.remove(list, pool..., element);
  return 0;
}

template <class List>
ErrorCode move_up(List& list, Text name) {
  auto* element = list.find(name);
  if (!element) return List::codes.cannot_move;
  list.move_up(element);
  return 0;
}

template <class List>
ErrorCode move_down(List& list, Text name) {
  auto* element = list.find(name);
  if (!element) return List::codes.cannot_move;
  list.move_down(element);
  return 0;
}

}  // namespace vqc

#endif
