// Reads and writes the entities of a page.

#include "help/viewer/entities.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "libkel/utf8.h"

namespace help {

namespace {

/// The names of the upper half of Latin-1, in the order of the characters.
constexpr char32_t kLatin1Begin = 0xA0;
constexpr std::array<std::string_view, 96> latin_1{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

struct Entity {
  std::string_view name;
  char32_t character;
};
constexpr Entity others[] = {
    {"quot", '"'},      {"amp", '&'},       {"lt", '<'},        {"gt", '>'},        {"apos", '\''},
    {"OElig", 0x0152},  {"oelig", 0x0153},  {"Scaron", 0x0160}, {"scaron", 0x0161}, {"Yuml", 0x0178},
    {"ensp", 0x2002},   {"emsp", 0x2003},   {"thinsp", 0x2009}, {"ndash", 0x2013},  {"mdash", 0x2014},
    {"lsquo", 0x2018},  {"rsquo", 0x2019},  {"sbquo", 0x201A},  {"ldquo", 0x201C},  {"rdquo", 0x201D},
    {"bdquo", 0x201E},  {"dagger", 0x2020}, {"bull", 0x2022},   {"hellip", 0x2026}, {"prime", 0x2032},
    {"lsaquo", 0x2039}, {"rsaquo", 0x203A}, {"euro", 0x20AC},   {"trade", 0x2122},  {"larr", 0x2190},
    {"uarr", 0x2191},   {"rarr", 0x2192},   {"darr", 0x2193},   {"harr", 0x2194},   {"rArr", 0x21D2},
    {"minus", 0x2212},  {"infin", 0x221E},  {"ne", 0x2260},     {"le", 0x2264},     {"ge", 0x2265},
};

std::optional<char32_t> numbered(std::string_view digits) {
  const bool hexadecimal = digits.starts_with('x') || digits.starts_with('X');
  if (hexadecimal) digits.remove_prefix(1);
  std::uint32_t code = 0;
  const auto [end, error] = std::from_chars(digits.begin(), digits.end(), code, hexadecimal ? 16 : 10);
  if (error == std::errc::invalid_argument || end != digits.end()) return std::nullopt;
  return error == std::errc() && code != 0 ? code : REPLACEMENT;
}

std::optional<char32_t> named(std::string_view name) {
  if (const auto* other = std::ranges::find(others, name, &Entity::name); other != std::end(others)) {
    return other->character;
  }
  const auto* found = std::ranges::find(latin_1, name);
  if (found == latin_1.end()) return std::nullopt;
  return kLatin1Begin + static_cast<char32_t>(found - latin_1.begin());
}

/// What an entity, without its "&" and ";", stands for.
std::optional<char32_t> meaning_of(std::string_view entity) {
  return entity.starts_with('#') ? numbered(entity.substr(1)) : named(entity);
}

bool is_entity_character(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '#';
}

}  // namespace

std::string decoded(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t plain = std::min(text.find('&'), text.size());
    result += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) break;
    const auto* end = std::ranges::find_if_not(text.begin() + 1, text.end(), is_entity_character);
    const auto size = static_cast<std::size_t>(end - text.begin());
    const std::optional<char32_t> character = meaning_of(text.substr(1, size - 1));
    result += character ? utf8(*character) : std::string(text.substr(0, size));
    text.remove_prefix(size);
    if (character && text.starts_with(';')) text.remove_prefix(1);
  }
  return result;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (char c : text) {
    switch (c) {
      case '&':
        result += "&amp;";
        break;
      case '<':
        result += "&lt;";
        break;
      case '>':
        result += "&gt;";
        break;
      default:
        result += c;
    }
  }
  return result;
}

}  // namespace help
