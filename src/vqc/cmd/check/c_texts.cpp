// The rules on what single names and values are in C.

#include <string_view>

#include "vqc/cmd/check/c_language.h"
#include "vqc/cmd/check/given.h"
#include "vqc/cmd/check/rules.h"

namespace vqc {

namespace {

void tell(Inspection& inspection, FindingId id, const Given& given, std::vector<std::string> more = {}) {
  std::vector<std::string> arguments{string_of(given.text)};
  for (std::string& each : more) arguments.push_back(std::move(each));
  inspection.add(id, place_of(inspection, given), std::move(arguments));
}

void check_keyword(Inspection& inspection, const Given& given) {
  if (is_c_keyword(given.text.view())) tell(inspection, FindingId::c_keyword, given);
}

/// Only the initialisation of a family may be empty without being left out.
void check_identifier(Inspection& inspection, const Given& given) {
  if (given.word == Kw::family_init && given.text.empty()) {
    tell(inspection, FindingId::empty_family_init, given);
  } else if (!is_identifier(given.text.view())) {
    tell(inspection, FindingId::no_identifier, given);
  } else {
    check_keyword(inspection, given);
  }
}

void check_beginning(Inspection& inspection, const Given& given) {
  if (!given.text.empty() && !is_identifier(given.text.view())) {
    tell(inspection, FindingId::no_beginning_of_identifiers, given);
  }
}

/// What in a text does not stand for itself between double quotes; empty for nothing.
std::string_view unquotable_in(std::string_view text) {
  const std::size_t place = text.find_first_of("\"\\\n");
  if (place == std::string_view::npos) return {};
  return text[place] == '"' ? "a double quote" : text[place] == '\\' ? "a backslash" : "a line break";
}

void check_quotable(Inspection& inspection, const Given& given) {
  const std::string_view unquotable = unquotable_in(given.text.view());
  if (unquotable.empty()) return;
  inspection.add(FindingId::unquotable_text, place_of(inspection, given), {std::string(unquotable)});
}

void check_family_name(Inspection& inspection, const Given& given) {
  check_quotable(inspection, given);
  const bool ends_comment = given.text.view().find("*/") != std::string_view::npos;
  if (ends_comment) tell(inspection, FindingId::comment_ended_by_name, given);
}

/// Converters and the values of enumerations come out in double quotes too.
void check_expression(Inspection& inspection, const Given& given) {
  const bool is_quoted = given.word == Kw::converter || given.word == Kw::code_symbol;
  const std::string_view text = given.text.view();
  if (is_quoted && text.find('"') != std::string_view::npos) {
    return tell(inspection, FindingId::quotes_in_quoted_expression, given);
  }
  const std::string_view fault = fault_of_expression(text);
  if (!fault.empty()) return tell(inspection, FindingId::no_expression, given, {std::string(fault)});
  check_keyword(inspection, given);
  if (is_quoted) check_quotable(inspection, given);
}

void check_given(Inspection& inspection, const Given& given) {
  switch (given.kind) {
    case ValueKind::flag:
    case ValueKind::file:
    case ValueKind::popup:
      return;
    case ValueKind::expression:
      return check_expression(inspection, given);
    case ValueKind::icon:
      return check_beginning(inspection, given);
    case ValueKind::plain_text:
      return given.word == Kw::family ? check_family_name(inspection, given) : check_quotable(inspection, given);
    case ValueKind::class_names:
      return check_quotable(inspection, given);
    case ValueKind::header:
      if (given.word == Kw::include_filename) check_quotable(inspection, given);
      return;
    default:
      return check_identifier(inspection, given);
  }
}

}  // namespace

void texts_in_c(Inspection& inspection) {
  each_given(inspection.document, [&](const Given& given) { check_given(inspection, given); });
}

void entries_without_code_symbol(Inspection& inspection) {
  for (const EnumDef& enumeration : inspection.document.enumerations) {
    for (const EnumEntry& entry : enumeration.entries) {
      if (entry.code_symbol) continue;
      inspection.add(FindingId::missing_code_symbol, inspection.place_of(entry.name), {string_of(entry.name)});
    }
  }
}

void aliases_without_to_name(Inspection& inspection) {
  for (const AliasDef& alias : inspection.document.aliases) {
    if (!alias.to_name)
      inspection.add(FindingId::missing_to_name, inspection.places.of(&alias), {string_of(alias.name)});
  }
}

}  // namespace vqc
