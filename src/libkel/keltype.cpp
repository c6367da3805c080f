#include "libkel/keltype.h"

namespace {

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

constexpr std::array<std::uint16_t, 257> make_table() {
  std::array<std::uint16_t, 257> table{};
  for (int c = 0; c < 128; ++c) table[static_cast<std::size_t>(c) + 1] = classes_of(c);
  return table;
}

}  // namespace

constexpr std::array<std::uint16_t, 257> keltype = make_table();
