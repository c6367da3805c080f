// Turns the characters of a document into tokens.

#include "vqc/cmd/savefile/lexer.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "libkel/keltype.h"

namespace vqc {

namespace {

constexpr std::size_t kLongest = 2047;  // characters kept of a token

/// Characters that are tokens by themselves.
constexpr bool is_punctuation(char c) { return std::string_view("=,;()*:{}").find(c) != std::string_view::npos; }

/// The runs that tokens are made of.
enum CharacterRun : std::uint8_t { SPACE = 1, WORD = 2, PLAIN_STRING = 4 };

constexpr std::uint8_t runs_of(char c) {
  unsigned runs = 0;
  if (kel_is(c, KEL_SPACE)) runs |= SPACE;
  if (kel_is(c, KEL_IDENTIFIER) || c == '.') runs |= WORD;
  if (c != '\'' && c != '\\' && c != '\0') runs |= PLAIN_STRING;
  return static_cast<std::uint8_t>(runs);
}

constexpr auto character_runs = [] {
  std::array<std::uint8_t, 256> table{};
  for (std::size_t c = 0; c < table.size(); ++c) table[c] = runs_of(static_cast<char>(c));
  return table;
}();

/// Steps over a run. The NUL behind the document is in none.
const char* end_of_run(const char* from, CharacterRun run) {
  while (character_runs[static_cast<unsigned char>(*from)] & run) ++from;
  return from;
}

/// What a backslash makes of the character after it.
constexpr char escaped(char c) {
  switch (c) {
    case 'b':
      return '\b';
    case 'f':
      return '\f';
    case 'n':
      return '\n';
    case 'r':
      return '\r';
    case 't':
      return '\t';
    default:
      return c;
  }
}

}  // namespace

Lexer::Lexer(const Source& source)
    : begin_(source.text().data()), end_(begin_ + source.text().size()), next_(begin_), token_(begin_) {}

int Lexer::next_ch() {
  if (at_end()) return 0;
  ++next_;
  return 1;
}

/// As much of a token's text as is kept.
std::string_view Lexer::kept(const char* from, const char* to) {
  const auto size = static_cast<std::size_t>(to - from);
  if (size > kLongest) oddities_ |= IS_CUT;
  return {from, std::min(size, kLongest)};
}

int Lexer::next_token() {
  text_ = {};
  oddities_ = 0;
  for (;;) {
    token_ = next_ = end_of_run(next_, SPACE);
    const char c = *next_;
    if (c == '\'') return read_string();
    if (kel_is(c, KEL_LETTER | KEL_UNDERSCORE)) return read_word();
    if (kel_is(c, KEL_DIGIT)) return read_number(false);
    if (c == '-') return read_minus();
    if (c != '!' && c != '/') return read_character();
    if (!skip_comment()) return read_character();
  }
}

/// False for a slash that begins no comment. It is skipped alone: whatever follows, even white space, is a token of its
/// own.
bool Lexer::skip_comment() {
  const std::string_view rest(next_, static_cast<std::size_t>(end_ - next_));
  const bool is_line = rest.front() == '!';
  if (!is_line && !rest.starts_with("/*")) {
    token_ = ++next_;
    return false;
  }
  const std::size_t close = is_line ? rest.find('\n') : rest.find("*/", 2);
  const char* begin = next_;
  next_ = close == std::string_view::npos ? end_ : next_ + close + (is_line ? 0 : 2);
  note_comment({begin, next_}, is_line, close == std::string_view::npos);
  return true;
}

void Lexer::note_comment(std::string_view comment, bool is_line, bool is_open) {
  const Range range{offset(comment.data()), offset(next_)};
  if (comments_.count++ == 0) comments_.first = range;
  if (is_line) return;
  if (is_open) comments_.open = range;
  if (comment.find("/*", 2) != std::string_view::npos) comments_.nested = range;
}

int Lexer::read_string() {
  kind_ = SaveFileToken::string;
  const char* from = ++next_;
  next_ = end_of_run(from, PLAIN_STRING);
  if (*next_ != '\'') {
    next_ = from;
    return read_escaped_string();
  }
  text_ = kept(from, next_++);
  return 1;
}

/// A string with escapes or NULs in it, or without an end.
int Lexer::read_escaped_string() {
  unescaped_.clear();
  while (!at_end() && *next_ != '\'') {
    const char c = *next_++;
    if (c == '\\' && at_end()) {
      oddities_ |= HAS_CUT_ESCAPE;
      break;
    }
    unescaped_ += c == '\\' ? read_escape() : c;
  }
  if (!next_ch()) oddities_ |= IS_OPEN;
  text_ = kept(unescaped_.data(), unescaped_.data() + unescaped_.size());
  if (text_.find('\0') != std::string_view::npos) oddities_ |= HAS_NUL;
  text_ = text_.substr(0, text_.find('\0'));
  return 1;
}

/// The character that an escape stands for; its backslash has been read.
char Lexer::read_escape() {
  if (!kel_is(*next_, KEL_DIGIT)) return escaped(*next_++);
  unsigned code = 0;
  for (; kel_is(*next_, KEL_DIGIT); ++next_) {
    code = code * 10 + static_cast<unsigned>(*next_ - '0');
    if (code > 0xFF) oddities_ |= HAS_CUT_ESCAPE;
  }
  return static_cast<char>(code);
}

int Lexer::read_word() {
  next_ = end_of_run(next_, WORD);
  text_ = kept(token_, next_);
  const Keyword* keyword = find_keyword(text_);
  kind_ = keyword ? SaveFileToken::keyword : SaveFileToken::identifier;
  if (keyword) keyword_ = keyword->kw;
  return 1;
}

int Lexer::read_number(bool negative) {
  kind_ = SaveFileToken::integer;
  unsigned value = 0;  // wraps to 32 bits
  const unsigned most = std::numeric_limits<int>::max() + (negative ? 1U : 0U);
  for (; kel_is(*next_, KEL_DIGIT); ++next_) {
    const auto digit = static_cast<unsigned>(*next_ - '0');
    if (value > (most - digit) / 10) oddities_ |= WRAPS;
    value = value * 10 + digit;
  }
  integer_ = static_cast<int>(negative ? 0 - value : value);
  return 1;
}

int Lexer::read_minus() {
  if (kel_is(next_[1], KEL_DIGIT)) {
    ++next_;
    return read_number(true);
  }
  return read_character();
}

int Lexer::read_character() {
  if (at_end()) {
    kind_ = SaveFileToken::end_of_input;
    return 1;
  }
  kind_ = SaveFileToken::character;
  character_ = *next_++;
  return is_punctuation(character_) ? 1 : 0;
}

}  // namespace vqc
