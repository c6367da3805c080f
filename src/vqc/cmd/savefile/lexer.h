#ifndef VQC_CMD_SAVEFILE_LEXER_H
#define VQC_CMD_SAVEFILE_LEXER_H

#include <array>
#include <cstddef>
#include <memory>
#include <string_view>

#include "libkel/text.h"
#include "vqc/cmd/savefile/keywords.h"
#include "vqc/cmd/savefile/stream.h"

/// The line of the document that is being read, from 1.
inline int lineno = 0;

/// The kinds of token. They stand apart from the characters' codes, some of which are the same numbers.
enum class SaveFileToken {
  keyword = 9,
  string = 12,
  integer = 13,
  identifier = 15,
  end_of_input = 65535,
  character = -1
};

/// Turns the characters of one document into tokens.
class Lexer {
 public:
  /// Null reads as an empty document.
  explicit Lexer(std::unique_ptr<Stream> stream);

  /// Moves to the next character. 0 when there is no open stream: the current character stays.
  int next_ch();

  /// Reads the next token. 0 for a character that can begin none, and for a lone "-".
  int next_token();

  /// Steps over `text`, whole tokens on one line, if that stands next as it is spelled. The current token stays.
  bool skip(std::string_view text);

  /// After this there is only end of input.
  void close();

  SaveFileToken kind() const { return kind_; }
  bool is(char character) const { return kind_ == SaveFileToken::character && character_ == character; }
  bool is(Kw kw) const { return kind_ == SaveFileToken::keyword && keyword_ == kw; }
  bool is(SaveFileToken kind) const { return kind_ == kind; }
  Kw keyword() const { return keyword_; }
  int integer() const { return integer_; }
  /// The text of a string or identifier up to its first NUL, until the next token is read.
  std::string_view text() const { return text_; }

 private:
  static constexpr int kEnd = -1;
  static constexpr std::size_t kLongest = 2047;  // characters kept of a token

  int current() { return next_ != end_ || fill() ? static_cast<unsigned char>(*next_) : kEnd; }
  bool take_whole(const char* to);
  void keep(const char* from, const char* to);
  int read_string();
  int read_word();
  int take_character() {
    kind_ = SaveFileToken::character;
    character_ = static_cast<unsigned char>(*next_++);
    return 1;
  }

  // What is rarer stays out of next_token, which is the quicker for being small.
  [[gnu::noinline]] bool fill();
  [[gnu::noinline]] void skip_space();
  [[gnu::noinline]] void skip_line();
  [[gnu::noinline]] bool skip_comment();
  template <class Test>
  [[gnu::noinline]] void keep_until(Test stop);
  [[gnu::noinline]] int read_string_in_pieces();
  [[gnu::noinline]] int read_number(bool negative);
  [[gnu::noinline]] int read_minus();
  [[gnu::noinline]] int read_character();
  void read_escape();

  std::unique_ptr<Stream> stream_;
  static constexpr std::array<char, Stream::kNulsBehind> kNothing{};
  const char* next_ = kNothing.data();  // the current character, unless it is `end_`
  const char* end_ = kNothing.data();   // NULs follow
  SaveFileToken kind_ = SaveFileToken::end_of_input;
  int character_ = 0;
  Kw keyword_{};
  int integer_ = 0;
  std::string_view text_;  // in the stream's buffer or in `kept_`
  std::array<char, kLongest> kept_;
};

#endif
