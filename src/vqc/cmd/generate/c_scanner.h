#ifndef VQC_CMD_GENERATE_C_SCANNER_H
#define VQC_CMD_GENERATE_C_SCANNER_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace vqc::c {

/// What a token is. A directive is one token, with its comments and its continued lines.
enum class Kind : std::uint8_t {
  word,    // an identifier, a keyword or a number
  quoted,  // a string or a character; one that is left open ends with its line
  mark,    // any other character
  comment,
  directive,
};

struct Token {
  Kind kind;
  std::size_t begin;
  std::size_t end;
  std::size_t line_feeds = 0;  // in the white space before it
};

inline bool is_code(const Token& token) { return token.kind != Kind::comment && token.kind != Kind::directive; }

/// What keeps a text from being understood, and where.
struct Fault {
  std::size_t offset;
  std::string_view words;
};

/// A text of C and its tokens.
struct Code {
  std::string_view text;
  std::vector<Token> tokens = {};
  std::optional<Fault> fault = {};  // a comment that is never closed

  std::string_view of(const Token& token) const { return text.substr(token.begin, token.end - token.begin); }
  std::string_view of(std::size_t token) const { return of(tokens[token]); }
  bool is_mark(std::size_t token, char mark) const {
    return tokens[token].kind == Kind::mark && text[tokens[token].begin] == mark;
  }
};

/// Takes any text apart. The tokens are views of it.
Code scan(std::string_view text);

/// The tokens in a directive, without its '#'.
std::vector<Token> scan_directive(std::string_view text, const Token& directive);

/// Whether the line that ends at `line_feed` goes on in the next one, because of a backslash.
bool is_continued(std::string_view text, std::size_t line_feed);

/// Whether a word is a name.
bool is_identifier(std::string_view word);

}  // namespace vqc::c

#endif
