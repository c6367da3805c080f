// Brings a document back to a state.

#include <cstddef>
#include <string_view>
#include <type_traits>
#include <unordered_set>
#include <vector>

#include "vqc/cmd/history/state.h"
#include "vqc/cmd/history/state_names.h"

namespace vqc {

namespace {

using NameSet = std::unordered_set<std::string_view>;

template <class States>
NameSet names_of(const States& states) {
  NameSet names;
  for (const auto& state : states) names.insert(name_in(state).view());
  return names;
}

/// Gives a list the order of the states, which has the same names.
template <class List, class States>
void put_in_order(List& list, const States& states) {
  bool in_order = true;
  auto state = states.begin();
  for (const auto& element : list) in_order = in_order && name_of(element) == name_in(*state++);
  if (in_order) return;
  std::vector<typename List::Element*> all;
  all.reserve(states.size());
  for (const auto& each : states) all.push_back(list.find(name_in(each)));
  list.arrange(all);
}

class Restorer {
 public:
  Restorer(Document& document, const State& from, const State& to) : document_(document), from_(from), to_(to) {}

  /// A new family brings what every family has, so that families come first; they find the records that they name, and
  /// leave go of those that are no more.
  void restore() {
    for (const auto& family : to_.families) document_.ensure(document_.families, family->name);
    fill(document_.widgets, from_.widgets, to_.widgets);
    fill(document_.enumerations, from_.enumerations, to_.enumerations);
    fill(document_.aliases, from_.aliases, to_.aliases);
    fill(document_.converters, from_.converters, to_.converters);
    fill(document_.popups, {}, to_.popups);  // a new family has changed those that every family has
    add(document_.pages, to_.pages);
    add(document_.code_headers, to_.code_headers);
    add(document_.family_headers, to_.family_headers);
    add(document_.config_headers, to_.config_headers);
    remove_families();
    fill(document_.families, from_.families, to_.families);
    put_in_order(document_.families, to_.families);
    keep_only(document_.widgets, to_.widgets);
    keep_only(document_.enumerations, to_.enumerations);
    keep_only(document_.aliases, to_.aliases);
    keep_only(document_.converters, to_.converters);
    keep_only(document_.popups, to_.popups);
    keep_only(document_.pages, to_.pages);
    keep_only(document_.code_headers, to_.code_headers);
    keep_only(document_.family_headers, to_.family_headers);
    keep_only(document_.config_headers, to_.config_headers);
    restore_header();
  }

 private:
  template <class Pool, class Records>
  void fill(Pool& pool, const Records& from, const Records& to) {
    std::unordered_set<const void*> same;
    for (const auto& record : from) same.insert(record.get());
    for (const auto& record : to) {
      if (!same.contains(record.get())) fill(*document_.ensure(pool, record->name), *record);
    }
  }

  void fill(WidgetDef& widget, const WidgetState& state) {
    part<WidgetFields>(widget) = part<const WidgetFields>(state);
    fill_list(widget.resource_definitions, state.resources);
  }
  void fill(EnumDef& enumeration, const EnumState& state) {
    part<EnumFields>(enumeration) = part<const EnumFields>(state);
    fill_list(enumeration.entries, state.entries);
  }
  template <class Fields>
  void fill(std::type_identity_t<Fields>& record, const Fields& state) {
    record = state;
  }
  void fill(Family& family, const FamilyState& state) {
    family.name = state.name;
    part<FamilyInit>(family) = part<const FamilyInit>(state);
    std::size_t i = 0;
    each_family_list([&](auto list, auto pool) {
      const std::vector<Text>& names = state.lists[i++];
      for (const Text name : names) document_.ensure(family.*list, document_.*pool, name);
      drop_references(family.*list, names_of(names));
      put_in_order(family.*list, names);
    });
  }

  template <class List, class Fields>
  void fill_list(List& list, const std::vector<Fields>& states) {
    for (const Fields& state : states) part<Fields>(*document_.ensure(list, state.name)) = state;
    keep_only(list, states);
  }

  /// A record that is there takes the state's text for its name: the one that it has may go with another state.
  template <class Pool>
  void add(Pool& pool, const State::Names& names) {
    for (const Text name : names) document_.ensure(pool, name)->name = name;
  }

  /// Removes those that a state does not have. All that it has are there.
  template <class List, class States>
  void keep_only(List& list, const States& states) {
    if (list.size() > states.size()) {
      const NameSet kept = names_of(states);
      for (auto* element : without(list, kept)) document_.remove(list, element);
    }
    put_in_order(list, states);
  }

  template <class References>
  void drop_references(References& list, const NameSet& kept) {
    for (auto* reference : without(list, kept)) document_.release(list, reference);
  }

  template <class List>
  static std::vector<typename List::Element*> without(const List& list, const NameSet& kept) {
    std::vector<typename List::Element*> others;
    for (auto& element : list) {
      if (!kept.contains(name_of(element).view())) others.push_back(&element);
    }
    return others;
  }

  void remove_families() {
    for (Family* family : without(document_.families, names_of(to_.families))) {
      each_family_list([&](auto list, auto /*pool*/) { drop_references(family->*list, {}); });
      document_.remove(document_.families, family);
    }
  }

  void restore_header() {
    for (std::size_t i = 0; i < to_.names.size(); ++i) (document_.names.*all_name_options[i]).document = to_.names[i];
    document_.output_names = to_.output_names;
    document_.excluded_classes = to_.excluded_classes;
  }

  Document& document_;
  const State& from_;
  const State& to_;
};

}  // namespace

void restore(Document& document, const State& from, const State& to) { Restorer(document, from, to).restore(); }

}  // namespace vqc
