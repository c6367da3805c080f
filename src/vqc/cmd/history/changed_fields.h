#ifndef VQC_CMD_HISTORY_CHANGED_FIELDS_H
#define VQC_CMD_HISTORY_CHANGED_FIELDS_H

#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/history/state.h"

namespace vqc {

/// A field that has another value. Values are as documents have them; empty for a text that is not given.
struct FieldChange {
  std::string_view field;  // its word
  std::string from;
  std::string to;

  bool operator==(const FieldChange&) const = default;
};

using FieldChanges = std::vector<FieldChange>;

// The fields in which two states of a record differ, in the order in which documents have them.

FieldChanges changed_fields(const WidgetFields& from, const WidgetFields& to);
FieldChanges changed_fields(const ResourceFields& from, const ResourceFields& to);
FieldChanges changed_fields(const EnumFields& from, const EnumFields& to);
FieldChanges changed_fields(const EnumEntryFields& from, const EnumEntryFields& to);
FieldChanges changed_fields(const AliasFields& from, const AliasFields& to);
FieldChanges changed_fields(const ConverterFields& from, const ConverterFields& to);
FieldChanges changed_fields(const PopupFields& from, const PopupFields& to);
FieldChanges changed_fields(const FamilyInit& from, const FamilyInit& to);

// The same for what documents say before all items.

FieldChanges changed_stop_list(const State& from, const State& to);
FieldChanges changed_table_names(const State& from, const State& to);
FieldChanges changed_output_names(const State& from, const State& to);

}  // namespace vqc

#endif
