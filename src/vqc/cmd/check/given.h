#ifndef VQC_CMD_CHECK_GIVEN_H
#define VQC_CMD_CHECK_GIVEN_H

#include <optional>

#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/check/text_faults.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

/// A name or a value that a document gives and that comes out in C.
struct Given {
  Kw word;  // the field, or what it is the name of
  ValueKind kind;
  Text text;
  const void* record = nullptr;  // which has this name, where there is more to it than the name
};

/// The name of a part.
inline Given given_name(Part part, Text name, const void* record = nullptr) {
  const auto [word, kind] = name_kind(part);
  return {word, kind, name, record};
}

/// Where it stands. Of records that are defined nowhere only the names of pages and headers do.
inline std::optional<Range> place_of(const Inspection& inspection, const Given& given) {
  return given.record ? inspection.places.of(given.record) : inspection.place_of(given.text);
}

/// The text values of a record.
template <class Record, std::size_t n, class Visit>
void each_field(const Field<Record> (&fields)[n], const Record& record, Visit& visit) {
  for (const Field<Record>& field : fields) {
    if (const auto* member = field.text(); member && record.**member) {
      visit(Given{field.word, field.kind, record.**member});
    }
  }
}

template <class Visit>
void each_of_resources(const WidgetDef& widget, Visit& visit) {
  for (const ResourceDef& resource : widget.resource_definitions) {
    visit(given_name(Part::resource, resource.name));
    if (resource.counter) visit(Given{Kw::counter, ValueKind::expression, resource.counter});
  }
}

template <class Visit>
void each_of_enumeration(const EnumDef& enumeration, Visit& visit) {
  visit(given_name(Part::enumeration, enumeration.name, &enumeration));
  each_field(enum_fields, enumeration, visit);
  for (const EnumEntry& entry : enumeration.entries) {
    visit(given_name(Part::entry, entry.name));
    each_field(enum_entry_fields, entry, visit);
  }
}

/// The procedure comes out as a name, only as a text, or not at all.
template <class Visit>
void each_of_converter(const ConverterDef& converter, Visit& visit) {
  visit(given_name(Part::converter, converter.name, &converter));
  if (!converter.proc_name || !(converter.add_in_vq || converter.add_in_code)) return;
  visit(Given{Kw::proc_name, converter.add_in_vq ? ValueKind::converter_procedure : ValueKind::plain_text,
              converter.proc_name});
}

template <class Visit>
void each_of_header(const Document& document, Visit& visit) {
  for (const HeaderKey& key : header_keys) {
    if (const Text value = key.value(document)) visit(Given{key.word, key.kind, value});
  }
  if (document.excluded_classes) visit(Given{Kw::stop_list, ValueKind::class_names, document.excluded_classes});
}

/// Visits all of them.
template <class Visit>
void each_given(const Document& document, Visit visit) {
  each_of_header(document, visit);
  for (const WidgetDef& widget : document.widgets) {
    visit(given_name(Part::widget, widget.name, &widget));
    each_field(widget_fields, widget, visit);
    each_of_resources(widget, visit);
  }
  for (const EnumDef& enumeration : document.enumerations) each_of_enumeration(enumeration, visit);
  for (const AliasDef& alias : document.aliases) {
    visit(given_name(Part::alias, alias.name, &alias));
    each_field(alias_fields, alias, visit);
  }
  for (const ConverterDef& converter : document.converters) each_of_converter(converter, visit);
  for (const PopupDef& popup : document.popups) {
    visit(given_name(Part::popup, popup.name, &popup));
    each_field(popup_fields, popup, visit);
  }
  for (const PageDef& page : document.pages) visit(given_name(Part::page, page.name));
  for (const auto& each : document.code_headers) visit(given_name(Part::code_header, each.name));
  for (const auto& each : document.config_headers) visit(given_name(Part::config_header, each.name));
  for (const auto& each : document.family_headers) visit(given_name(Part::family_header, each.name));
  for (const Family& family : document.families) {
    visit(given_name(Part::family, family.name, &family));
    each_field<FamilyInit>(family_init_fields, family, visit);
  }
}

}  // namespace vqc

#endif
