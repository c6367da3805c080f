// Takes the state of a document.

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/history/state.h"

namespace vqc {

namespace {

// A record beside a state: the fields as they are, and what the record owns.

/// Whether each element of a list is as a state has it.
template <class List, class States, class IsIn>
bool all_in(const List& list, const States& states, IsIn is_in) {
  if (list.size() != states.size()) return false;
  auto state = states.begin();
  for (const auto& element : list) {
    if (!is_in(element, *state++)) return false;
  }
  return true;
}

template <class List, class Fields>
bool is_list(const List& list, const std::vector<Fields>& states) {
  return all_in(list, states,
                [](const auto& element, const Fields& state) { return part<const Fields>(element) == state; });
}

template <class Fields, class List>
std::vector<Fields> list_state(const List& list) {
  std::vector<Fields> state;
  state.reserve(list.size());
  for (const auto& element : list) state.push_back(part<const Fields>(element));
  return state;
}

template <class References>
bool is_references(const References& list, const std::vector<Text>& names) {
  return all_in(list, names, [](const auto& reference, Text name) { return reference.record->name == name; });
}

bool is_in(const WidgetDef& widget, const WidgetState& state) {
  return part<const WidgetFields>(widget) == part<const WidgetFields>(state) &&
         is_list(widget.resource_definitions, state.resources);
}
bool is_in(const EnumDef& enumeration, const EnumState& state) {
  return part<const EnumFields>(enumeration) == part<const EnumFields>(state) &&
         is_list(enumeration.entries, state.entries);
}
template <class Fields>
bool is_in(const std::type_identity_t<Fields>& record, const Fields& state) {
  return record == state;
}
bool is_in(const Family& family, const FamilyState& state) {
  if (!(family.name == state.name) || !(part<const FamilyInit>(family) == state)) return false;
  bool same = true;
  std::size_t i = 0;
  each_family_list([&](auto list, auto /*pool*/) { same = same && is_references(family.*list, state.lists[i++]); });
  return same;
}

void take(const WidgetDef& widget, WidgetState& state) {
  part<WidgetFields>(state) = part<const WidgetFields>(widget);
  state.resources = list_state<ResourceFields>(widget.resource_definitions);
}
void take(const EnumDef& enumeration, EnumState& state) {
  part<EnumFields>(state) = part<const EnumFields>(enumeration);
  state.entries = list_state<EnumEntryFields>(enumeration.entries);
}
template <class Fields>
void take(const std::type_identity_t<Fields>& record, Fields& state) {
  state = record;
}
void take(const Family& family, FamilyState& state) {
  state.name = family.name;
  part<FamilyInit>(state) = part<const FamilyInit>(family);
  std::size_t i = 0;
  each_family_list([&](auto list, auto /*pool*/) {
    for (const auto& reference : family.*list) state.lists[i].push_back(reference.record->name);
    ++i;
  });
}

/// The records of an earlier state, to be asked for in the order of the document: most stand where they stood.
template <class Record>
class Earlier {
 public:
  explicit Earlier(const State::Records<Record>* records) : records_(records) {}

  /// The record of that name, or null.
  std::shared_ptr<const Record> find(Text name) {
    if (!records_) return nullptr;
    if (next_ == records_->size() || !((*records_)[next_]->name == name)) next_ = place_of(name);
    return next_ == records_->size() ? nullptr : (*records_)[next_++];
  }

 private:
  std::size_t place_of(Text name) {
    if (!places_) {
      places_.emplace();
      for (std::size_t i = 0; i < records_->size(); ++i) places_->emplace((*records_)[i]->name.view(), i);
    }
    const auto found = places_->find(name.view());
    return found == places_->end() ? records_->size() : found->second;
  }

  const State::Records<Record>* records_;
  std::size_t next_ = 0;
  std::optional<std::unordered_map<std::string_view, std::size_t>> places_;  // made when one has moved
};

template <class Pool, class Record>
void capture_records(const Pool& pool, const State::Records<Record>* before, State::Records<Record>& now) {
  Earlier<Record> earlier(before);
  now.reserve(pool.size());
  for (const auto& record : pool) {
    std::shared_ptr<const Record> state = earlier.find(record.name);
    if (!state || !is_in(record, *state)) {
      const auto changed = std::make_shared<Record>();
      take(record, *changed);
      state = changed;
    }
    now.push_back(std::move(state));
  }
}

template <class Pool>
State::Names names_in(const Pool& pool) {
  State::Names names;
  names.reserve(pool.size());
  for (const auto& record : pool) names.push_back(record.name);
  return names;
}

void capture_header(const Document& document, State& now) {
  for (std::size_t i = 0; i < now.names.size(); ++i) now.names[i] = (document.names.*all_name_options[i]).document;
  now.output_names = document.output_names;
  now.excluded_classes = document.excluded_classes;
}

}  // namespace

bool State::operator==(const State& other) const {
  const auto same_records = [](const auto& a, const auto& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const auto& x, const auto& y) { return x == y || *x == *y; });
  };
  return same_records(widgets, other.widgets) && same_records(enumerations, other.enumerations) &&
         same_records(aliases, other.aliases) && same_records(converters, other.converters) &&
         same_records(popups, other.popups) && same_records(families, other.families) && pages == other.pages &&
         code_headers == other.code_headers && family_headers == other.family_headers &&
         config_headers == other.config_headers && names == other.names && output_names == other.output_names &&
         excluded_classes == other.excluded_classes;
}

std::shared_ptr<const State> capture(const Document& document, const std::shared_ptr<const State>& before) {
  auto now = std::make_shared<State>();
  const auto records = [&](auto pool, auto member) {
    capture_records(document.*pool, before ? &((*before).*member) : nullptr, (*now).*member);
  };
  records(&Document::widgets, &State::widgets);
  records(&Document::enumerations, &State::enumerations);
  records(&Document::aliases, &State::aliases);
  records(&Document::converters, &State::converters);
  records(&Document::popups, &State::popups);
  records(&Document::families, &State::families);
  now->pages = names_in(document.pages);
  now->code_headers = names_in(document.code_headers);
  now->family_headers = names_in(document.family_headers);
  now->config_headers = names_in(document.config_headers);
  capture_header(document, *now);
  if (before && *now == *before) return before;
  if (before) now->texts = before->texts;
  now->texts.insert(document.texts());
  return now;
}

}  // namespace vqc
