#include "libkel/utf8.h"

#include <algorithm>
#include <array>

namespace vqc {

namespace {

constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

/// How many bytes a sequence with this first byte has, which of its bits count, and the least that it may stand for.
struct Form {
  unsigned char mask;
  unsigned char lead;
  std::size_t size;
  char32_t least;
};
constexpr std::array<Form, 4> forms{
    {{0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}}};

bool is_character(char32_t code) { return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF); }

Decoded decoded_as(const Form& form, std::string_view text) {
  if (text.size() < form.size) return {};
  char32_t code = static_cast<unsigned char>(text[0]) & static_cast<unsigned char>(~form.mask);
  for (std::size_t i = 1; i < form.size; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return {};
    code = code << 6 | (byte & 0x3F);
  }
  return code >= form.least && is_character(code) ? Decoded{code, form.size} : Decoded{};
}

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

}  // namespace

Decoded first_character(std::string_view text) {
  for (const Form& form : forms) {
    if ((static_cast<unsigned char>(text[0]) & form.mask) == form.lead) return decoded_as(form, text);
  }
  return {};
}

std::string utf8(char32_t character) {
  if (!is_character(character)) character = REPLACEMENT;
  std::size_t size = 4;
  while (size > 1 && character < forms[size - 1].least) --size;
  std::string bytes(size, '\0');
  for (std::size_t i = size - 1; i > 0; --i, character >>= 6) bytes[i] = static_cast<char>(0x80 | (character & 0x3F));
  bytes[0] = static_cast<char>(forms[size - 1].lead | character);
  return bytes;
}

std::size_t end_of_utf8(std::string_view text) {
  for (std::size_t i = 0;;) {
    i = static_cast<std::size_t>(std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(), is_ascii) -
                                 text.begin());
    const Decoded next = i < text.size() ? first_character(text.substr(i)) : Decoded{};
    if (!next.valid()) return i;
    i += next.size;
  }
}

std::string as_utf8(std::string_view bytes) {
  if (bytes.starts_with(BYTE_ORDER_MARK)) bytes.remove_prefix(BYTE_ORDER_MARK.size());
  if (is_utf8(bytes)) return std::string(bytes);
  std::string text;
  for (char byte : bytes) text += utf8(static_cast<unsigned char>(byte));
  return text;
}

}  // namespace vqc
