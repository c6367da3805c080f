#include "model_check.h"

#include <iterator>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "support.h"

namespace {

template <class Element, Order order>
void check_list(const NameList<Element, order>& list) {
  std::unordered_set<std::string_view> names;
  const Element* previous = nullptr;
  for (const Element& element : list) {
    const Text name = name_of(element);
    require(names.insert(name.view()).second, "a name stands in a list twice");
    require(order != Order::sorted || !previous || name_of(*previous).view() < name.view(), "a list is not sorted");
    require(list.find(name) == &element, "a name leads to another element");
    previous = &element;
  }
  require(names.size() == list.size(), "a list counts wrongly");
}

/// A pool, and the list in each family that refers to its records.
template <class Pool, class References>
void check_pool(const Document& document, const Pool& pool, References Family::*list) {
  check_list(pool);
  std::unordered_map<const void*, int> uses;
  for (const Family& family : document.families) {
    check_list(family.*list);
    for (const auto& reference : family.*list) {
      require(pool.find(reference.record->name) == reference.record, "a family refers to what is in no pool");
      ++uses[reference.record];
    }
  }
  for (const auto& record : pool) {
    if constexpr (requires { record.uses; }) require(record.uses == uses[&record], "uses are counted wrongly");
  }
}

void check_families(const Document& document) {
  check_list(document.families);
  for (const Family& family : document.families) {
    require(!family.name.empty(), "a family has no name");
    require(family.pages.size() >= std::size(predefined_pages), "a family lacks predefined pages");
    require(family.popups.size() >= std::size(predefined_popups), "a family lacks predefined popups");
  }
}

}  // namespace

void check_model(const Document& document) {
  check_pool(document, document.widgets, &Family::widgets);
  check_pool(document, document.enumerations, &Family::enumerations);
  check_pool(document, document.aliases, &Family::aliases);
  check_pool(document, document.converters, &Family::converters);
  check_pool(document, document.code_headers, &Family::code_headers);
  check_pool(document, document.family_headers, &Family::family_headers);
  check_pool(document, document.config_headers, &Family::config_headers);
  check_pool(document, document.popups, &Family::popups);
  check_pool(document, document.pages, &Family::pages);
  for (const WidgetDef& widget : document.widgets) check_list(widget.resource_definitions);
  for (const EnumDef& enumeration : document.enumerations) check_list(enumeration.entries);
  check_families(document);
}

bool model_is_empty(const Document& document) {
  return document.families.empty() && document.widgets.empty() && document.enumerations.empty() &&
         document.aliases.empty() && document.converters.empty() && document.code_headers.empty() &&
         document.family_headers.empty() && document.config_headers.empty() && document.popups.empty() &&
         document.pages.empty();
}
