// Finds in what two states differ.

#include "vqc/cmd/history/difference.h"

#include <set>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/history/state_names.h"

namespace vqc {

namespace {

template <class States>
using ByName = std::unordered_map<std::string_view, const typename States::value_type*>;

template <class States>
ByName<States> by_name(const States& states) {
  ByName<States> index;
  index.reserve(states.size());
  for (const auto& state : states) index.emplace(name_in(state).view(), &state);
  return index;
}

/// Whether what is in both stands in another order.
template <class States>
bool is_reordered(const States& from, const States& to, const ByName<States>& in_from, const ByName<States>& in_to) {
  auto next = to.begin();
  for (const auto& state : from) {
    if (!in_to.contains(name_in(state).view())) continue;
    while (!in_from.contains(name_in(*next).view())) ++next;
    if (!(name_in(*next++) == name_in(state))) return true;
  }
  return false;
}

/// Finds differences, with the fields of what has changed or without.
template <class Found>
class Comparison {
 public:
  Comparison(const State& from, const State& to) : from_(from), to_(to) {}

  std::vector<Found> find() {
    compare(from_.families, to_.families, Part::family, {},
            [this](const FamilyState& a, const FamilyState& b) { compare_family(a, b); });
    compare(from_.widgets, to_.widgets, Part::widget, {},
            [this](const WidgetState& a, const WidgetState& b) { compare_widget(a, b); });
    compare(from_.enumerations, to_.enumerations, Part::enumeration, {},
            [this](const EnumState& a, const EnumState& b) { compare_enumeration(a, b); });
    compare_plain(from_.aliases, to_.aliases, Part::alias);
    compare_plain(from_.converters, to_.converters, Part::converter);
    compare_plain(from_.popups, to_.popups, Part::popup);
    compare_names(from_.pages, to_.pages, Part::page, {});
    compare_names(from_.code_headers, to_.code_headers, Part::code_header, {});
    compare_names(from_.family_headers, to_.family_headers, Part::family_header, {});
    compare_names(from_.config_headers, to_.config_headers, Part::config_header, {});
    compare_header();
    std::vector<Found> found;
    for (auto& rank : ranks_) found.insert(found.end(), rank.begin(), rank.end());
    return found;
  }

 private:
  /// From what matters most.
  enum Rank { FAMILIES, RECORDS, REFERENCES, OWNED, FIELDS, ORDER, HEADER, RANKS };

  void add(Rank rank, Difference difference) { ranks_[rank].push_back({difference}); }

  /// Adds what has changed; `fields` says in which fields.
  template <class ChangedFields>
  void add_changed(Rank rank, Part part, Text name, Text of, ChangedFields fields) {
    const Difference difference{Verb::changed, part, name, of};
    if constexpr (std::is_same_v<Found, RecordDifference>) {
      ranks_[rank].push_back({difference, fields()});
    } else {
      ranks_[rank].push_back(difference);
    }
  }
  template <class Fields>
  void add_changed(Rank rank, Part part, Text name, Text of, const Fields& before, const Fields& now) {
    add_changed(rank, part, name, of, [&] { return changed_fields(before, now); });
  }

  static Rank rank_of(Part part, Text of) {
    if (part == Part::family) return FAMILIES;
    if (part == Part::resource || part == Part::entry) return OWNED;
    return of ? REFERENCES : RECORDS;
  }

  /// Compares lists of the same kind; `compare_both` is called with what is in both and not the same. False where the
  /// order is another.
  template <class States, class CompareBoth>
  bool compare_lists(const States& from, const States& to, Part part, Text of, CompareBoth compare_both) {
    const ByName<States> in_from = by_name(from);
    const ByName<States> in_to = by_name(to);
    for (const auto& state : to) {
      const auto before = in_from.find(name_in(state).view());
      if (before == in_from.end()) {
        add(rank_of(part, of), {Verb::added, part, name_in(state), of});
      } else if (!(*before->second == state)) {
        compare_both(*before->second, state);
      }
    }
    for (const auto& state : from) {
      if (in_to.contains(name_in(state).view())) continue;
      add(rank_of(part, of), {Verb::removed, part, name_in(state), of});
    }
    return !is_reordered(from, to, in_from, in_to);
  }

