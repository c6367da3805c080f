#ifndef EDITORS_LIST_KINDS_H
#define EDITORS_LIST_KINDS_H

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include "support/edited_document.h"

using namespace vqc;

// One type for each kind of list, with the kind's functions under common names, its order and its failure codes; and
// from each a ListKind, which tests take as their parameter, so that they are compiled once for all kinds.

/// What is fixed for a kind of list.
struct KindRow {
  const char* name;
  bool sorted;
  ErrorCode duplicate;
  ErrorCode absent;
};

/// A list of which there is one.
template <auto add_, auto delete_, auto first_, auto next_, auto ptr_, auto count_>
struct PoolApi {
  static void prepare() {}
  static ErrorCode add(Name name) { return add_(name); }
  static ErrorCode remove(Name name) { return delete_(name); }
  static auto first() { return first_(); }
  static auto next() { return next_(); }
  static auto ptr(Name name) { return ptr_(name); }
  static int count() { return count_(); }
};

/// A list that every family has, here that of the family "F".
template <auto add_, auto delete_, auto first_, auto next_, auto ptr_, auto count_>
struct FamilyApi {
  static Family* owner() { return family_ptr("F"); }
  static void prepare() {
    family_add("F");
    while (auto* reference = first()) remove(reference->record->name);
  }
  static ErrorCode add_to(Family* family, Name name) { return add_(name, family); }
  static ErrorCode remove_from(Family* family, Name name) { return delete_(family, name); }
  static ErrorCode add(Name name) { return add_to(owner(), name); }
  static ErrorCode remove(Name name) { return remove_from(owner(), name); }
  static auto first_of(Family* family) { return first_(family); }
  static auto first() { return first_of(owner()); }
  static auto next() { return next_(); }
  static auto ptr_in(Family* family, Name name) { return ptr_(family, name); }
  static auto ptr(Name name) { return ptr_in(owner(), name); }
  static int count_of(Family* family) { return count_(family); }
  static int count() { return count_of(owner()); }
};

/// For kinds that know the place of a name.
template <auto owner_, auto index_>
struct IndexApi {
  static int index(Name name) { return index_(owner_(), name); }
};

/// For kinds with a current element.
template <auto set_, auto get_, auto& object_>
struct CurrentApi {
  static constexpr auto& object = object_;
  template <class Element>
  static void set_current(Element* element) {
    set_(element);
  }
  static auto current() { return get_(); }
};

/// For kinds whose elements can be moved.
template <auto owner_, auto up_, auto down_>
struct MoveApi {
  static ErrorCode move_up(Name name) { return up_(owner_(), name); }
  static ErrorCode move_down(Name name) { return down_(owner_(), name); }
};

inline Family* family_f() { return family_ptr("F"); }
inline WidgetDef* widget_w() { return widget_ptr("W"); }
inline EnumDef* enum_e() { return enum_ptr("E"); }

struct FamilyPool : PoolApi<family_add, family_delete, family_first, family_next, family_ptr, family_count>,
                    CurrentApi<family_setcurrent, family_getcurrent, family_pool> {
  static constexpr KindRow row{"Family", false, 2, 1};
  static ErrorCode move_up(Name name) { return family_move_up(name); }
  static ErrorCode move_down(Name name) { return family_move_down(name); }
};
struct WidgetPool : PoolApi<widget_add, widget_delete, widget_first, widget_next, widget_ptr, widget_count> {
  static constexpr KindRow row{"WidgetDef", true, 4, 3};
};
struct EnumPool : PoolApi<enum_add, enum_delete, enum_first, enum_next, enum_ptr, enum_count> {
  static constexpr KindRow row{"EnumDef", true, 8, 7};
};
struct AliasPool : PoolApi<alias_add, alias_delete, alias_first, alias_next, alias_ptr, alias_count> {
  static constexpr KindRow row{"AliasDef", true, 14, 13};
};
struct ConverterPool
    : PoolApi<converter_add, converter_delete, converter_first, converter_next, converter_ptr, converter_count> {
  static constexpr KindRow row{"ConverterDef", true, 22, 21};
};
struct PopupPool : PoolApi<popup_add, popup_delete, popup_first, popup_next, popup_ptr, popup_count> {
  static constexpr KindRow row{"PopupDef", true, 26, 25};
};
struct PagePool : PoolApi<page_add, page_delete, page_first, page_next, page_ptr, page_count> {
  static constexpr KindRow row{"PageDef", false, 30, 29};
};
struct CodeHeaderPool
    : PoolApi<codeheader_add, codeheader_delete, codeheader_first, codeheader_next, codeheader_ptr, codeheader_count> {
  static constexpr KindRow row{"CodeHeaderEntry", true, 18, 17};
};
struct FamilyHeaderPool : PoolApi<familyheader_add, familyheader_delete, familyheader_first, familyheader_next,
                                  familyheader_ptr, familyheader_count> {
  static constexpr KindRow row{"FamilyHeaderEntry", true, 18, 17};
};
struct ConfigHeaderPool
    : PoolApi<confheader_add, confheader_delete, confheader_first, confheader_next, confheader_ptr, confheader_count> {
  static constexpr KindRow row{"ConfigHeaderEntry", true, 18, 17};
};

