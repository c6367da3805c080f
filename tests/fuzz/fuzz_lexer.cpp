// Any bytes become tokens, and the same ones wherever the reads from the file are cut.

#include <algorithm>
#include <vector>

#include "support.h"
#include "vqc/cmd/savefile/lexer.h"

namespace {

constexpr std::string_view kCharacters = "=,;()*:{}-";
constexpr std::size_t kLongest = 2047;

struct Token {
  int result;
  SaveFileToken kind;
  int value;  // an integer, a keyword's number, or the place of a known character
  int line;
  std::string text;
  bool operator==(const Token&) const = default;
};

int value_of(const Lexer& lexer) {
  switch (lexer.kind()) {
    case SaveFileToken::keyword:
      return static_cast<int>(lexer.keyword());
    case SaveFileToken::integer:
      return lexer.integer();
    case SaveFileToken::character: {
      const auto found = std::find_if(kCharacters.begin(), kCharacters.end(), [&](char c) { return lexer.is(c); });
      return static_cast<int>(found - kCharacters.begin());
    }
    default:
      return 0;
  }
}

Token next(Lexer& lexer) {
  const int result = lexer.next_token();
  return {result, lexer.kind(), value_of(lexer), lineno, std::string(lexer.text())};
}

std::vector<Token> tokens_of(const MemoryFile& file, std::size_t most) {
  lineno = 0;
  Lexer lexer(Stream::open(file.path(), "r"));
  std::vector<Token> tokens;
  do {
    require(tokens.size() <= most, "more tokens than characters");
    tokens.push_back(next(lexer));
    require(tokens.back().text.size() <= kLongest, "a token that is too long");
  } while (!lexer.is(SaveFileToken::end_of_input));
  require(next(lexer) == tokens.back(), "something comes after the end");
  require(lexer.next_ch() == 0, "a character comes after the end");
  return tokens;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MemoryFile file;
  const Input input(data, size);
  file.write(input.text);
  const std::vector<Token> tokens = tokens_of(file, input.text.size());
  require(lineno == std::count(input.text.begin(), input.text.end(), '\n'), "lines are counted wrongly");
  const CutReads cut(input.choice + 1);
  require(tokens_of(file, input.text.size()) == tokens, "cutting the reads changes the tokens");
  return 0;
}
