// Takes C apart into tokens.

#include "vqc/cmd/generate/c_scanner.h"

#include <algorithm>

#include "libkel/keltype.h"

namespace vqc::c {

namespace {

constexpr std::uint16_t kBlank = KEL_SPACE;

/// Characters beyond ASCII are letters, as compilers take them, and so is '$'.
bool is_word_character(char c) { return kel_is(c, KEL_IDENTIFIER) || c == '$' || static_cast<unsigned char>(c) > 127; }

/// Reads the tokens of a part of a text.
class Scanner {
 public:
  Scanner(std::string_view text, std::size_t begin, std::size_t end)
      : text_(text.substr(0, end)), at_(begin), line_begins_(begin == 0) {}

  /// False at the end.
  bool next(Token& token) {
    token.line_feeds = skip_space();
    if (at_ == text_.size()) return false;
    token.begin = at_;
    token.kind = read();
    token.end = at_;
    line_begins_ = line_begins_ && token.kind == Kind::comment;
    return true;
  }

  std::optional<Fault> fault() const { return fault_; }

 private:
  bool starts(std::string_view with) const { return text_.substr(at_).starts_with(with); }

  /// The size of a backslash that continues the line, or would if there were another, and of the line's end; or 0.
  std::size_t continuation() const {
    if (text_[at_] != '\\') return 0;
    const std::size_t blanks = std::min(text_.find_first_not_of(" \t\v\f\r", at_ + 1), text_.size());
    if (blanks == text_.size()) return blanks - at_;
    return text_[blanks] == '\n' ? blanks + 1 - at_ : 0;
  }

  /// Returns how many lines have ended.
  std::size_t skip_space() {
    std::size_t line_feeds = 0;
    while (at_ < text_.size()) {
      const std::size_t continued = continuation();
      if (continued == 0 && !kel_is(text_[at_], kBlank)) break;
      if (text_[at_] == '\n') ++line_feeds;
      at_ += std::max<std::size_t>(continued, 1);
    }
    line_begins_ = line_begins_ || line_feeds > 0;
    return line_feeds;
  }

  Kind read() {
    if (starts("/*") || starts("//")) return read_comment();
    if (text_[at_] == '#' && line_begins_) return read_directive();
    if (text_[at_] == '"' || text_[at_] == '\'') return read_quoted();
    if (!is_word_character(text_[at_])) return ++at_, Kind::mark;
    while (at_ < text_.size() && is_word_character(text_[at_])) ++at_;
    return Kind::word;
  }

  Kind read_comment() {
    if (starts("//")) return skip_to_line_end(), Kind::comment;
    const std::size_t close = text_.find("*/", at_ + 2);
    if (close == std::string_view::npos) fault_ = {at_, "this comment is never closed"};
    at_ = close == std::string_view::npos ? text_.size() : close + 2;
    return Kind::comment;
  }

  Kind read_quoted() {
    const char quote = text_[at_++];
    while (at_ < text_.size() && text_[at_] != '\n') {
      if (text_[at_] == '\\') {
        at_ = std::min(at_ + std::max<std::size_t>(continuation(), 2), text_.size());
      } else if (text_[at_++] == quote) {
        break;
      }
    }
    return Kind::quoted;
  }

  Kind read_directive() {
    ++at_;
    skip_blanks();
    const bool has_header_name = starts("include");
    while (at_ < text_.size() && text_[at_] != '\n') {
      if (has_header_name && text_[at_] == '<') {
        skip_header_name();
      } else if (const std::size_t continued = continuation()) {
        at_ += continued;
      } else if (text_[at_] == '"' || text_[at_] == '\'') {
        read_quoted();
      } else if (starts("/*") || starts("//")) {
        read_comment();
      } else {
        ++at_;
      }
    }
    while (kel_is(text_[at_ - 1], kBlank)) --at_;
    return Kind::directive;
  }

  void skip_blanks() {
    while (at_ < text_.size() && (text_[at_] == ' ' || text_[at_] == '\t')) ++at_;
  }

  void skip_header_name() {
    while (at_ < text_.size() && text_[at_] != '>' && text_[at_] != '\n')
      at_ += std::max<std::size_t>(continuation(), 1);
  }

  void skip_to_line_end() {
    do {
      at_ = std::min(text_.find('\n', at_ + 1), text_.size());
    } while (at_ < text_.size() && is_continued(text_, at_));
  }

  std::string_view text_;
  std::size_t at_;
  bool line_begins_;  // nothing but comments stands before this on its line
  std::optional<Fault> fault_;
};

std::vector<Token> read_all(Scanner& scanner) {
  std::vector<Token> tokens;
  for (Token token{}; scanner.next(token);) tokens.push_back(token);
  return tokens;
}

}  // namespace

Code scan(std::string_view text) {
  Scanner scanner(text, 0, text.size());
  Code code{.text = text, .tokens = read_all(scanner)};
  code.fault = scanner.fault();
  return code;
}

std::vector<Token> scan_directive(std::string_view text, const Token& directive) {
  Scanner scanner(text, directive.begin + 1, directive.end);
  return read_all(scanner);
}

bool is_continued(std::string_view text, std::size_t line_feed) {
  while (line_feed > 0 && text[line_feed - 1] != '\n' && kel_is(text[line_feed - 1], kBlank)) --line_feed;
  return line_feed > 0 && text[line_feed - 1] == '\\';
}

bool is_identifier(std::string_view word) {
  return !word.empty() && !kel_is(word.front(), KEL_DIGIT) && std::ranges::all_of(word, is_word_character);
}

}  // namespace vqc::c