struct Resources : CurrentApi<resource_setcurrent, resource_getcurrent, resource_kind> {
  static constexpr KindRow row{"ResourceDef", true, 26, 25};
  static void prepare() { widget_add("W"); }
  static ErrorCode add(Name name) { return we_resource_add(name, widget_w()); }
  static ErrorCode remove(Name name) { return we_resource_delete(widget_w(), name); }
  static ResourceDef* first() { return resource_first(widget_w()); }
  static ResourceDef* next() { return resource_next(); }
  static ResourceDef* ptr(Name name) { return resource_ptr(widget_w(), name); }
  static int count() { return static_cast<int>(widget_w()->resource_definitions.size()); }
};
struct Entries : IndexApi<enum_e, enumentry_index>,
                 CurrentApi<enumentry_setcurrent, enumentry_getcurrent, enum_entry_kind>,
                 MoveApi<enum_e, enumentry_move_up, enumentry_move_down> {
  static constexpr KindRow row{"EnumEntry", false, 12, 11};
  static void prepare() { enum_add("E"); }
  static ErrorCode add(Name name) { return enumentry_add(name, enum_e()); }
  static ErrorCode remove(Name name) { return enumentry_delete(enum_e(), name); }
  static EnumEntry* first() { return enumentry_first(enum_e()); }
  static EnumEntry* next() { return enumentry_next(); }
  static EnumEntry* ptr(Name name) { return enumentry_ptr(enum_e(), name); }
  static int count() { return enumentry_count(enum_e()); }
};

