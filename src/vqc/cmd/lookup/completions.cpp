// Collects the names that a document has for what a field names.

#include "vqc/cmd/lookup/completions.h"

#include <algorithm>
#include <set>
#include <span>
#include <string_view>

namespace vqc {

namespace {

using Names = std::set<std::string_view>;

void add(Names& names, Text name) {
  if (!name.view().empty()) names.insert(name.view());
}

template <class List>
void add_names_of(Names& names, const List& records) {
  for (const auto& record : records) add(names, record.name);
}

template <class Record>
void add_values(Names& names, const Record& record, std::span<const Field<Record>> fields, ValueKind kind) {
  for (const Field<Record>& field : fields) {
    if (field.kind == kind && field.text()) add(names, record.*(*field.text()));
  }
}

/// What stands in the fields of all records of a list. Most kinds of values are in few kinds of records.
template <class Record, class List>
void add_values_in(Names& names, const List& records, std::span<const Field<Record>> fields, ValueKind kind) {
  if (std::ranges::none_of(fields, [kind](const auto& field) { return field.kind == kind; })) return;
  for (const auto& record : records) add_values<Record>(names, record, fields, kind);
}

std::vector<std::string> listed(const Names& names) { return {names.begin(), names.end()}; }

}  // namespace

std::vector<std::string> completions(const Document& document, ValueKind kind) {
  Names names;
  add_values_in<WidgetDef>(names, document.widgets, widget_fields, kind);
  add_values_in<ConverterDef>(names, document.converters, converter_fields, kind);
  add_values_in<PopupDef>(names, document.popups, popup_fields, kind);
  add_values_in<FamilyInit>(names, document.families, family_init_fields, kind);
  if (kind == ValueKind::popup) add_names_of(names, document.popups);
  if (kind == ValueKind::header) {
    add_names_of(names, document.code_headers);
    add_names_of(names, document.family_headers);
    add_names_of(names, document.config_headers);
  }
  return listed(names);
}

std::vector<std::string> page_completions(const Document& document) {
  Names names;
  add_names_of(names, document.pages);
  return listed(names);
}

}  // namespace vqc
