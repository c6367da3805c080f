#include "vqc/cmd/savefile/lexer.h"

#include <cstring>
#include <utility>

#include "libkel/keltype.h"

namespace {

constexpr std::string_view kSingles = "=,;()*:{}";

/// What a backslash makes of the character after it.
char escaped(int c) {
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
      return static_cast<char>(c);
  }
}

bool ends_word(char c) { return !kel_is(c, KEL_IDENTIFIER) && c != '.'; }

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
  text_size_ = 0;
  if (!skip_to_token()) {
    const int c = current();
    if (c == '\'') return read_string();
    if (c == '-') return read_minus();
    if (kel_is(c, KEL_DIGIT)) return read_number(false);
    if (kel_is(c, KEL_LETTER | KEL_UNDERSCORE)) return read_word();
  }
  return read_character();
}

/// Skips white space and comments. True when a "/" that begins no comment was skipped: whatever follows it, even
/// white space or a letter, is a token of its own.
bool Lexer::skip_to_token() {
  for (;;) {
    skip_space();
    const int c = current();
    if (c == '!') {
      skip_line();
    } else if (c == '/') {
      next_ch();
      if (current() != '*') return true;
      skip_comment();
    } else {
      return false;
    }
  }
}

void Lexer::skip_space() {
  while (kel_is(current(), KEL_SPACE)) next_ch();
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

/// Keeps characters up to the first that `stop` holds for, or the end of the document.
template <class Stop>
void Lexer::keep_until(Stop stop) {
  do {
    const char* from = next_;
    while (next_ < end_ && !stop(*next_)) ++next_;
    keep(from, next_);
  } while (next_ == end_ && fill());
}

void Lexer::keep(const char* from, const char* to) {
  const std::size_t size = std::min(static_cast<std::size_t>(to - from), kLongest - text_size_);
  if (size != 0) std::memcpy(text_.data() + text_size_, from, size);
  text_size_ += size;
}

int Lexer::read_string() {
  kind_ = SaveFileToken::string;
  next_ch();
  for (;;) {
    keep_until([](char c) { return c == '\'' || c == '\\' || c == '\n'; });
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
  char result = escaped(c);
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
  keep_until(ends_word);
  const Keyword* keyword = find_keyword(text());
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
  kind_ = character_ == kEnd ? SaveFileToken::end_of_input : SaveFileToken::character;
  next_ch();
  return kind_ == SaveFileToken::end_of_input || kSingles.find(static_cast<char>(character_)) != std::string_view::npos;
}
