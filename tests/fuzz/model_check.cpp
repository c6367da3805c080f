#include "model_check.h"

#include <cstring>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "support.h"
#include "vqc/cmd/model/kinds.h"

namespace {

constexpr int kPredefined = 5;  // pages in every family, and popups too

template <class Element, Order order>
void check_list(const NameList<Element, order>& list) {
  std::unordered_set<std::string_view> names;
  const Element* previous = nullptr;
  for (const Element& element : list) {
    const Text& name = name_of(element);
    require(names.insert(name.view()).second, "a name stands in a list twice");
    require(order != Order::sorted || !previous || std::strcmp(name_of(*previous), name) < 0, "a list is not sorted");
    require(list.find(name) == &element, "a name leads to another element");
    previous = &element;
  }
  require(names.size() == list.size(), "a list counts wrongly");
}

/// A pool, and the list in each family that refers to its records.
template <auto list, class Pool>
void check_pool(const Pool& pool) {
  check_list(pool.list);
  std::unordered_map<const void*, int> uses;
  for (const Family& family : family_pool.list) {
    check_list(family.*list);
    for (const auto& reference : family.*list) {
      require(pool.list.find(reference.record->name) == reference.record, "a family refers to what is in no pool");
      ++uses[reference.record];
    }
  }
  for (const auto& record : pool.list) {
    if constexpr (requires { record.uses; }) require(record.uses == uses[&record], "uses are counted wrongly");
  }
}

void check_families() {
  check_list(family_pool.list);
  for (const Family& family : family_pool.list) {
    require(!family.name.empty(), "a family has no name");
    require(page_kind.count(&family) >= kPredefined, "a family lacks predefined pages");
    require(popup_kind.count(&family) >= kPredefined, "a family lacks predefined popups");
  }
}

}  // namespace

void check_model() {
  check_pool<&Family::widgets>(widget_pool);
  check_pool<&Family::enumerations>(enum_pool);
  check_pool<&Family::aliases>(alias_pool);
  check_pool<&Family::converters>(converter_pool);
  check_pool<&Family::code_headers>(code_header_pool);
  check_pool<&Family::family_headers>(family_header_pool);
  check_pool<&Family::config_headers>(config_header_pool);
  check_pool<&Family::popups>(popup_pool);
  check_pool<&Family::pages>(page_pool);
  for (const WidgetDef& widget : widget_pool.list) check_list(widget.resource_definitions);
  for (const EnumDef& enumeration : enum_pool.list) check_list(enumeration.entries);
  check_families();
}

bool model_is_empty() {
  return family_pool.count() + widget_pool.count() + enum_pool.count() + alias_pool.count() + converter_pool.count() +
             code_header_pool.count() + family_header_pool.count() + config_header_pool.count() + popup_pool.count() +
             page_pool.count() ==
         0;
}
