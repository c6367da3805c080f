// Says what differs.

#include "vqc/cmd/editors/difference_words.h"

#include <iterator>
#include <string_view>

#include "libkel/message.h"
#include "vqc/cmd/editors/kit/counts.h"
#include "vqc/cmd/editors/kit/part_names.h"

namespace vqc::editors {

namespace {

/// The messages for one thing of a kind and for several, in which their number stands.
struct Plural {
  const char* one;
  const char* several;
};

/// Of the parts, as far as there can be several.
constexpr Plural part_counts[] = {
    {"count_family", "count_families"},
    {"count_widget", "count_widgets"},
    {"count_enumeration", "count_enumerations"},
    {"count_alias", "count_aliases"},
    {"count_converter", "count_converters"},
    {"count_popup", "count_popups"},
    {"count_page", "count_pages"},
    {"count_code_header", "count_code_headers"},
    {"count_family_header", "count_family_headers"},
    {"count_config_header", "count_config_headers"},
    {"count_resource", "count_resources"},
    {"count_entry", "count_entries"},
};

/// The message for each verb, in which what it is said of stands.
constexpr const char* verb_messages[] = {"differs_more", "differs_fewer", "differs_changed", "differs_reordered"};

/// What begins a line for each verb.
constexpr const char* marks[] = {"+ ", "- ", "  ", "~ "};
constexpr Tint tints[] = {Tint::added, Tint::removed, Tint::plain, Tint::plain};

std::string number_of(int number, const Plural& words) { return in_words({number, words.one, words.several}); }

std::string with_verb(Verb verb, const std::string& what) {
  return filled(text_or_name(verb_messages[static_cast<std::size_t>(verb)]), {what.c_str()});
}

/// What owns a part, or refers to it.
Part owner_of(Part part) {
  if (part == Part::resource) return Part::widget;
  return part == Part::entry ? Part::enumeration : Part::family;
}

std::string name_of_part(const Difference& difference) {
  const std::string name = part_name(difference.part, difference.name);
  return difference.of ? name + " (" + part_name(owner_of(difference.part), difference.of) + ")" : name;
}

/// "  + page = look"
std::string assignment(const char* mark, std::string_view field, const std::string& value) {
  return mark + std::string(field) + " = " + value;
}

void add_lines(TintedLines& lines, const RecordDifference& difference) {
  const auto verb = static_cast<std::size_t>(difference.verb);
  lines.push_back({tints[verb], marks[verb] + name_of_part(difference)});
  for (const auto& [field, from, to] : difference.fields) {
    if (!from.empty()) lines.push_back({Tint::removed, assignment("  - ", field, from)});
    if (!to.empty()) lines.push_back({Tint::added, assignment("  + ", field, to)});
  }
}

}  // namespace

std::string in_numbers(std::span<const DifferenceCount> counts) {
  std::string list;
  for (const auto& [verb, part, number] : counts) {
    const auto place = static_cast<std::size_t>(part);
    const bool is_many = place < std::size(part_counts);
    add_to_list(list, with_verb(verb, is_many ? number_of(number, part_counts[place]) : part_name(part, {})));
  }
  return list.empty() ? text_or_name("differs_not") : list;
}

std::string in_numbers(const TintedLines& lines) {
  std::string list;
  const auto add = [&](Verb verb, Tint tint) {
    const int number = count_lines(lines, tint);
    if (number > 0) add_to_list(list, with_verb(verb, number_of(number, {"count_line", "count_lines"})));
  };
  add(Verb::added, Tint::added);
  add(Verb::removed, Tint::removed);
  return list.empty() ? text_or_name("differs_not") : list;
}

TintedLines in_lines(std::span<const RecordDifference> differences) {
  TintedLines lines;
  for (const RecordDifference& difference : differences) add_lines(lines, difference);
  return lines;
}

}  // namespace vqc::editors
