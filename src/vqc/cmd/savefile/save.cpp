// Writes a document.

#include "vqc/cmd/savefile/save.h"

#include <cstddef>
#include <string_view>

#include "vqc/cmd/savefile/fields.h"
#include "vqc/cmd/savefile/util.h"

namespace vqc {

namespace {

/// Where a document goes, and in which way.
struct Output {
  Sink& sink;
  bool whole;  // so that load() gives the same document

  void write(std::string_view text) const { sink.write(text); }
};

void write_quoted(const Output& out, Text text) { out.whole ? quoteout(out.sink, text) : strout(out.sink, text); }

/// A keyword, a blank and the quoted name.
void write_named(const Output& out, Kw word, Text name) {
  out.write(keyword_text(word));
  out.write(" ");
  write_quoted(out, name);
}

void write_value(const Output& out, std::string_view indent, Kw word, Text value) {
  out.write(indent);
  out.write(keyword_text(word));
  out.write("=");
  write_quoted(out, value);
  out.write("\n");
}

/// Texts that are set, and flags that differ from what a new record has.
template <class Record, std::size_t n>
void write_fields(const Output& out, const Field<Record> (&fields)[n], const Record& record,
                  std::string_view indent = "\t") {
  static const Record fresh{};
  for (const Field<Record>& field : fields) {
    if (const auto* text = field.text()) {
      if (record.**text) write_value(out, indent, field.word, record.**text);
    } else {
      const auto flag = std::get<bool Record::*>(field.member);
      boolout_bc(out.sink, record.*flag, keyword_text(field.word), fresh.*flag);
    }
  }
}

template <class Record, std::size_t n>
void write_record(const Output& out, Kw word, const Field<Record> (&fields)[n], const Record& record) {
  write_named(out, word, record.name);
  out.write(" {\n");
  write_fields(out, fields, record);
  out.write("}\n");
}

/// Per-cent signs stand as they are in it, whoever writes.
void write_stop_list(const Output& out, Text names) {
  if (out.whole) return quoteout(out.sink, names);
  out.write("'");
  ptrout(out.sink, names);
  out.write("'");
}

void write_header(const Output& out, const Document& document) {
  out.write(keyword_text(Kw::vqconfig));
  out.write("\n");
  for (const HeaderKey& key : header_keys) {
    if (const Text value = key.value(document)) write_value(out, "", key.word, value);
  }
  if (document.excluded_classes.empty()) return;
  out.write("stop_list = ");
  write_stop_list(out, document.excluded_classes);
  out.write("\n");
}

void write_optional(const Output& out, Text value) {
  if (value) write_quoted(out, value);
}

void write_resource(const Output& out, const ResourceDef& resource) {
  write_optional(out, resource.name);
  out.write(", ");
  write_optional(out, resource.popup);
  out.write(", ");
  write_optional(out, resource.page);
  out.write(", ");
  boolout(out.sink, resource.visible);
  out.write(", ");
  out.write(free_mode_words[static_cast<std::size_t>(resource.free_get)]);
  out.write(", ");
  out.write(free_mode_words[static_cast<std::size_t>(resource.free_set)]);
  if (resource.access != ACCESS_NOT_GIVEN) {
    out.write(" access ");
    intout(out.sink, resource.access);
  }
  if (resource.counter) {
    out.write(" counter ");
    write_quoted(out, resource.counter);
  }
  out.write(resource.next ? ",\n" : ";\n");
}

void write_widget(const Output& out, const WidgetDef& widget) {
  write_named(out, Kw::widget, widget.name);
  out.write(" {\n");
  write_fields(out, widget_fields, widget);
  if (!widget.resource_definitions.empty()) out.write("\tresource_definitions=");
  for (const ResourceDef& resource : widget.resource_definitions) write_resource(out, resource);
  out.write("}\n");
}

void write_enumeration(const Output& out, const EnumDef& enumeration) {
  write_named(out, Kw::enumeration, enumeration.name);
  out.write(" {\n");
  write_fields(out, enum_fields, enumeration);
  for (const EnumEntry& entry : enumeration.entries) {
    out.write("\t");
    write_named(out, Kw::enumentry, entry.name);
    out.write("{\n");
    write_fields(out, enum_entry_fields, entry, "\t\t");
    out.write("\t}\n");
  }
  out.write("}\n");
}

/// Reading a family gives the predefined popups their procedures. To have others all the same, popups stand behind the
/// families in a whole document, and those without a procedure say so.
void write_popup(const Output& out, const PopupDef& popup) {
  if (!out.whole) return write_record(out, Kw::popup, popup_fields, popup);
  write_named(out, Kw::popup, popup.name);
  out.write(" {\n");
  for (const Field<PopupDef>& field : popup_fields) write_value(out, "\t", field.word, popup.**field.text());
  out.write("}\n");
}

/// Records that are nothing but a name.
template <class Pool>
void write_names(const Output& out, Kw word, const Pool& pool) {
  for (const auto& record : pool) {
    write_named(out, word, record.name);
    out.write("\n");
  }
}

template <class List>
void write_references(const Output& out, Kw word, const List& list) {
  for (const auto& reference : list) write_value(out, "\t", word, reference.record->name);
}

/// The flags go with the procedure: without one they are not written, unless all is.
void write_family_init(const Output& out, const Family& family) {
  if (!family.family_init && !out.whole) return;
  for (const Field<FamilyInit>& field : family_init_fields) {
    if (const auto* text = field.text()) {
      if (family.**text) write_value(out, "\t", field.word, family.**text);
      continue;
    }
    const bool flag = family.*std::get<bool FamilyInit::*>(field.member);
    boolout_bc(out.sink, flag, keyword_text(field.word), !flag);  // whatever it is
  }
}

void write_family(const Output& out, const Family& family) {
  write_named(out, Kw::family, family.name);
  out.write(" {\n");
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
  out.write("}\n");
}

void write_popups(const Output& out, const Document& document) {
  for (const PopupDef& popup : document.popups) write_popup(out, popup);
}

void write_document(const Output& out, const Document& document) {
  write_header(out, document);
  for (const WidgetDef& widget : document.widgets) write_widget(out, widget);
  for (const EnumDef& enumeration : document.enumerations) write_enumeration(out, enumeration);
  write_names(out, Kw::header, document.code_headers);
  write_names(out, Kw::cheader, document.config_headers);
  write_names(out, Kw::family_header, document.family_headers);
  for (const AliasDef& alias : document.aliases) write_record(out, Kw::alias, alias_fields, alias);
  for (const ConverterDef& each : document.converters) write_record(out, Kw::converter, converter_fields, each);
  if (!out.whole) write_popups(out, document);
  write_names(out, Kw::page, document.pages);
  for (const Family& family : document.families) write_family(out, family);
  if (out.whole) write_popups(out, document);
}

}  // namespace

void save(const Document& document, Sink& out) { write_document({out, false}, document); }

void save_whole(const Document& document, Sink& out) { write_document({out, true}, document); }

}  // namespace vqc
