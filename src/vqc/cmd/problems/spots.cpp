// Turns places in the text of a document into its parts.

#include "vqc/cmd/problems/spots.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "vqc/cmd/savefile/fields.h"

namespace vqc {

namespace {

/// What stands somewhere. The texts are the document's.
struct Standing {
  Part part;
  Text name = {};
  Text of = {};
  std::optional<Kw> field = {};
};

Spot spot_of(const Standing& standing) {
  return {.part = standing.part,
          .name = string_of(standing.name),
          .of = string_of(standing.of),
          .field = std::string(standing.field ? keyword_text(*standing.field) : "")};
}

/// Visits all names and values of a document with where they stand.
template <class Visit>
class Walk {
 public:
  Walk(const Document& document, const Places& places, Visit visit)
      : document_(document), places_(places), visit_(visit) {}

  void all() {
    header();
    for (const WidgetDef& widget : document_.widgets) visit_widget(widget);
    for (const EnumDef& enumeration : document_.enumerations) visit_enumeration(enumeration);
    for (const AliasDef& alias : document_.aliases) record(Part::alias, alias, alias_fields);
    for (const ConverterDef& converter : document_.converters) record(Part::converter, converter, converter_fields);
    for (const PopupDef& popup : document_.popups) record(Part::popup, popup, popup_fields);
    names(Part::page, document_.pages);
    names(Part::code_header, document_.code_headers);
    names(Part::config_header, document_.config_headers);
    names(Part::family_header, document_.family_headers);
    for (const Family& family : document_.families) visit_family(family);
  }

 private:
  /// Whatever has a place: a text or a record.
  template <class Placed>
  void at(Placed placed, const Standing& standing) {
    if (const auto place = places_.of(placed)) visit_(place->begin, standing);
  }

  void header() {
    for (const HeaderKey& key : header_keys) {
      const bool is_file = std::holds_alternative<Text OutputNames::*>(key.member);
      at(key.value(document_), {.part = is_file ? Part::output_names : Part::table_names, .field = key.word});
    }
    at(document_.excluded_classes, {.part = Part::stop_list});
  }

  /// The text values of a record.
  template <class Record, std::size_t n>
  void values(const Standing& of_record, const Record& record, const Field<Record> (&fields)[n]) {
    for (const Field<Record>& field : fields) {
      const auto* text = field.text();
      if (text) at(record.**text, {of_record.part, of_record.name, of_record.of, field.word});
    }
  }

  template <class Record, std::size_t n>
  void record(Part part, const Record& record, const Field<Record> (&fields)[n]) {
    const Standing whole{part, record.name};
    at(static_cast<const void*>(&record), whole);
    values(whole, record, fields);
  }

  void visit_widget(const WidgetDef& widget) {
    record(Part::widget, widget, widget_fields);
    for (const ResourceDef& resource : widget.resource_definitions) {
      at(resource.name, {Part::resource, resource.name, widget.name});
      at(resource.popup, {Part::resource, resource.name, widget.name, Kw::popup});
      at(resource.page, {Part::resource, resource.name, widget.name, Kw::page});
      at(resource.counter, {Part::resource, resource.name, widget.name, Kw::counter});
    }
  }

  void visit_enumeration(const EnumDef& enumeration) {
    record(Part::enumeration, enumeration, enum_fields);
    for (const EnumEntry& entry : enumeration.entries) {
      const Standing whole{Part::entry, entry.name, enumeration.name};
      at(entry.name, whole);
      values(whole, entry, enum_entry_fields);
    }
  }

  template <class Pool>
  void names(Part part, const Pool& pool) {
    for (const auto& each : pool) at(static_cast<const void*>(&each), {part, each.name});
  }

  void visit_family(const Family& family) {
    const Standing whole{Part::family, family.name};
    at(static_cast<const void*>(&family), whole);
    values<FamilyInit>(whole, family, family_init_fields);
    std::size_t i = 0;
    each_family_list([&](auto list, auto /*pool*/) { references(family_list_parts[i++], family, family.*list); });
  }

  template <class References>
  void references(Part part, const Family& family, const References& list) {
    for (const auto& each : list) at(static_cast<const void*>(&each), {part, each.record->name, family.name});
  }

  const Document& document_;
  const Places& places_;
  Visit visit_;
};

std::size_t last_byte(Range range) { return range.end > range.begin ? range.end - 1 : range.begin; }

/// What begins last of all that begins before a finding ends.
struct Closest {
  std::size_t last_byte;
  std::size_t finding;
  std::size_t begin = 0;
  std::optional<Standing> standing = {};

  void take(std::size_t other_begin, const Standing& other) {
    if (standing && other_begin < begin) return;
    begin = other_begin;
    standing = other;
  }
};

/// One for each finding, in the order in which they end.
std::vector<Closest> closest_to(std::span<const Finding> findings) {
  std::vector<Closest> all;
  for (std::size_t i = 0; i < findings.size(); ++i) all.push_back({last_byte(findings[i].range), i});
  std::ranges::stable_sort(all, {}, &Closest::last_byte);
  return all;
}

}  // namespace

std::vector<std::optional<Spot>> spots_of(std::span<const Finding> findings, const Document& document,
                                          const Places& places) {
  std::vector<std::optional<Spot>> spots(findings.size());
  if (findings.empty()) return spots;
  std::vector<Closest> all = closest_to(findings);
  Walk(document, places, [&](std::size_t begin, const Standing& standing) {
    const auto next = std::ranges::lower_bound(all, begin, {}, &Closest::last_byte);
    if (next != all.end()) next->take(begin, standing);
  }).all();
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (i > 0 && !all[i].standing) all[i].standing = all[i - 1].standing;  // nothing begins between the two
    if (all[i].standing) spots[all[i].finding] = spot_of(*all[i].standing);
  }
  return spots;
}

}  // namespace vqc
