// Finds what is wrong with names and values for where they come out in C.

#include "vqc/cmd/check/text_faults.h"

#include <cstddef>
#include <string_view>
#include <utility>

#include "vqc/cmd/check/c_language.h"

namespace vqc {

namespace {

using Faults = std::vector<TextFault>;

/// A fault the words of which begin with the text.
TextFault fault(FindingId id, Text text, std::vector<std::string> more = {}) {
  more.insert(more.begin(), std::string(text.view()));
  return {id, std::move(more)};
}

Faults keyword_faults(Text text) {
  return is_c_keyword(text.view()) ? Faults{fault(FindingId::c_keyword, text)} : Faults{};
}

/// Only the initialisation of a family may be empty without being left out.
Faults identifier_faults(Kw word, Text text) {
  if (word == Kw::family_init && text.empty()) return {fault(FindingId::empty_family_init, text)};
  if (!is_identifier(text.view())) return {fault(FindingId::no_identifier, text)};
  return keyword_faults(text);
}

Faults beginning_faults(Text text) {
  const bool is_right = text.empty() || is_identifier(text.view());
  return is_right ? Faults{} : Faults{fault(FindingId::no_beginning_of_identifiers, text)};
}

/// What in a text does not stand for itself between double quotes; empty for nothing.
std::string_view unquotable_in(std::string_view text) {
  const std::size_t place = text.find_first_of("\"\\\n");
  if (place == std::string_view::npos) return {};
  return text[place] == '"' ? "a double quote" : text[place] == '\\' ? "a backslash" : "a line break";
}

Faults quoting_faults(Text text) {
  const std::string_view unquotable = unquotable_in(text.view());
  return unquotable.empty() ? Faults{} : Faults{{FindingId::unquotable_text, {std::string(unquotable)}}};
}

Faults family_name_faults(Text text) {
  Faults faults = quoting_faults(text);
  const bool ends_comment = text.view().find("*/") != std::string_view::npos;
  if (ends_comment) faults.push_back(fault(FindingId::comment_ended_by_name, text));
  return faults;
}

/// Converters and the values of enumerations come out in double quotes too.
Faults expression_faults(Kw word, Text text) {
  const bool is_quoted = word == Kw::converter || word == Kw::code_symbol;
  if (is_quoted && text.view().find('"') != std::string_view::npos) {
    return {fault(FindingId::quotes_in_quoted_expression, text)};
  }
  const std::string_view reason = fault_of_expression(text.view());
  if (!reason.empty()) return {fault(FindingId::no_expression, text, {std::string(reason)})};
  Faults faults = keyword_faults(text);
  return faults.empty() && is_quoted ? quoting_faults(text) : faults;
}

}  // namespace

std::vector<TextFault> faults_of_text(Kw word, ValueKind kind, Text text) {
  switch (kind) {
    case ValueKind::flag:
    case ValueKind::file:
    case ValueKind::popup:
      return {};
    case ValueKind::expression:
      return expression_faults(word, text);
    case ValueKind::icon:
      return beginning_faults(text);
    case ValueKind::plain_text:
      return word == Kw::family ? family_name_faults(text) : quoting_faults(text);
    case ValueKind::class_names:
      return quoting_faults(text);
    case ValueKind::header:
      return word == Kw::include_filename ? quoting_faults(text) : Faults{};
    default:
      return identifier_faults(word, text);
  }
}

NameKind name_kind(Part part) {
  switch (part) {
    case Part::widget:
      return {Kw::widget, ValueKind::identifier};
    case Part::enumeration:
      return {Kw::enumeration, ValueKind::icon};
    case Part::entry:
      return {Kw::enumentry, ValueKind::plain_text};
    case Part::alias:
      return {Kw::alias, ValueKind::expression};
    case Part::converter:
      return {Kw::converter, ValueKind::expression};
    case Part::popup:
      return {Kw::popup, ValueKind::identifier};
    case Part::page:
      return {Kw::page, ValueKind::plain_text};
    case Part::code_header:
      return {Kw::header, ValueKind::header};
    case Part::config_header:
      return {Kw::cheader, ValueKind::header};
    case Part::family_header:
      return {Kw::family_header, ValueKind::plain_text};
    case Part::resource:
      return {Kw::resource_definitions, ValueKind::expression};
    case Part::procedure:
      return {Kw::proc_name, ValueKind::converter_procedure};
    default:
      return {Kw::family, ValueKind::plain_text};
  }
}

}  // namespace vqc
