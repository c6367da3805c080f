// Finds the fields in which two states of a record differ.

#include "vqc/cmd/history/changed_fields.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <variant>

#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc {

namespace {

// How documents write a value.

std::string written(Text text) {
  if (!text) return {};
  StringSink out;
  quoteout(out, text);
  out.finish();
  return std::move(out).text();
}
std::string written(bool flag) { return flag ? "True" : "False"; }
std::string written(FreeMode mode) { return std::string(free_mode_words[static_cast<std::size_t>(mode)]); }
std::string written_access(int access) { return access == ACCESS_NOT_GIVEN ? "" : std::to_string(access); }

void add(FieldChanges& changes, std::string_view field, std::string from, std::string to) {
  if (from != to) changes.push_back({field, std::move(from), std::move(to)});
}

/// Compares the fields of a table, whose members are those of the records' states too.
template <class Fields, class Record, std::size_t n>
FieldChanges compare(const Field<Record> (&table)[n], const Fields& from, const Fields& to) {
  FieldChanges changes;
  for (const Field<Record>& field : table) {
    const auto compare_member = [&]<class Value>(Value Record::*of_record) {
      const auto member = static_cast<Value Fields::*>(of_record);
      add(changes, keyword_text(field.word), written(from.*member), written(to.*member));
    };
    std::visit(compare_member, field.member);
  }
  return changes;
}

}  // namespace

FieldChanges changed_fields(const WidgetFields& from, const WidgetFields& to) {
  return compare(widget_fields, from, to);
}

FieldChanges changed_fields(const ResourceFields& from, const ResourceFields& to) {
  FieldChanges changes;
  add(changes, keyword_text(Kw::popup), written(from.popup), written(to.popup));
  add(changes, keyword_text(Kw::page), written(from.page), written(to.page));
  add(changes, "visible", written(from.visible), written(to.visible));
  add(changes, "free_get", written(from.free_get), written(to.free_get));
  add(changes, "free_set", written(from.free_set), written(to.free_set));
  add(changes, keyword_text(Kw::access), written_access(from.access), written_access(to.access));
  add(changes, keyword_text(Kw::counter), written(from.counter), written(to.counter));
  return changes;
}

FieldChanges changed_fields(const EnumFields& from, const EnumFields& to) { return compare(enum_fields, from, to); }

FieldChanges changed_fields(const EnumEntryFields& from, const EnumEntryFields& to) {
  return compare(enum_entry_fields, from, to);
}

FieldChanges changed_fields(const AliasFields& from, const AliasFields& to) { return compare(alias_fields, from, to); }

FieldChanges changed_fields(const ConverterFields& from, const ConverterFields& to) {
  return compare(converter_fields, from, to);
}

FieldChanges changed_fields(const PopupFields& from, const PopupFields& to) { return compare(popup_fields, from, to); }

FieldChanges changed_fields(const FamilyInit& from, const FamilyInit& to) {
  return compare(family_init_fields, from, to);
}

FieldChanges changed_stop_list(const State& from, const State& to) {
  FieldChanges changes;
  add(changes, keyword_text(Kw::stop_list), written(from.excluded_classes), written(to.excluded_classes));
  return changes;
}

FieldChanges changed_table_names(const State& from, const State& to) {
  FieldChanges changes;
  for (const HeaderKey& key : header_keys) {
    const auto* option = std::get_if<NameOption NameOptions::*>(&key.member);
    if (!option) continue;
    const auto place = static_cast<std::size_t>(std::ranges::find(all_name_options, *option) - all_name_options);
    add(changes, keyword_text(key.word), written(from.names[place]), written(to.names[place]));
  }
  return changes;
}

FieldChanges changed_output_names(const State& from, const State& to) {
  FieldChanges changes;
  for (const HeaderKey& key : header_keys) {
    const auto* name = std::get_if<Text OutputNames::*>(&key.member);
    if (name) add(changes, keyword_text(key.word), written(from.output_names.**name), written(to.output_names.**name));
  }
  return changes;
}

}  // namespace vqc