struct FamilyWidgets
    : FamilyApi<widgetlist_add, widgetlist_delete, widgetlist_first, widgetlist_next, widgetlist_ptr, widgetlist_count>,
      IndexApi<family_f, widgetlist_index>,
      CurrentApi<widgetlist_setcurrent, widgetlist_getcurrent, widget_kind>,
      MoveApi<family_f, widgetlist_move_up, widgetlist_move_down> {
  using Pool = WidgetPool;
  static constexpr KindRow row{"FamilyWidgets", false, 6, 3};
};
struct FamilyEnums
    : FamilyApi<enumlist_add, enumlist_delete, enumlist_first, enumlist_next, enumlist_ptr, enumlist_count>,
      IndexApi<family_f, enumlist_index>,
      CurrentApi<enumlist_setcurrent, enumlist_getcurrent, enum_kind> {
  using Pool = EnumPool;
  static constexpr KindRow row{"FamilyEnums", true, 10, 7};
};
struct FamilyAliases
    : FamilyApi<aliaslist_add, aliaslist_delete, aliaslist_first, aliaslist_next, aliaslist_ptr, aliaslist_count>,
      IndexApi<family_f, aliaslist_index>,
      CurrentApi<aliaslist_setcurrent, aliaslist_getcurrent, alias_kind> {
  using Pool = AliasPool;
  static constexpr KindRow row{"FamilyAliases", true, 16, 13};
};
struct FamilyConverters : FamilyApi<converterlist_add, converterlist_delete, converterlist_first, converterlist_next,
                                    converterlist_ptr, converterlist_count>,
                          IndexApi<family_f, converterlist_index>,
                          CurrentApi<converterlist_setcurrent, converterlist_getcurrent, converter_kind>,
                          MoveApi<family_f, converterlist_move_up, converterlist_move_down> {
  using Pool = ConverterPool;
  static constexpr KindRow row{"FamilyConverters", true, 24, 21};
};
struct FamilyPopups
    : FamilyApi<popuplist_add, popuplist_delete, popuplist_first, popuplist_next, popuplist_ptr, popuplist_count>,
      IndexApi<family_f, popuplist_index>,
      CurrentApi<popuplist_setcurrent, popuplist_getcurrent, popup_kind> {
  using Pool = PopupPool;
  static constexpr KindRow row{"FamilyPopups", true, 28, 21};
};
struct FamilyPages
    : FamilyApi<pagelist_add, pagelist_delete, pagelist_first, pagelist_next, pagelist_ptr, pagelist_count>,
      IndexApi<family_f, pagelist_index>,
      CurrentApi<pagelist_setcurrent, pagelist_getcurrent, page_kind>,
      MoveApi<family_f, pagelist_move_up, pagelist_move_down> {
  using Pool = PagePool;
  static constexpr KindRow row{"FamilyPages", false, 32, 31};
};
struct FamilyCodeHeaders : FamilyApi<codeheaderlist_add, codeheaderlist_delete, codeheaderlist_first,
                                     codeheaderlist_next, codeheaderlist_ptr, codeheaderlist_count>,
                           IndexApi<family_f, codeheaderlist_index>,
                           CurrentApi<codeheaderlist_setcurrent, codeheaderlist_getcurrent, code_header_kind>,
                           MoveApi<family_f, codeheaderlist_move_up, codeheaderlist_move_down> {
  using Pool = CodeHeaderPool;
  static constexpr KindRow row{"FamilyCodeHeaders", false, 20, 17};
};
struct FamilyFamilyHeaders : FamilyApi<familyheaderlist_add, familyheaderlist_delete, familyheaderlist_first,
                                       familyheaderlist_next, familyheaderlist_ptr, familyheaderlist_count>,
                             IndexApi<family_f, familyheaderlist_index>,
                             CurrentApi<familyheaderlist_setcurrent, familyheaderlist_getcurrent, family_header_kind>,
                             MoveApi<family_f, familyheaderlist_move_up, familyheaderlist_move_down> {
  using Pool = FamilyHeaderPool;
  static constexpr KindRow row{"FamilyFamilyHeaders", false, 20, 17};
};
struct FamilyConfigHeaders : FamilyApi<confheaderlist_add, confheaderlist_delete, confheaderlist_first,
                                       confheaderlist_next, confheaderlist_ptr, confheaderlist_count>,
                             IndexApi<family_f, confheaderlist_index>,
                             CurrentApi<confheaderlist_setcurrent, confheaderlist_getcurrent, config_header_kind>,
                             MoveApi<family_f, confheaderlist_move_up, confheaderlist_move_down> {
  using Pool = ConfigHeaderPool;
  static constexpr KindRow row{"FamilyConfigHeaders", false, 20, 17};
};

// The same as values.

/// An element of whatever kind; null for none.
using AnyElement = void*;

/// The elements that on_current() of the kind under test has been called with.
inline std::vector<AnyElement> told_elements;

/// A kind of list. Null functions are what it cannot be asked.
struct ListKind {
  KindRow row;

  void (*prepare)();
  ErrorCode (*add)(Name name);
  ErrorCode (*remove)(Name name);
  AnyElement (*first)();
  AnyElement (*next)();
  AnyElement (*ptr)(Name name);
  int (*count)();
  Text (*name)(AnyElement element);

  int (*index)(Name name) = nullptr;

  void (*set_current)(AnyElement element) = nullptr;
  AnyElement (*current)() = nullptr;
  void (*listen)(bool on) = nullptr;  // to what becomes current

  ErrorCode (*move_up)(Name name) = nullptr;
  ErrorCode (*move_down)(Name name) = nullptr;

  ErrorCode (*add_to)(Family* family, Name name) = nullptr;
  ErrorCode (*remove_from)(Family* family, Name name) = nullptr;
  AnyElement (*first_of)(Family* family) = nullptr;
  AnyElement (*ptr_in)(Family* family, Name name) = nullptr;
  int (*count_of)(Family* family) = nullptr;
  AnyElement (*record)(AnyElement reference) = nullptr;
  const ListKind* pool = nullptr;
  int (*uses)(Name name) = nullptr;  // of the record of that name

  /// The names of the list, by walking it.
  Names walked() const {
    Names names;
    for (AnyElement element = first(); element; element = next()) names.emplace_back(name(element).view());
    return names;
  }
  void add_all(const Names& names) const {
    for (const std::string& each : names) EXPECT_EQ(0, add(each.c_str())) << each;
  }
  void remove_all() const {
    while (AnyElement element = first()) remove(name(element));
  }
};

