// Any bytes become tokens, which stand in the text one after the other, and the same ones for a copy of the lexer.

#include <algorithm>
#include <vector>

#include "support.h"
#include "vqc/cmd/savefile/lexer.h"

using namespace vqc;

namespace {

constexpr std::string_view kCharacters = "=,;()*:{}-";
constexpr std::size_t kLongest = 2047;

struct Token {
  int result;
  SaveFileToken kind;
  int value;  // an integer, a keyword's number, or the place of a known character
  Range range;
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
  return {result, lexer.kind(), value_of(lexer), lexer.range(), std::string(lexer.text())};
}

/// All tokens from here on, the end too.
std::vector<Token> rest_of(Lexer& lexer, std::size_t most) {
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

void check_ranges(const std::vector<Token>& tokens, std::size_t size) {
  std::size_t end = 0;
  for (const Token& token : tokens) {
    const bool is_end = token.kind == SaveFileToken::end_of_input;
    require(token.range.begin >= end, "tokens overlap");
    require(is_end || token.range.end > token.range.begin, "a token of no characters");
    end = token.range.end;
  }
  require(tokens.back().range == Range{size, size}, "the end is not at the end");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Input input(data, size);
  const auto source = Source::from_text(input.text);
  Lexer lexer(*source);
  std::vector<Token> tokens = rest_of(lexer, input.text.size());
  check_ranges(tokens, input.text.size());
  Lexer again(*source);
  const std::size_t before = std::min<std::size_t>(input.choice, tokens.size() - 1);
  for (std::size_t i = 0; i < before; ++i) require(next(again) == tokens[i], "reading again gives other tokens");
  Lexer copy = again;
  tokens.erase(tokens.begin(), tokens.begin() + static_cast<std::ptrdiff_t>(before));
  require(rest_of(copy, input.text.size()) == tokens, "a copy goes on otherwise");
  require(rest_of(again, input.text.size()) == tokens, "a copy changes what is read");
  return 0;
}
