#include "vqc/cmd/savefile/lexer.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "support/files.h"

namespace {

using namespace std::string_literals;
using Tokens = std::vector<std::string>;

class LexerTest : public testing::Test {
 protected:
  Lexer lexer_of(std::string_view text) { return Lexer(Stream::open(folder.with("text", text).c_str(), "r")); }

  /// The current token in words; `result` is what next_token returned.
  static std::string described(const Lexer& lexer, int result) {
    switch (lexer.kind()) {
      case SaveFileToken::keyword:
        return "keyword " + std::to_string(static_cast<int>(lexer.keyword()));
      case SaveFileToken::string:
        return "string " + std::string(lexer.text());
      case SaveFileToken::identifier:
        return "word " + std::string(lexer.text());
      case SaveFileToken::integer:
        return "integer " + std::to_string(lexer.integer());
      case SaveFileToken::end_of_input:
        return "end";
      case SaveFileToken::character:
        return (result ? "" : "bad ") + character(lexer);
    }
    return "no token";
  }

  static std::string character(const Lexer& lexer) {
    for (int c = 0; c < 128; ++c) {
      if (lexer.is(static_cast<char>(c))) return std::string(1, static_cast<char>(c));
    }
    return "byte above 127";
  }

  /// The tokens of `text`, without the end.
  Tokens tokens_of(std::string_view text) {
    Lexer lexer = lexer_of(text);
    Tokens tokens;
    for (int result = lexer.next_token(); !lexer.is(SaveFileToken::end_of_input); result = lexer.next_token()) {
      tokens.push_back(described(lexer, result));
    }
    return tokens;
  }

  /// The line on which each token ends, when the first one stands on line 1.
  std::vector<int> lines_of(std::string_view text) {
    Lexer lexer = lexer_of(text);
    lexer.next_token();
    lineno = 1;
    std::vector<int> lines{lineno};
    while (!lexer.is(SaveFileToken::end_of_input)) {
      lexer.next_token();
      lines.push_back(lineno);
    }
    return lines;
  }

  TemporaryFolder folder;
};

TEST(SaveFileTokens, AreNumbered) {
  EXPECT_EQ(9, static_cast<int>(SaveFileToken::keyword));
  EXPECT_EQ(12, static_cast<int>(SaveFileToken::string));
  EXPECT_EQ(13, static_cast<int>(SaveFileToken::integer));
  EXPECT_EQ(15, static_cast<int>(SaveFileToken::identifier));
  EXPECT_EQ(65535, static_cast<int>(SaveFileToken::end_of_input));
}

TEST_F(LexerTest, NothingButTheEndIsInAnEmptyDocument) {
  EXPECT_EQ(Tokens{}, tokens_of(""));
  EXPECT_EQ(Tokens{}, tokens_of(" \t\n\v\f\r "));
}

TEST_F(LexerTest, TheEndIsATokenThatStays) {
  Lexer lexer = lexer_of("a");
  lexer.next_token();
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(1, lexer.next_token());
    EXPECT_TRUE(lexer.is(SaveFileToken::end_of_input));
  }
}

// Comments.

TEST_F(LexerTest, CommentsAreSkipped) {
  EXPECT_EQ(Tokens{}, tokens_of("! a comment only"));
  EXPECT_EQ(Tokens{}, tokens_of("/* a comment only */"));
  EXPECT_EQ((Tokens{"word a", "word b"}), tokens_of("a ! x y\nb"));
  EXPECT_EQ((Tokens{"word a", "word b"}), tokens_of("a/* x\ny */b"));
  EXPECT_EQ((Tokens{"word a", "word b"}), tokens_of("a!\n!\n/**/!x\n/*x*//*y*/b"));
}

