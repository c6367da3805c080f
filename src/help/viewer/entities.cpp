// Writes and reads the entities of a page.

#include "help/viewer/entities.h"

#include <libxml/HTMLparser.h>
#include <libxml/chvalid.h>

#include <algorithm>
#include <array>
#include <charconv>

using namespace vqc;

namespace help {

namespace {

struct Escape {
  char character;
  std::string_view entity;
};
constexpr std::array<Escape, 3> escapes{{{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}}};

bool is_letter_or_digit(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

/// The character that a number stands for; 0 when it is none.
unsigned read_number(std::string_view digits) {
  const bool hexadecimal = digits.starts_with('x') || digits.starts_with('X');
  if (hexadecimal) digits.remove_prefix(1);
  unsigned code = 0;
  const auto [end, error] = std::from_chars(digits.begin(), digits.end(), code, hexadecimal ? 16 : 10);
  if (error == std::errc::invalid_argument || end != digits.end()) return 0;
  return error == std::errc() && xmlIsCharQ(code) ? code : static_cast<unsigned>(REPLACEMENT);
}

unsigned read_name(const std::string& name) {
  const htmlEntityDesc* entity = htmlEntityLookup(reinterpret_cast<const xmlChar*>(name.c_str()));
  return entity ? entity->value : 0;
}

/// What an entity, without its "&" and ";", stands for; 0 when it is none.
unsigned read_entity(std::string_view entity) {
  return entity.starts_with('#') ? read_number(entity.substr(1)) : read_name(std::string(entity));
}

/// How many characters of a text that begins with "&" may be an entity.
std::size_t measure_entity(std::string_view text) {
  const std::size_t begin = text.substr(1).starts_with('#') ? 2 : 1;
  const auto* end = std::ranges::find_if_not(text.substr(begin), is_letter_or_digit);
  return static_cast<std::size_t>(end - text.begin());
}

}  // namespace

std::string escape(std::string_view text) {
  std::string result;
  for (char c : text) {
    const auto* found = std::ranges::find(escapes, c, &Escape::character);
    found == escapes.end() ? result += c : result += found->entity;
  }
  return result;
}

Decoded read_escaped(std::string_view text) {
  for (const auto& [character, entity] : escapes) {
    if (text.starts_with(entity)) return {static_cast<char32_t>(character), entity.size()};
  }
  return first_character(text);
}

std::string number_entities(std::string_view html) {
  std::string result;
  for (std::size_t at = html.find('&'); at != std::string_view::npos; at = html.find('&')) {
    result += html.substr(0, at);
    html.remove_prefix(at);
    const std::size_t size = measure_entity(html);
    const unsigned code = read_entity(html.substr(1, size - 1));
    result += "&#" + std::to_string(code ? code : '&') + ";";
    html.remove_prefix(code ? size : 1);
    if (code && html.starts_with(';')) html.remove_prefix(1);
  }
  return result + std::string(html);
}

}  // namespace help
