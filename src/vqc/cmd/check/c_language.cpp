// What texts can be in C.

#include "vqc/cmd/check/c_language.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "libkel/keltype.h"
#include "libkel/utf8.h"

namespace vqc {

namespace {

// In the order of their bytes.
constexpr std::string_view keywords[] = {
    "_Alignas",  "_Alignof",       "_Atomic",       "_Bool",    "_Complex", "_Generic", "_Imaginary",
    "_Noreturn", "_Static_assert", "_Thread_local", "asm",      "auto",     "break",    "case",
    "char",      "const",          "continue",      "default",  "do",       "double",   "else",
    "enum",      "extern",         "float",         "for",      "goto",     "if",       "inline",
    "int",       "long",           "register",      "restrict", "return",   "short",    "signed",
    "sizeof",    "static",         "struct",        "switch",   "typedef",  "typeof",   "union",
    "unsigned",  "void",           "volatile",      "while",
};
static_assert(std::ranges::is_sorted(keywords));

constexpr bool is_digit(char c) { return kel_is(c, KEL_DIGIT); }

/// Compilers take letters beyond ASCII, in UTF-8.
constexpr bool is_word_byte(char c) { return kel_is(c, KEL_IDENTIFIER) || static_cast<unsigned char>(c) >= 0x80; }

/// Whether a word that begins with a digit, or a full stop and one, is a number with its suffixes.
bool is_number(std::string_view word) {
  const bool prefixed = word.size() > 2 && word[0] == '0' && std::string_view("xXbB").find(word[1]) < 4;
  const std::size_t end =
      prefixed ? word.find_first_not_of("0123456789abcdefABCDEF.pP+-", 2) : word.find_first_not_of("0123456789.eE+-");
  return end == std::string_view::npos || word.find_first_not_of("uUlLfF", end) == std::string_view::npos;
}

constexpr std::string_view kQuotes = "its quotes do not pair";
constexpr std::string_view kBrackets = "its brackets do not pair";
constexpr std::string_view kComment = "a comment in it is not closed";
constexpr std::string_view kLineComment = "'//' hides what follows";
constexpr std::string_view kSeparator = "a ',' or ';' ends it";
constexpr std::string_view kNeighbours = "two words stand side by side";
constexpr std::string_view kNumber = "a word in it begins with a digit";
constexpr std::string_view kForeign = "it has a character that C does not know";
constexpr std::string_view kEmpty = "it is empty";

/// Reads an expression, token by token, up to its first fault.
class ExpressionReader {
 public:
  explicit ExpressionReader(std::string_view text) : text_(text) {}

  std::string_view fault() {
    std::string_view fault;
    while (fault.empty() && next_ < text_.size()) fault = read_token();
    if (fault.empty() && !open_.empty()) fault = kBrackets;
    return fault.empty() && !any_ ? kEmpty : fault;
  }

 private:
  std::string_view read_token() {
    const char c = text_[next_];
    if (kel_is(c, KEL_SPACE)) return skip(1);
    if (rest().starts_with("/*")) return skip_comment();
    if (rest().starts_with("//")) return kLineComment;
    any_ = true;
    if (is_word_byte(c) || begins_number()) return read_word();
    after_word_ = false;
    if (c == '"' || c == '\'') return skip_quoted(c);
    if (std::string_view("([{").find(c) != std::string_view::npos) return open(c);
    if (std::string_view(")]}").find(c) != std::string_view::npos) return close(c);
    if (c == ';' || (c == ',' && open_.empty())) return kSeparator;
    return std::string_view("+-*/%&|^~!<>=?:.,").find(c) == std::string_view::npos ? kForeign : skip(1);
  }

  std::string_view rest() const { return text_.substr(next_); }

  std::string_view skip(std::size_t size) {
    next_ += size;
    return {};
  }

  std::string_view skip_comment() {
    const std::size_t end = text_.find("*/", next_ + 2);
    if (end == std::string_view::npos) return kComment;
    next_ = end + 2;
    return {};
  }

  std::string_view skip_quoted(char quote) {
    for (++next_; next_ < text_.size() && text_[next_] != '\n'; ++next_) {
      if (text_[next_] == quote) return skip(1);
      if (text_[next_] == '\\') ++next_;
    }
    return kQuotes;
  }

  std::string_view open(char bracket) {
    open_ += bracket == '(' ? ')' : bracket == '[' ? ']' : '}';
    return skip(1);
  }

  std::string_view close(char bracket) {
    if (open_.empty() || open_.back() != bracket) return kBrackets;
    open_.pop_back();
    return skip(1);
  }

  bool begins_number() const { return text_[next_] == '.' && next_ + 1 < text_.size() && is_digit(text_[next_ + 1]); }

  /// Within brackets there may be types, of several words.
  std::string_view read_word() {
    const std::string_view word = take_word();
    if ((is_digit(word[0]) || word[0] == '.') && !is_number(word)) return kNumber;
    if (!is_utf8(word)) return kForeign;
    const bool counts = open_.empty() && !is_c_keyword(word);
    const bool neighbours = counts && after_word_;
    after_word_ = counts;
    return neighbours ? kNeighbours : std::string_view();
  }

  std::string_view take_word() {
    const std::size_t begin = next_;
    const bool number = !is_word_byte(text_[begin]) || is_digit(text_[begin]);
    while (next_ < text_.size() && (is_word_byte(text_[next_]) || (number && continues_number()))) ++next_;
    return text_.substr(begin, next_ - begin);
  }

  bool continues_number() const {
    const char c = text_[next_];
    const char before = next_ ? text_[next_ - 1] : '\0';
    return c == '.' || ((c == '+' || c == '-') && std::string_view("eEpP").find(before) != std::string_view::npos);
  }

  std::string_view text_;
  std::size_t next_ = 0;
  std::string open_;  // what closes the brackets that are open, the innermost last
  bool any_ = false;
  bool after_word_ = false;
};

}  // namespace

bool is_c_keyword(std::string_view text) { return std::ranges::binary_search(keywords, text); }

bool is_identifier(std::string_view text) {
  if (text.empty() || is_digit(text[0]) || !std::ranges::all_of(text, is_word_byte)) return false;
  return is_utf8(text);
}

std::string_view fault_of_expression(std::string_view text) {
  return is_identifier(text) ? std::string_view() : ExpressionReader(text).fault();
}

}  // namespace vqc