  /// The same for records that are shared.
  template <class Record, class CompareBoth>
  void compare(const State::Records<Record>& from, const State::Records<Record>& to, Part part, Text of,
               CompareBoth compare_both) {
    const bool in_order = compare_lists(from, to, part, of, [&](const auto& a, const auto& b) {
      if (!(*a == *b)) compare_both(*a, *b);
    });
    if (!in_order && part == Part::family) add(ORDER, {Verb::reordered, Part::families});
  }

  template <class Record>
  void compare_plain(const State::Records<Record>& from, const State::Records<Record>& to, Part part) {
    compare(from, to, part, {},
            [&](const Record& before, const Record& now) { add_changed(FIELDS, part, now.name, {}, before, now); });
  }

  bool compare_names(const State::Names& from, const State::Names& to, Part part, Text of) {
    if (from == to) return true;
    return compare_lists(from, to, part, of, [](Text, Text) {});
  }

  /// Compares the fields that a record has beside its lists.
  template <class Fields>
  void add_if_changed(Part part, Text name, const Fields& from, const Fields& to) {
    if (!(from == to)) add_changed(FIELDS, part, name, {}, from, to);
  }

  void compare_family(const FamilyState& from, const FamilyState& to) {
    bool in_order = true;
    for (std::size_t i = 0; i < to.lists.size(); ++i) {
      in_order = compare_names(from.lists[i], to.lists[i], family_list_parts[i], to.name) && in_order;
    }
    if (!in_order) add(ORDER, {Verb::reordered, Part::family, to.name});
    add_if_changed<FamilyInit>(Part::family, to.name, from, to);
  }

  void compare_widget(const WidgetState& from, const WidgetState& to) {
    compare_lists(from.resources, to.resources, Part::resource, to.name,
                  [&](const ResourceFields& before, const ResourceFields& now) {
                    add_changed(OWNED, Part::resource, now.name, to.name, before, now);
                  });
    add_if_changed<WidgetFields>(Part::widget, to.name, from, to);
  }

  void compare_enumeration(const EnumState& from, const EnumState& to) {
    const bool in_order = compare_lists(from.entries, to.entries, Part::entry, to.name,
                                        [&](const EnumEntryFields& before, const EnumEntryFields& now) {
                                          add_changed(OWNED, Part::entry, now.name, to.name, before, now);
                                        });
    if (!in_order) add(ORDER, {Verb::reordered, Part::enumeration, to.name});
    add_if_changed<EnumFields>(Part::enumeration, to.name, from, to);
  }

  void compare_header() {
    const auto compare_with = [this](bool same, Part part, FieldChanges (*fields)(const State&, const State&)) {
      if (!same) add_changed(HEADER, part, {}, {}, [&] { return fields(from_, to_); });
    };
    compare_with(from_.excluded_classes == to_.excluded_classes, Part::stop_list, changed_stop_list);
    compare_with(from_.names == to_.names, Part::table_names, changed_table_names);
    compare_with(from_.output_names == to_.output_names, Part::output_names, changed_output_names);
  }

  const State& from_;
  const State& to_;
  std::vector<Found> ranks_[RANKS];
};

/// What a person counts: a family that refers to something else, or in another order, has changed.
Difference with_its_family(const Difference& each) {
  const bool is_owned = each.part == Part::resource || each.part == Part::entry;
  if (each.of && !is_owned) return {Verb::changed, Part::family, each.of};
  const bool is_order_in_it = each.verb == Verb::reordered && each.name;
  return is_order_in_it ? Difference{Verb::changed, each.part, each.name} : each;
}

}  // namespace

std::vector<Difference> differences(const State& from, const State& to) {
  return Comparison<Difference>(from, to).find();
}

std::vector<RecordDifference> field_differences(const State& from, const State& to) {
  return Comparison<RecordDifference>(from, to).find();
}

std::vector<DifferenceCount> count_differences(std::span<const Difference> all) {
  std::set<std::tuple<Part, Verb, std::string_view, std::string_view>> things;
  for (const Difference& each : all) {
    const auto [verb, part, name, of] = with_its_family(each);
    things.emplace(part, verb, name.view(), of.view());
  }
  std::vector<DifferenceCount> counts;
  for (const auto& [part, verb, name, of] : things) {
    const bool goes_on = !counts.empty() && counts.back().part == part && counts.back().verb == verb;
    if (!goes_on) counts.push_back({verb, part, 0});
    ++counts.back().number;
  }
  return counts;
}

}  // namespace vqc
