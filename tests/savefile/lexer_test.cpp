#include "vqc/cmd/savefile/lexer.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/document.h"

using namespace vqc;

namespace {

using namespace std::string_literals;
using Tokens = std::vector<std::string>;

class LexerTest : public testing::Test {
 protected:
  Lexer lexer_of(std::string_view text) {
    source = Source::from_text(text);
    return Lexer(*source);
  }

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

  /// Where the tokens stand in the text, the end too.
  std::vector<Range> ranges_of(std::string_view text) {
    Lexer lexer = lexer_of(text);
    std::vector<Range> ranges;
    do {
      lexer.next_token();
      ranges.push_back(lexer.range());
    } while (!lexer.is(SaveFileToken::end_of_input));
    return ranges;
  }

  std::shared_ptr<const Source> source;
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
    EXPECT_EQ("a", lexer.text());
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

// Places.

class TokenRanges : public LexerTest {
 protected:
  /// The tokens must stand where the marks are.
  void expect(std::string_view marked) {
    const MarkedText expected(marked);
    EXPECT_EQ(expected.ranges, ranges_of(expected.text)) << expected.text;
  }
};

TEST_F(TokenRanges, AreWhereTokensStand) {
  expect("<>");
  expect("  <VQconfig>\n<code_name> <=>\t<'x'>\n<>");
  expect("<12><-34><->\n<{><}>! c\n/* c */<word.w><>");
}

TEST_F(TokenRanges, HoldTheQuotesAndEscapesOfStrings) {
  expect("<'it\\'s'> <'a\\65b'><''><>");
  expect("<'a\nb'> <x><>");
}

TEST_F(TokenRanges, OfWhatHasNoEndGoToTheEnd) {
  expect("<a> <'b c\n><>");
  expect("<a> /* b c<>");
}

TEST_F(TokenRanges, LeaveOutTheSlashThatBeginsNoComment) { expect("/<=> <a><>"); }

TEST_F(TokenRanges, HoldWhatIsCutOffALongToken) {
  const std::string longest(5000, 'x');
  expect("<'" + longest + "'> <" + longest + "> <b><>");
}

TEST_F(LexerTest, TextsStandInTheSourceUnlessTheyHaveEscapesOrNuls) {
  const std::pair<std::string, bool> cases[] = {
      {"word"s, true}, {"'text'"s, true}, {"''"s, true}, {R"('a\tb')"s, false}, {"'a\0b'"s, false}, {"'a"s, false},
  };
  for (auto& [text, expected] : cases) {
    Lexer lexer = lexer_of(text);
    lexer.next_token();
    EXPECT_EQ(expected, lexer.text_is_in_source()) << text;
    const bool inside = lexer.text().data() >= source->text().data() &&
                        lexer.text().data() <= source->text().data() + source->text().size();
    EXPECT_EQ(expected, inside) << text;
  }
}

// Single steps and copies.

TEST_F(LexerTest, NextChSkipsACharacter) {
  Lexer lexer = lexer_of("ab(cd");
  lexer.next_token();
  EXPECT_EQ(1, lexer.next_ch());
  lexer.next_token();
  EXPECT_EQ("cd", lexer.text());
}

TEST_F(LexerTest, AtTheEndThereIsNoNextCharacter) {
  Lexer lexer = lexer_of("a");
  EXPECT_EQ(1, lexer.next_ch());
  EXPECT_EQ(0, lexer.next_ch());
  lexer.next_token();
  EXPECT_TRUE(lexer.is(SaveFileToken::end_of_input));
}

TEST_F(LexerTest, ACopyGoesOnByItself) {
  Lexer lexer = lexer_of("'\\65' b c");
  lexer.next_token();
  Lexer ahead = lexer;
  ahead.next_token();
  ahead.next_token();
  EXPECT_EQ("c", ahead.text());
  EXPECT_EQ("A", lexer.text());
  lexer.next_token();
  EXPECT_EQ("b", lexer.text());
}

// Long texts.

const std::string kLong(2047, 'x');

TEST_F(LexerTest, ATokenMayHaveAnyLength) {
  const std::string longest(200000, 'x');
  EXPECT_EQ((Tokens{"string " + kLong, "word b"}), tokens_of("'" + longest + "' b"));
  EXPECT_EQ((Tokens{"word " + kLong, "word b"}), tokens_of(longest + " b"));
  EXPECT_EQ(Tokens{"word b"}, tokens_of("/*" + longest + "*/ b"));
  EXPECT_EQ(Tokens{"word b"}, tokens_of("!" + longest + "\n b"));
}

}  // namespace
