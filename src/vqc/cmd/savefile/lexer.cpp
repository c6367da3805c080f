#include "vqc/cmd/savefile/lexer.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <experimental/simd>
#include <utility>

#include "libkel/keltype.h"

namespace {

using Characters = std::experimental::native_simd<char>;  // as many as the processor compares at once
static_assert(Characters::size() <= Stream::kNulsBehind);

/// What a character begins where a token may begin.
enum class Start : std::uint8_t { invalid, nul, space, line_comment, slash, string, minus, digit, word, single };

constexpr Start start_of(char c) {
  if (kel_is(c, KEL_SPACE)) return Start::space;
  if (kel_is(c, KEL_LETTER | KEL_UNDERSCORE)) return Start::word;
  if (kel_is(c, KEL_DIGIT)) return Start::digit;
  switch (c) {
    case '\0':
      return Start::nul;
    case '!':
      return Start::line_comment;
    case '/':
      return Start::slash;
    case '\'':
      return Start::string;
    case '-':
      return Start::minus;
    default:
      return std::string_view("=,;()*:{}").find(c) == std::string_view::npos ? Start::invalid : Start::single;
  }
}

// What ends a run of characters, asked of many characters at once. Both hold for the NUL behind each part of the file,
// so that a search needs no other end.

constexpr auto ends_word = [](const auto& c) {
  constexpr char kLowerCase = 'a' - 'A';  // the bit by which it differs from upper case
  const auto is_within = [](const auto& some, char low, char high) { return some >= low && some <= high; };
  return !(is_within(c | kLowerCase, 'a', 'z') || is_within(c, '0', '9') || c == '_' || c == '.');
};

constexpr auto ends_plain_string = [](const auto& c) { return c == '\'' || c == '\\' || c == '\n' || c == '\0'; };

/// A function of characters as a table: these are asked for every character of a document.
template <auto function>
constexpr auto table = [] {
  std::array<decltype(function('\0')), 256> values{};
  for (std::size_t c = 0; c < values.size(); ++c) values[c] = function(static_cast<char>(c));
  return values;
}();

/// The first character from `from` for which `test` holds.
template <class Test>
const char* find(const char* from, Test test) {
  for (;; from += Characters::size()) {
    const auto found = test(Characters(from, std::experimental::element_aligned));
    if (any_of(found)) return from + find_first_set(found);
  }
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

Lexer::Lexer(std::unique_ptr<Stream> stream) : stream_(std::move(stream)) {}

bool Lexer::fill() {
  if (!stream_) return false;
  const std::string_view part = stream_->read();
  if (part.empty()) {
    close();
    return false;
  }
  next_ = part.data();
  end_ = next_ + part.size();
  return true;
}

void Lexer::close() {
  stream_.reset();
  next_ = end_ = kNothing.data();
}

int Lexer::next_ch() {
  const int c = current();
  if (c == kEnd) return 0;
  if (c == '\n') ++lineno;
  ++next_;
  return 1;
}

int Lexer::next_token() {
  text_ = {};
  for (;;) {
    while (*next_ == ' ') ++next_;  // what mostly stands between tokens
    switch (table<start_of>[static_cast<unsigned char>(*next_)]) {
      case Start::nul:
        if (next_ != end_ || !fill()) return read_character();
        break;
      case Start::space:
        skip_space();
        break;
      case Start::line_comment:
        skip_line();
        break;
      case Start::slash:
        if (!skip_comment()) return read_character();  // whatever follows, even white space, is a token of its own
        break;
      case Start::string:
        return read_string();
      case Start::word:
        return read_word();
      case Start::digit:
        return read_number(false);
      case Start::minus:
        return read_minus();
      case Start::single:
        return take_character();
      default:
        return read_character();
    }
  }
}

bool Lexer::skip(std::string_view text) {
  const bool buffered = static_cast<std::size_t>(end_ - next_) > text.size();
  if (!buffered || std::memcmp(next_, text.data(), text.size()) != 0) return false;
  const char* to = next_ + text.size();
  if (!ends_word(*to)) return false;
  next_ = to;
  return true;
}

void Lexer::skip_space() {
  for (; kel_is(*next_, KEL_SPACE); ++next_) lineno += *next_ == '\n';
}

void Lexer::skip_line() {
  while (current() != '\n' && next_ch()) continue;
}

/// False for a slash that begins no comment, which is skipped alone.
bool Lexer::skip_comment() {
  next_ch();
  if (current() != '*') return false;
  next_ch();
  for (int previous = 0; current() != kEnd;) {
    const int c = current();
    next_ch();
    if (previous == '*' && c == '/') break;
    previous = c;
  }
  return true;
}

/// Takes the characters up to `to` as the token's text where they stand, if there is more in the buffer after them.
/// False for a token that has to be put together from pieces, or cut.
bool Lexer::take_whole(const char* to) {
  const auto size = static_cast<std::size_t>(to - next_);
  if (to == end_ || size > kLongest) return false;
  text_ = {next_, size};
  next_ = to;
  return true;
}

/// Keeps characters up to the first that `stop` holds for, or the end of the document.
template <class Test>
void Lexer::keep_until(Test stop) {
  do {
    const char* from = next_;
    next_ = find(next_, stop);
    keep(from, next_);
  } while (next_ == end_ && fill());
}

void Lexer::keep(const char* from, const char* to) {
  const std::size_t size = std::min(static_cast<std::size_t>(to - from), kLongest - text_.size());
  std::copy_n(from, size, kept_.data() + text_.size());
  text_ = {kept_.data(), text_.size() + size};
}

int Lexer::read_string() {
  kind_ = SaveFileToken::string;
  ++next_;
  const char* to = find(next_, ends_plain_string);
  if (*to != '\'' || !take_whole(to)) return read_string_in_pieces();
  ++next_;
  return 1;
}

int Lexer::read_string_in_pieces() {
  for (;;) {
    keep_until(ends_plain_string);
    const int c = current();
    if (c == '\\') {
      read_escape();
      continue;
    }
    if (c == '\n' || c == '\0') keep(next_, next_ + 1);
    next_ch();
    if (c == '\'' || c == kEnd) break;
  }
  text_ = text_.substr(0, text_.find('\0'));
  return 1;
}

void Lexer::read_escape() {
  next_ch();
  int c = current();
  if (c == kEnd) return;
  char result = escaped(static_cast<char>(c));
  if (kel_is(c, KEL_DIGIT)) {
    unsigned code = 0;
    for (; kel_is(c, KEL_DIGIT); c = current()) {
      code = code * 10 + static_cast<unsigned>(c - '0');
      next_ch();
    }
    result = static_cast<char>(code);
  } else {
    next_ch();
  }
  keep(&result, &result + 1);
}

int Lexer::read_word() {
  if (!take_whole(find(next_, ends_word))) keep_until(ends_word);
  const Keyword* keyword = find_keyword(text_);
  kind_ = keyword ? SaveFileToken::keyword : SaveFileToken::identifier;
  if (keyword) keyword_ = keyword->kw;
  return 1;
}

int Lexer::read_number(bool negative) {
  kind_ = SaveFileToken::integer;
  unsigned value = 0;  // wraps to 32 bits
  for (int c = current(); kel_is(c, KEL_DIGIT); c = current()) {
    value = value * 10 + static_cast<unsigned>(c - '0');
    next_ch();
  }
  integer_ = static_cast<int>(negative ? 0 - value : value);
  return 1;
}

int Lexer::read_minus() {
  next_ch();
  if (kel_is(current(), KEL_DIGIT)) return read_number(true);
  kind_ = SaveFileToken::character;
  character_ = '-';
  return 0;
}

int Lexer::read_character() {
  const int c = current();
  if (c == kEnd) {
    kind_ = SaveFileToken::end_of_input;
    return 1;
  }
  lineno += c == '\n';
  take_character();
  return table<start_of>[static_cast<std::size_t>(c)] == Start::single ? 1 : 0;
}
