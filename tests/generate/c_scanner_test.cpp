#include "vqc/cmd/generate/c_scanner.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace vqc;

namespace {

using Texts = std::vector<std::string>;

/// The tokens of a text, each with a letter for its kind before it.
Texts tokens_of(std::string_view text) {
  const c::Code code = c::scan(text);
  Texts tokens;
  for (const c::Token& token : code.tokens) {
    tokens.push_back("wqmcd"[static_cast<int>(token.kind)] + std::string(1, ' ') + std::string(code.of(token)));
  }
  return tokens;
}

TEST(CScanner, TakesWordsMarksStringsAndCommentsApart) {
  EXPECT_EQ((Texts{"w int", "w größe", "m =", "w 0x1f", "m +", "q \"}\"", "m ;", "c /* { */", "c // }"}),
            tokens_of("int größe=0x1f+\"}\";/* { */ // }\n"));
}

TEST(CScanner, StringEndsAtItsQuoteOrWithItsLine) {
  EXPECT_EQ((Texts{"q \"a\\\"b\"", "q '\\''", "q '{'", "q \"\\\\\"", "m ;"}), tokens_of(R"("a\"b"'\'''{' "\\";)"));
  EXPECT_EQ((Texts{"q 't {", "m }"}), tokens_of("'t {\n}"));
  EXPECT_EQ((Texts{"q \"a\\\nb\"", "q \"a\\\r\nb\""}), tokens_of("\"a\\\nb\" \"a\\\r\nb\""));
  EXPECT_EQ((Texts{"q \"a\\"}), tokens_of("\"a\\"));
}

TEST(CScanner, LineCommentGoesOnBehindABackslash) {
  EXPECT_EQ((Texts{"c // a\\\n{", "w b"}), tokens_of("// a\\\n{\nb"));
  EXPECT_EQ((Texts{"c // a\\ \r\n{\r", "w b"}), tokens_of("// a\\ \r\n{\r\nb"));
}

TEST(CScanner, BackslashAtTheEndIsNoToken) { EXPECT_EQ((Texts{"w a", "m }"}), tokens_of("a }\\ ")); }

TEST(CScanner, DirectiveIsOneTokenToTheEndOfItsLastLine) {
  EXPECT_EQ((Texts{"d #define A { \\\n}", "w b"}), tokens_of("#define A { \\\n}  \nb"));
  EXPECT_EQ((Texts{"d #if 1 /* a\nb */ && 1", "w c"}), tokens_of("#if 1 /* a\nb */ && 1\r\nc"));
  EXPECT_EQ((Texts{"d # error don't /* do", "w b"}), tokens_of(" # error don't /* do\nb"));
  EXPECT_EQ((Texts{"d #include <X11//a/*b>", "w c"}), tokens_of("#include <X11//a/*b>\nc"));
  EXPECT_EQ((Texts{"d #include <X11\\\n//a/*b>", "w c"}), tokens_of("#include <X11\\\n//a/*b>\nc"));
  EXPECT_EQ((Texts{"d #include <X11\\a", "w b"}), tokens_of("#include <X11\\a\nb"));
}

TEST(CScanner, DirectiveIsFirstOnItsLine) {
  EXPECT_EQ((Texts{"c /* a\n*/", "d #if 0"}), tokens_of("/* a\n*/ #if 0"));
  EXPECT_EQ((Texts{"w a", "m #", "w if"}), tokens_of("a #if"));
  EXPECT_EQ((Texts{"w a", "m #", "w if"}), tokens_of("a \\\n#if"));
}

TEST(CScanner, TokensOfADirectiveStandAlone) {
  const c::Code code = c::scan("# if /* a */ defined(B)\n");
  Texts texts;
  for (const c::Token& token : c::scan_directive(code.text, code.tokens.at(0))) texts.emplace_back(code.of(token));
  EXPECT_EQ((Texts{"if", "/* a */", "defined", "(", "B", ")"}), texts);
}

TEST(CScanner, CountsLineEndsBeforeTokens) {
  const c::Code code = c::scan("a\n\nb c \\\n d\n");
  std::vector<std::size_t> line_feeds;
  for (const c::Token& token : code.tokens) line_feeds.push_back(token.line_feeds);
  EXPECT_EQ((std::vector<std::size_t>{0, 2, 0, 0}), line_feeds);
}

TEST(CScanner, FindsACommentThatIsNeverClosed) {
  const c::Code code = c::scan("a /* b");
  ASSERT_TRUE(code.fault);
  EXPECT_EQ(2U, code.fault->offset);
  EXPECT_EQ("this comment is never closed", code.fault->words);
  EXPECT_TRUE(c::scan("a\n#define A /*/ b").fault);
  EXPECT_FALSE(c::scan("a \"/*\" // /*\n/**/").fault);
}

}  // namespace
