#include "vqc/cmd/savefile/save.h"

#include <cstddef>
#include <memory>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/kinds.h"
#include "vqc/cmd/savefile/document_hooks.h"
#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/header_keys.h"
#include "vqc/cmd/savefile/util.h"

namespace {

/// A keyword, a blank and the quoted name.
void write_named(Stream* out, Kw word, const Text& name) {
  charout(out, keyword_text(word));
  charout(out, " ");
  strout(out, name);
}

void write_value(Stream* out, const char* indent, Kw word, const Text& value) {
  charout(out, indent);
  charout_1s(out, "%s=", keyword_text(word));
  strout(out, value);
  charout(out, "\n");
}

/// Texts that are set, and flags that differ from what a new record has.
template <class Record, std::size_t n>
void write_fields(Stream* out, const Field<Record> (&fields)[n], const Record& record, const char* indent = "\t") {
  static const Record fresh{};
  for (const Field<Record>& field : fields) {
    if (const auto* text = std::get_if<Text Record::*>(&field.member)) {
      if (record.**text) write_value(out, indent, field.word, record.**text);
    } else {
      const auto flag = std::get<bool Record::*>(field.member);
      boolout_bc(out, record.*flag, keyword_text(field.word), fresh.*flag);
    }
  }
}

template <class Record, std::size_t n>
void write_record(Stream* out, Kw word, const Field<Record> (&fields)[n], const Record& record) {
  write_named(out, word, record.name);
  charout(out, " {\n");
  write_fields(out, fields, record);
  charout(out, "}\n");
}

void write_header(Stream* out) {
  charout(out, keyword_text(Kw::vqconfig));
  charout(out, "\n");
  for (const HeaderKey& key : header_keys) {
    if (*key.value) write_value(out, "", key.word, *key.value);
  }
  if (excluded_classes.empty()) return;
  charout(out, "stop_list = '");
  ptrout(out, excluded_classes);
  charout(out, "'\n");
}

void write_optional(Stream* out, const Text& value) {
  if (value) strout(out, value);
}

void write_resource(Stream* out, const ResourceDef& resource) {
  write_optional(out, resource.name);
  charout(out, ", ");
  write_optional(out, resource.popup);
  charout(out, ", ");
  write_optional(out, resource.page);
  charout(out, ", ");
  boolout(out, resource.visible);
  charout(out, ", ");
  charout(out, free_mode_words[static_cast<std::size_t>(resource.free_get)]);
  charout(out, ", ");
  charout(out, free_mode_words[static_cast<std::size_t>(resource.free_set)]);
  if (resource.access != ACCESS_NOT_GIVEN) {
    charout(out, " access ");
    intout(out, resource.access);
  }
  if (resource.counter) {
    charout(out, " counter ");
    strout(out, resource.counter);
  }
  charout(out, resource.next ? ",\n" : ";\n");
}

void write_widget(Stream* out, const WidgetDef& widget) {
  write_named(out, Kw::widget, widget.name);
  charout(out, " {\n");
  write_fields(out, widget_fields, widget);
  if (!widget.resource_definitions.empty()) charout(out, "\tresource_definitions=");
  for (const ResourceDef& resource : widget.resource_definitions) write_resource(out, resource);
  charout(out, "}\n");
}

void write_enumeration(Stream* out, const EnumDef& enumeration) {
  write_named(out, Kw::enumeration, enumeration.name);
  charout(out, " {\n");
  write_fields(out, enum_fields, enumeration);
  for (const EnumEntry& entry : enumeration.entries) {
    charout(out, "\t");
    write_named(out, Kw::enumentry, entry.name);
    charout(out, "{\n");
    write_fields(out, enum_entry_fields, entry, "\t\t");
    charout(out, "\t}\n");
  }
  charout(out, "}\n");
}

/// Records that are nothing but a name.
template <class Pool>
void write_names(Stream* out, Kw word, const Pool& pool) {
  for (const auto& record : pool.list) {
    write_named(out, word, record.name);
    charout(out, "\n");
  }
}

template <class List>
void write_references(Stream* out, Kw word, const List& list) {
  for (const auto& reference : list) write_value(out, "\t", word, reference.record->name);
}

/// The flags go with the procedure: without one they are not written.
void write_family_init(Stream* out, const Family& family) {
  if (!family.family_init) return;
  write_value(out, "\t", Kw::family_init, family.family_init);
  for (const Field<FamilyInit>& flag : family_init_flags) {
    charout_1s(out, "\t%s=", keyword_text(flag.word));
    boolout(out, family.*std::get<bool FamilyInit::*>(flag.member));
    charout(out, "\n");
  }
}

void write_family(Stream* out, const Family& family) {
  write_named(out, Kw::family, family.name);
  charout(out, " {\n");
  write_family_init(out, family);
  write_references(out, Kw::widget, family.widgets);
  write_references(out, Kw::enumeration, family.enumerations);
  write_references(out, Kw::header, family.code_headers);
  write_references(out, Kw::cheader, family.config_headers);
  write_references(out, Kw::family_header, family.family_headers);
  write_references(out, Kw::alias, family.aliases);
  write_references(out, Kw::converter, family.converters);
  write_references(out, Kw::popup, family.popups);
  write_references(out, Kw::page, family.pages);
  charout(out, "}\n");
}

void write_document(Stream* out) {
  write_header(out);
  for (const WidgetDef& widget : widget_pool.list) write_widget(out, widget);
  for (const EnumDef& enumeration : enum_pool.list) write_enumeration(out, enumeration);
  write_names(out, Kw::header, code_header_pool);
  write_names(out, Kw::cheader, config_header_pool);
  write_names(out, Kw::family_header, family_header_pool);
  for (const AliasDef& alias : alias_pool.list) write_record(out, Kw::alias, alias_fields, alias);
  for (const ConverterDef& each : converter_pool.list) write_record(out, Kw::converter, converter_fields, each);
  for (const PopupDef& popup : popup_pool.list) write_record(out, Kw::popup, popup_fields, popup);
  write_names(out, Kw::page, page_pool);
  for (const Family& family : family_pool.list) write_family(out, family);
}

}  // namespace

void write_save_file(const char* path) {
  const std::unique_ptr<Stream> out = openfile(path, "w");
  if (!out) return;
  if (document_hooks.titled) document_hooks.titled(path);
  write_document(out.get());
  closefile(*out);
  dirty = false;
  if (document_hooks.saved) document_hooks.saved();
}
