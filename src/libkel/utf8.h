#ifndef LIBKEL_UTF8_H
#define LIBKEL_UTF8_H

#include <cstddef>
#include <string>
#include <string_view>

namespace vqc {

// Texts as desktops and help pages have them: in UTF-8.

inline constexpr char32_t REPLACEMENT = 0xFFFD;

/// A character and the bytes it takes. Bytes that are no UTF-8 give REPLACEMENT, one at a time.
struct Decoded {
  char32_t character = REPLACEMENT;
  std::size_t size = 1;

  bool valid() const { return size > 1 || character != REPLACEMENT; }
};

/// The first character of a text that is not empty.
Decoded first_character(std::string_view text);

/// The character in UTF-8; what is none gives REPLACEMENT.
std::string utf8(char32_t character);

/// Where the first byte stands that is no UTF-8; the size of the text if there is none.
std::size_t end_of_utf8(std::string_view text);
inline bool is_utf8(std::string_view text) { return end_of_utf8(text) == text.size(); }

/// What a file holds, as UTF-8: bytes that are no UTF-8 as a whole are taken for Latin-1.
std::string as_utf8(std::string_view bytes);

}  // namespace vqc

#endif
