#ifndef VQC_CMD_SAVEFILE_LEXER_H
#define VQC_CMD_SAVEFILE_LEXER_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "libkel/source.h"
#include "vqc/cmd/savefile/keywords.h"

namespace vqc {

/// The kinds of token. They stand apart from the characters' codes, some of which are the same numbers.
enum class SaveFileToken {
  keyword = 9,
  string = 12,
  integer = 13,
  identifier = 15,
  end_of_input = 65535,
  character = -1
};

/// What may be wrong with a token although it is read: bits.
enum TokenOddity : unsigned {
  IS_CUT = 1,          // longer than is kept
  HAS_NUL = 2,         // its text ends before its characters do
  HAS_CUT_ESCAPE = 4,  // a number in it is no character's, or a backslash ends the document
  WRAPS = 8,           // an integer beyond 32 bits
  IS_OPEN = 16,        // a string that the end of the document ends
};

/// What a lexer has stepped over.
struct Comments {
  std::size_t count = 0;
  Range first = {};
  std::optional<Range> open = {};    // the last that the end of the document ends
  std::optional<Range> nested = {};  // the last that another seems to begin in
};

/// Turns the characters of a Source into tokens. A copy goes on from the same place by itself.
class Lexer {
 public:
  /// The source must outlive the lexer.
  explicit Lexer(const Source& source);

  /// Moves to the next character. 0 at the end.
  int next_ch();

  /// Reads the next token. 0 for a character that can begin none, and for a lone "-".
  int next_token();
  /// Reads the token again that stands there.
  int go_back(Range token) {
    next_ = begin_ + token.begin;
    return next_token();
  }

  SaveFileToken kind() const { return kind_; }
  bool is(char character) const { return kind_ == SaveFileToken::character && character_ == character; }
  bool is(Kw kw) const { return kind_ == SaveFileToken::keyword && keyword_ == kw; }
  bool is(SaveFileToken kind) const { return kind_ == kind; }
  Kw keyword() const { return keyword_; }
  int integer() const { return integer_; }
  /// The text of a string or word up to its first NUL, until the next token is read.
  std::string_view text() const { return text_; }
  /// Whether text() stands in the source as it is, and so lives as long as that.
  bool text_is_in_source() const { return text_.data() != unescaped_.data(); }
  /// What may be wrong with the token.
  unsigned oddities() const { return oddities_; }
  const Comments& comments() const { return comments_; }
  /// Where the token stands.
  Range range() const { return {offset(token_), offset(next_)}; }

 private:
  std::size_t offset(const char* place) const { return static_cast<std::size_t>(place - begin_); }
  bool at_end() const { return next_ == end_; }
  bool skip_comment();
  void note_comment(std::string_view comment, bool is_line, bool is_open);
  std::string_view kept(const char* from, const char* to);
  int read_string();
  int read_escaped_string();
  char read_escape();
  int read_word();
  int read_number(bool negative);
  int read_minus();
  int read_character();

  const char* begin_;
  const char* end_;    // a NUL stands there
  const char* next_;   // the current character
  const char* token_;  // where the current token begins
  SaveFileToken kind_ = SaveFileToken::end_of_input;
  char character_ = '\0';
  Kw keyword_{};
  int integer_ = 0;
  std::string_view text_;
  std::string unescaped_;
  unsigned oddities_ = 0;
  Comments comments_;
};

}  // namespace vqc

#endif
