#include "vqc/cmd/savefile/lexer.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "libkel/keltype.h"

namespace {

/// What a character begins where a token may begin.
enum class Start : std::uint8_t { invalid, end, space, line_comment, slash, string, minus, digit, word, single };

constexpr Start start_of(char c) {
  if (kel_is(c, KEL_SPACE)) return Start::space;
  if (kel_is(c, KEL_LETTER | KEL_UNDERSCORE)) return Start::word;
  if (kel_is(c, KEL_DIGIT)) return Start::digit;
  switch (c) {
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

constexpr bool ends_word(char c) { return !kel_is(c, KEL_IDENTIFIER) && c != '.'; }

constexpr bool ends_plain_string(char c) { return c == '\'' || c == '\\' || c == '\n'; }

/// A function of characters as a table: these are asked for every character of a document.
template <auto function>
constexpr auto table = [] {
  std::array<decltype(function('\0')), 256> values{};
  for (std::size_t c = 0; c < values.size(); ++c) values[c] = function(static_cast<char>(c));
  return values;
}();

/// The first character from `from` for which `test` holds, or `to`.
template <bool (*test)(char)>
const char* find(const char* from, const char* to) {
  while (from < to && !table<test>[static_cast<unsigned char>(*from)]) ++from;
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
  next_ = end_ = nullptr;
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
    const int c = current();
    switch (c == kEnd ? Start::end : table<start_of>[static_cast<std::size_t>(c)]) {
      case Start::space:
        skip_space();
        break;
      case Start::line_comment:
        skip_line();
        break;
      case Start::slash:
        next_ch();
        if (current() != '*') return read_character();  // whatever follows, even white space, is a token of its own
        skip_comment();
        break;
      case Start::string:
        return read_string();
      case Start::word:
        return read_word();
      case Start::digit:
        return read_number(false);
      case Start::minus:
        return read_minus();
      default:
        return read_character();
    }
  }
}

void Lexer::skip_space() {
  do {
    for (; next_ < end_ && kel_is(*next_, KEL_SPACE); ++next_) lineno += *next_ == '\n';
  } while (next_ == end_ && fill());
}

void Lexer::skip_line() {
  while (current() != '\n' && next_ch()) continue;
}

void Lexer::skip_comment() {
  next_ch();
  for (int previous = 0; current() != kEnd;) {
    const int c = current();
    next_ch();
    if (previous == '*' && c == '/') return;
    previous = c;
  }
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
template <bool (*stop)(char)>
void Lexer::keep_until() {
  do {
    const char* from = next_;
    next_ = find<stop>(next_, end_);
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
  const char* to = find<ends_plain_string>(next_, end_);
  if (to == end_ || *to != '\'' || !take_whole(to)) return read_string_in_pieces();
  ++next_;
  return 1;
}

int Lexer::read_string_in_pieces() {
  for (;;) {
    keep_until<ends_plain_string>();
    const int c = current();
    if (c == '\\') {
      read_escape();
      continue;
    }
    if (c == '\n') keep(next_, next_ + 1);
    next_ch();
    if (c != '\n') return 1;
  }
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
  if (!take_whole(find<ends_word>(next_, end_))) keep_until<ends_word>();
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
  character_ = current();
  if (character_ == kEnd) {
    kind_ = SaveFileToken::end_of_input;
    return 1;
  }
  kind_ = SaveFileToken::character;
  next_ch();
  return table<start_of>[static_cast<std::size_t>(character_)] == Start::single ? 1 : 0;
}
