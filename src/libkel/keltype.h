#ifndef LIBKEL_KELTYPE_H
#define LIBKEL_KELTYPE_H

#include <array>
#include <cstddef>
#include <cstdint>

namespace vqc {

/// The classes a character can belong to. They do not depend on the locale, unlike those of <cctype>.
enum KelClass : std::uint16_t {
  KEL_UPPER = 0x001,
  KEL_LOWER = 0x002,
  KEL_DIGIT = 0x004,
  KEL_SPACE = 0x008,        // tab, line feed, vertical tab, form feed, carriage return, space
  KEL_PUNCTUATION = 0x010,  // printable ASCII that is no letter, digit or space
  KEL_CONTROL = 0x020,      // control characters that are not white space
  KEL_HEX_LETTER = 0x040,
  KEL_UNDERSCORE = 0x080,
  KEL_BLANK = 0x100,      // the space character only
  KEL_TAB = 0x200,        // the tab character only
  KEL_NAME_MARK = 0x400,  // apostrophe, hyphen and full stop

  KEL_LETTER = KEL_UPPER | KEL_LOWER,
  KEL_IDENTIFIER = KEL_LETTER | KEL_DIGIT | KEL_UNDERSCORE,
};

namespace keltype_detail {

constexpr bool between(int c, int low, int high) { return low <= c && c <= high; }

constexpr std::uint16_t classes_of(int c) {
  unsigned classes = 0;
  if (between(c, 'A', 'Z')) classes |= KEL_UPPER;
  if (between(c, 'a', 'z')) classes |= KEL_LOWER;
  if (between(c, '0', '9')) classes |= KEL_DIGIT;
  if (between(c, '\t', '\r') || c == ' ') classes |= KEL_SPACE;
  if (between(c, '!', '~') && classes == 0) classes |= KEL_PUNCTUATION;
  if (between(c, 0, 8) || between(c, 14, 31) || c == 127) classes |= KEL_CONTROL;
  if (between(c, 'A', 'F') || between(c, 'a', 'f')) classes |= KEL_HEX_LETTER;
  if (c == '_') classes |= KEL_UNDERSCORE;
  if (c == ' ') classes |= KEL_BLANK;
  if (c == '\t') classes |= KEL_TAB;
  if (c == '\'' || c == '-' || c == '.') classes |= KEL_NAME_MARK;
  return static_cast<std::uint16_t>(classes);
}

}  // namespace keltype_detail

/// Entry 0 stands for the end of file (-1), entry c + 1 for the character c. Characters above 127 have no class.
inline constexpr std::array<std::uint16_t, 257> keltype = [] {
  std::array<std::uint16_t, 257> table{};
  for (int c = 0; c < 128; ++c) table[static_cast<std::size_t>(c) + 1] = keltype_detail::classes_of(c);
  return table;
}();

/// Whether the character `c` is in any of the classes of `mask`.
constexpr bool kel_is(char c, std::uint16_t mask) {
  return (keltype[std::size_t{1} + static_cast<unsigned char>(c)] & mask) != 0;
}

/// The same for a character from 0 to 255, or -1 for the end of file, which is in none. Nor is any other number.
constexpr bool kel_is(int c, std::uint16_t mask) { return c >= 0 && c <= 255 && kel_is(static_cast<char>(c), mask); }

}  // namespace vqc

#endif