inline void PrintTo(const ListKind* kind, std::ostream* out) { *out << kind->row.name; }

/// What every kind can be asked.
template <class Kind>
ListKind basic_list_kind() {
  using Element = std::remove_pointer_t<decltype(Kind::first())>;
  return {.row = Kind::row,
          .prepare = Kind::prepare,
          .add = Kind::add,
          .remove = Kind::remove,
          .first = []() -> AnyElement { return Kind::first(); },
          .next = []() -> AnyElement { return Kind::next(); },
          .ptr = [](Name name) -> AnyElement { return Kind::ptr(name); },
          .count = Kind::count,
          .name = [](AnyElement element) -> Text { return name_of(*static_cast<Element*>(element)); }};
}

template <class Kind>
void add_current_element(ListKind& kind) {
  using Element = typename std::remove_reference_t<decltype(Kind::object)>::Element;
  kind.set_current = [](AnyElement element) { Kind::set_current(static_cast<Element*>(element)); };
  kind.current = []() -> AnyElement { return Kind::current(); };
  kind.listen = [](bool on) {
    Kind::object.on_current = on ? +[](Element* element) { told_elements.push_back(element); } : nullptr;
  };
}

template <class Kind>
const ListKind* list_kind();

template <class Kind>
void add_families(ListKind& kind) {
  using Reference = std::remove_pointer_t<decltype(Kind::first())>;
  kind.add_to = Kind::add_to;
  kind.remove_from = Kind::remove_from;
  kind.first_of = [](Family* family) -> AnyElement { return Kind::first_of(family); };
  kind.ptr_in = [](Family* family, Name name) -> AnyElement { return Kind::ptr_in(family, name); };
  kind.count_of = Kind::count_of;
  kind.record = [](AnyElement reference) -> AnyElement { return static_cast<Reference*>(reference)->record; };
  kind.pool = list_kind<typename Kind::Pool>();
  if constexpr (requires { Kind::Pool::ptr(nullptr)->uses; }) {
    kind.uses = [](Name name) { return static_cast<int>(Kind::Pool::ptr(name)->uses); };
  }
}

template <class Kind>
const ListKind* list_kind() {
  static const ListKind made = [] {
    ListKind kind = basic_list_kind<Kind>();
    if constexpr (requires { Kind::index(nullptr); }) kind.index = Kind::index;
    if constexpr (requires { Kind::current(); }) add_current_element<Kind>(kind);
    if constexpr (requires { Kind::move_up(nullptr); }) {
      kind.move_up = Kind::move_up;
      kind.move_down = Kind::move_down;
    }
    if constexpr (requires { typename Kind::Pool; }) add_families<Kind>(kind);
    return kind;
  }();
  return &made;
}

/// Those of these kinds of which `wanted` is true.
template <class... Kinds>
std::vector<const ListKind*> those_of(bool (*wanted)(const ListKind& kind)) {
  std::vector<const ListKind*> chosen;
  for (const ListKind* kind : {list_kind<Kinds>()...}) {
    if (wanted(*kind)) chosen.push_back(kind);
  }
  return chosen;
}

/// Those of all kinds.
inline constexpr auto kinds =
    those_of<FamilyPool, WidgetPool, EnumPool, AliasPool, ConverterPool, PopupPool, PagePool, CodeHeaderPool,
             FamilyHeaderPool, ConfigHeaderPool, Resources, Entries, FamilyWidgets, FamilyEnums, FamilyAliases,
             FamilyConverters, FamilyPopups, FamilyPages, FamilyCodeHeaders, FamilyFamilyHeaders, FamilyConfigHeaders>;

/// A test of one kind of list, which begins with an empty list.
class KindTest : public EditedDocumentTest, public testing::WithParamInterface<const ListKind*> {
 protected:
  KindTest() {
    kind.prepare();
    dirty = false;
  }

  const ListKind& kind = *GetParam();
};

/// Runs the tests of a suite for the kinds of which `wanted` is true, and names them after the kinds.
#define FOR_KINDS(Suite, wanted)                                           \
  INSTANTIATE_TEST_SUITE_P(Kinds, Suite, testing::ValuesIn(kinds(wanted)), \
                           [](const auto& each) { return std::string(each.param->row.name); })

#endif