TEST_F(LexerTest, AStarredCommentEndsAtTheFirstStarAndSlash) {
  EXPECT_EQ(Tokens{"word a"}, tokens_of("/* x * / **/a"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("/* /* */ a"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("/*/ x */a"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("/* ' ! */a"));
}

TEST_F(LexerTest, AnUnterminatedCommentRunsToTheEnd) {
  EXPECT_EQ(Tokens{"word a"}, tokens_of("a /* b c"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("a /*"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("a /* *"));
  EXPECT_EQ(Tokens{"word a"}, tokens_of("a !"));
}

TEST_F(LexerTest, ASlashAloneYieldsTheCharacterAfterIt) {
  EXPECT_EQ((Tokens{"=", "word a"}), tokens_of("/=a"));
  for (const char* text : {"/xyz", "/\tyz", "/\fyz", "/\ryz", "/'yz", "/7yz"}) {
    Lexer lexer = lexer_of(text);
    lexer.next_token();
    EXPECT_TRUE(lexer.is(text[1])) << text;
    lexer.next_token();
    EXPECT_EQ("yz", lexer.text()) << text;
  }
}

TEST_F(LexerTest, ASlashAtTheEndYieldsTheEnd) { EXPECT_EQ(Tokens{"word a"}, tokens_of("a /")); }

// Strings.

TEST_F(LexerTest, StringsStandBetweenSingleQuotes) {
  EXPECT_EQ(Tokens{"string abc"}, tokens_of("'abc'"));
  EXPECT_EQ(Tokens{"string "}, tokens_of("''"));
  EXPECT_EQ((Tokens{"string a", "string b"}), tokens_of("'a''b'"));
  EXPECT_EQ(Tokens{"string family"}, tokens_of("'family'"));
  EXPECT_EQ(Tokens{"string a\nb\"!/* */"}, tokens_of("'a\nb\"!/* */'"));
}

TEST_F(LexerTest, EscapesInStringsAreResolved) {
  const std::pair<const char*, std::string> cases[] = {
      {R"('a\tb')", "a\tb"}, {R"('\b\f\n\r\t')", "\b\f\n\r\t"}, {R"('it\'s')", "it's"},
      {R"('a\\b')", "a\\b"}, {R"('\q\"\A')", "q\"A"},           {"'a\\\nb'", "a\nb"},
  };
  for (auto& [text, expected] : cases) EXPECT_EQ(Tokens{"string " + expected}, tokens_of(text)) << text;
}

TEST_F(LexerTest, ABackslashAndDigitsGiveTheCharacterOfThatNumber) {
  const std::pair<const char*, std::string> cases[] = {
      {R"('\65')", "A"},      {R"('\065x')", "Ax"},
      {R"('\65\66')", "AB"},  {R"('\321')", "A"},
      {R"('\0650')", "\x8a"}, {R"('\4294967361')", "A"},
      {R"('\255')", "\xff"},  {R"('\7x')", "\ax"},
      {R"('a\39b')", "a'b"},  {R"('\18446744073709551681')", "A"},
  };
  for (auto& [text, expected] : cases) EXPECT_EQ(Tokens{"string " + expected}, tokens_of(text)) << text;
}

TEST_F(LexerTest, BytesAbove127StandInStrings) {
  EXPECT_EQ(Tokens{"string \xc3\xa9\xff\x80"}, tokens_of("'\xc3\xa9\xff\x80'"));
}

TEST_F(LexerTest, ANulDoesNotEndAStringToken) {
  for (const std::string& text : {"'a\0b' c"s, "'a\\0b' c"s}) {
    Lexer lexer = lexer_of(text);
    lexer.next_token();
    EXPECT_TRUE(lexer.is(SaveFileToken::string));
    EXPECT_STREQ("a", Text(lexer.text()));
    lexer.next_token();
    EXPECT_EQ("c", lexer.text());
  }
}

TEST_F(LexerTest, AnUnterminatedStringIsAString) {
  EXPECT_EQ((Tokens{"word a", "string b c\n"}), tokens_of("a 'b c\n"));
  EXPECT_EQ(Tokens{"string "}, tokens_of("'"));
  EXPECT_EQ(Tokens{"string it's"}, tokens_of(R"('it\'s)"));
  EXPECT_EQ(Tokens{"string a"}, tokens_of(R"('a\)"));
  EXPECT_EQ(Tokens{"string aA"}, tokens_of(R"('a\65)"));
}

TEST_F(LexerTest, StringsKeep2047Characters) {
  for (std::size_t length : {2046u, 2047u, 2048u, 5000u}) {
    const std::string characters(length, 'x');
    EXPECT_EQ((Tokens{"string " + characters.substr(0, 2047), "word next"}), tokens_of("'" + characters + "' next"));
  }
}

TEST_F(LexerTest, AnEscapeIsOneOfTheCharactersKept) {
  const std::string start(2046, 'x');
  EXPECT_EQ((Tokens{"string " + start + "'", "word next"}), tokens_of("'" + start + "\\'' next"));
  EXPECT_EQ((Tokens{"string " + start + "y", "word next"}), tokens_of("'" + start + "y\\'\\65' next"));
}

// Words.

TEST_F(LexerTest, WordsAreLettersDigitsUnderscoresAndDots) {
  EXPECT_EQ(Tokens{"word True"}, tokens_of("True"));
  EXPECT_EQ(Tokens{"word _a1.b_2.c"}, tokens_of("_a1.b_2.c"));
  EXPECT_EQ(Tokens{"word a."}, tokens_of("a."));
  EXPECT_EQ(Tokens{"word a..b"}, tokens_of("a..b"));
  EXPECT_EQ((Tokens{"word a", "=", "word b"}), tokens_of("a=b"));
  EXPECT_EQ((Tokens{"word a", "string b"}), tokens_of("a'b'"));
}

TEST_F(LexerTest, AWordDoesNotBeginWithADigitOrADot) {
  EXPECT_EQ((Tokens{"integer 1", "word a"}), tokens_of("1a"));
  EXPECT_EQ((Tokens{"bad .", "word a"}), tokens_of(".a"));
}

TEST_F(LexerTest, AWholeWordMayBeAKeyword) {
  EXPECT_EQ((Tokens{"keyword 1", "keyword 11", "keyword 46"}), tokens_of("VQconfig family widget_tag"));
  EXPECT_EQ((Tokens{"word vqconfig", "word Family", "word family.", "word familyx", "word family.header"}),
            tokens_of("vqconfig Family family. familyx family.header"));
}

TEST_F(LexerTest, WordsKeep2047Characters) {
  for (std::size_t length : {2046u, 2047u, 2048u, 5000u}) {
    const std::string word(length, 'x');
    EXPECT_EQ((Tokens{"word " + word.substr(0, 2047), "string s"}), tokens_of(word + " 's'"));
  }
}

// Integers.

TEST_F(LexerTest, IntegersAreDecimal) {
  EXPECT_EQ((Tokens{"integer 0", "integer 12", "integer 7", "integer -12"}), tokens_of("0 12 007 -12"));
  EXPECT_EQ((Tokens{"integer 1", "integer -2"}), tokens_of("1-2"));
}

TEST_F(LexerTest, IntegersWrapTo32Bits) {
  EXPECT_EQ((Tokens{"integer 2147483647", "integer -2147483648", "integer 3", "integer -2147483648", "integer -3"}),
            tokens_of("2147483647 2147483648 4294967299 -2147483648 -4294967299"));
  EXPECT_EQ(Tokens{"integer 5"}, tokens_of("340282366920938463463374607431768211461"));
}

TEST_F(LexerTest, AMinusWithoutADigitIsACharacterOfItsOwn) {
  EXPECT_EQ((Tokens{"bad -", "integer 12"}), tokens_of("- 12"));
  EXPECT_EQ((Tokens{"bad -", "integer -3"}), tokens_of("--3"));
  EXPECT_EQ((Tokens{"bad -", "word a"}), tokens_of("-a"));
  EXPECT_EQ(Tokens{"bad -"}, tokens_of("-"));
}

// Single characters.

TEST_F(LexerTest, PunctuationIsSingleCharacters) {
  EXPECT_EQ((Tokens{"=", ",", ";", "(", ")", "*", ":", "{", "}"}), tokens_of("=,;()*:{}"));
}

TEST_F(LexerTest, OtherCharactersAreInvalid) {
  for (char c : "\"#$%&+.<>?@[\\]^`|~\x01\x0e\x0f\x7f"s) {
    EXPECT_EQ((Tokens{std::string("bad ") + c, "word a"}), tokens_of(std::string(1, c) + "a"));
  }
  EXPECT_EQ((Tokens{"bad "s + '\0', "word a"}), tokens_of("\0a"s));
}

TEST_F(LexerTest, BytesAbove127AreInvalidOutsideStrings) {
  EXPECT_EQ((Tokens{"word a", "bad byte above 127", "bad byte above 127", "word b"}), tokens_of("a\xc3\xa9"
                                                                                                "b"));
  EXPECT_EQ((Tokens{"bad byte above 127", "bad byte above 127"}), tokens_of("\xff\x80"));
}

TEST_F(LexerTest, NoCharacterIsTakenForAnotherToken) {
  Lexer lexer = lexer_of("\x0f");
  lexer.next_token();
  EXPECT_TRUE(lexer.is(SaveFileToken::character));
  EXPECT_FALSE(lexer.is(SaveFileToken::identifier));
  EXPECT_TRUE(lexer.is('\x0f'));
}

TEST_F(LexerTest, AKeywordIsThatKeywordOnly) {
  Lexer lexer = lexer_of("family 'family'");
  lexer.next_token();
  EXPECT_TRUE(lexer.is(Kw::family));
  EXPECT_FALSE(lexer.is(Kw::widget));
  lexer.next_token();
  EXPECT_FALSE(lexer.is(Kw::family));
}

// Lines.

TEST_F(LexerTest, LinesAreThoseOnWhichTokensEnd) {
  EXPECT_EQ((std::vector<int>{1, 2, 2, 4, 5}), lines_of("a\nb c\n\nd\n"));
  EXPECT_EQ((std::vector<int>{1, 1, 1}), lines_of("a b"));
  EXPECT_EQ((std::vector<int>{1, 3, 4, 4}), lines_of("a\n'b\nc'\nd"));
  EXPECT_EQ((std::vector<int>{1, 5, 5}), lines_of("a ! x\n/*\n\n*/\nb"));
  EXPECT_EQ((std::vector<int>{1, 2, 3, 3}), lines_of("a\n12\n-3"));
  EXPECT_EQ((std::vector<int>{1, 2, 3, 3}), lines_of("a\nfamily\n="));
}

// Single steps and closing.

TEST_F(LexerTest, NextChSkipsACharacter) {
  Lexer lexer = lexer_of("ab(cd");
  lexer.next_token();
  EXPECT_EQ(1, lexer.next_ch());
  lexer.next_token();
  EXPECT_EQ("cd", lexer.text());
}

TEST_F(LexerTest, NextChCountsLines) {
  Lexer lexer = lexer_of("a(\nb");
  lexer.next_token();
  lineno = 1;
  lexer.next_ch();
  lexer.next_ch();
  lexer.next_token();
  EXPECT_EQ("b", lexer.text());
  EXPECT_EQ(2, lineno);
}

TEST_F(LexerTest, WithoutAStreamThereIsOnlyTheEnd) {
  Lexer lexer(nullptr);
  EXPECT_EQ(0, lexer.next_ch());
  EXPECT_EQ(1, lexer.next_token());
  EXPECT_TRUE(lexer.is(SaveFileToken::end_of_input));
}

TEST_F(LexerTest, AfterClosingThereIsOnlyTheEnd) {
  Lexer lexer = lexer_of("a b c");
  lexer.next_token();
  lexer.close();
  EXPECT_EQ(0, lexer.next_ch());
  for (int i = 0; i < 3; ++i) {
    lexer.next_token();
    EXPECT_TRUE(lexer.is(SaveFileToken::end_of_input));
  }
}

// Stepping over what is known.

TEST_F(LexerTest, StepsOverWhatStandsNextAsItIsSpelled) {
  Lexer lexer = lexer_of("'a', True, False, 'b'");
  lexer.next_token();
  EXPECT_FALSE(lexer.skip(", False"));
  EXPECT_FALSE(lexer.skip(" , True"));
  EXPECT_TRUE(lexer.skip(", True, False"));
  EXPECT_EQ("a", lexer.text());
  EXPECT_EQ(",", described(lexer, lexer.next_token()));
  EXPECT_EQ("string b", described(lexer, lexer.next_token()));
}

TEST_F(LexerTest, StepsOverNoPartOfAWord) {
  for (const char* behind : {"d", "D", "4", "_", "."}) {
    Lexer lexer = lexer_of("a bc" + std::string(behind) + " e");
    lexer.next_token();
    EXPECT_FALSE(lexer.skip(" bc")) << behind;
    EXPECT_EQ("word bc" + std::string(behind), described(lexer, lexer.next_token()));
  }
}

TEST_F(LexerTest, StepsOverNothingAtTheEnd) {
  Lexer lexer = lexer_of("a bc");
  lexer.next_token();
  EXPECT_FALSE(lexer.skip(" bc "));
  EXPECT_FALSE(lexer.skip(" bc"));  // more could follow in the next part of the file
  lexer.next_token();
  EXPECT_FALSE(lexer.skip("x"));
}

// Tokens that do not lie in one part of the file.

const std::string kLong(2047, 'x');

class BufferEdge : public LexerTest {
 protected:
  const std::vector<std::pair<std::string, Tokens>> cases{
      {"a_word.of_some"s, Tokens{"word a_word.of_some"}},
      {"resource_popups"s, Tokens{"keyword 38"}},
      {"'a string' b"s, Tokens{"string a string", "word b"}},
      {R"('\65\066\'\n')"s, Tokens{"string AB'\n"}},
      {"1234567890"s, Tokens{"integer 1234567890"}},
      {"-12345678 -"s, Tokens{"integer -12345678", "bad -"}},
      {"/* * a **/b"s, Tokens{"word b"}},
      {"/=/=/=/=/="s, Tokens{"=", "=", "=", "=", "="}},
      {"! a\n! b\nc"s, Tokens{"word c"}},
      {"={}(),;:*="s, Tokens{"=", "{", "}", "(", ")", ",", ";", ":", "*", "="}},
      {"'" + kLong + "'b", Tokens{"string " + kLong, "word b"}},
      {"'" + kLong + "xyz'b", Tokens{"string " + kLong, "word b"}},
      {kLong + " b", Tokens{"word " + kLong, "word b"}},
      {kLong + "xyz b", Tokens{"word " + kLong, "word b"}},
  };

  /// The text must give the tokens wherever in a part of the file it begins.
  void expect(const std::string& text, const Tokens& tokens, std::size_t before_the_edge) {
    EXPECT_EQ(tokens, tokens_of(std::string(65536 - before_the_edge, ' ') + text)) << before_the_edge;
  }
};

TEST_F(BufferEdge, DoesNotShowInTokens) {
  for (auto& [text, tokens] : cases) {
    for (std::size_t before = 0; before <= 16; ++before) expect(text, tokens, before);
  }
}

TEST_F(BufferEdge, DoesNotShowInTheMiddleOfATokenEither) {
  for (auto& [text, tokens] : cases) {
    expect(text, tokens, text.size() / 2);
    expect(text, tokens, text.size());
  }
}

TEST_F(LexerTest, ATokenMayBeLongerThanTheBuffer) {
  const std::string longest(200000, 'x');
  EXPECT_EQ((Tokens{"string " + kLong, "word b"}), tokens_of("'" + longest + "' b"));
  EXPECT_EQ((Tokens{"word " + kLong, "word b"}), tokens_of(longest + " b"));
  EXPECT_EQ(Tokens{"word b"}, tokens_of("/*" + longest + "*/ b"));
  EXPECT_EQ(Tokens{"word b"}, tokens_of("!" + longest + "\n b"));
}

}  // namespace
