#include "vqc/cmd/check/c_language.h"

#include <gtest/gtest.h>

#include <string>

using namespace vqc;

namespace {

TEST(Identifiers, AreLettersDigitsAndUnderscores) {
  for (const char* text : {"a", "_", "XmNwidth", "a1_", "__x"}) EXPECT_TRUE(is_identifier(text)) << text;
  for (const char* text : {"", "1", "1a", "a-b", "a b", " a", "a.b", "a\n", "a%%"}) {
    EXPECT_FALSE(is_identifier(text)) << text;
  }
}

TEST(Identifiers, MayHaveLettersBeyondAscii) {
  EXPECT_TRUE(
      is_identifier("Gr\xC3\xB6\xC3\x9F"
                    "e"));
  EXPECT_FALSE(
      is_identifier("Gr\xF6\xDF"
                    "e"));
}

TEST(CKeywords, AreThoseUpToC17AndOfGnu) {
  for (const char* text : {"auto", "while", "inline", "restrict", "_Bool", "_Thread_local", "asm", "typeof"}) {
    EXPECT_TRUE(is_c_keyword(text)) << text;
  }
  for (const char* text : {"bool", "nullptr", "class", "Auto", "", "int "}) EXPECT_FALSE(is_c_keyword(text)) << text;
}

TEST(Expressions, AreMacrosAndLiterals) {
  for (const char* text : {"XmNwidth", "\"width\"", "'x'", "0", "-1", "42", "0x1F", "10UL", "1.5e-3", ".5", "1e+5f"}) {
    EXPECT_EQ("", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, AreWhatCMakesOfThem) {
  for (const char* text : {"(char *) 0",  "(unsigned long) XmNa",
                           "a + b",       "a | b & ~c",
                           "f(a, b)",     "a[1]",
                           "x ? y : z",   "&table[0]",
                           "\"a\" \"b\"", "PREFIX \"b\"",
                           "L\"wide\"",   "\"a\\\"b\"",
                           "'\\''",       "\"it's\"",
                           "sizeof x",    "s.member",
                           "p->member",   "(struct s){1, 2}.a",
                           "A /* why */", "\"http://x\"",
                           "!a",          "a %% b",
                           " XmNa ",      "(a\n+ b)"}) {
    EXPECT_EQ("", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, HaveQuotesThatPair) {
  for (const char* text : {"\"a", "a\"", "'", "\"a\\\"", "\"a\nb\"", "(\"a)\""}) {
    EXPECT_EQ(text == std::string("(\"a)\"") ? "its brackets do not pair" : "its quotes do not pair",
              fault_of_expression(text))
        << text;
  }
}

TEST(Expressions, HaveBracketsThatPair) {
  for (const char* text : {"f(a", "a)", "(a]", "a[1", "{", "(a))"}) {
    EXPECT_EQ("its brackets do not pair", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, EndNowhereInTheMiddle) {
  for (const char* text : {"a, b", "a;", "(a; b)", ","}) EXPECT_EQ("a ',' or ';' ends it", fault_of_expression(text));
}

TEST(Expressions, AreNotTwoWords) {
  for (const char* text : {"border width", "XmN 5", "5 6", "f(a) b c"}) {
    EXPECT_EQ("two words stand side by side", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, HaveNoWordsThatBeginWithADigit) {
  for (const char* text : {"3dShadow", "1_", "a + 2nd", "0x", "08q"}) {
    EXPECT_EQ("a word in it begins with a digit", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, HaveOnlyCharactersOfC) {
  for (const char* text : {"a@b", "#a", "$a", "`a`", "a\\b", "\x01", "a\xF6"}) {
    EXPECT_EQ("it has a character that C does not know", fault_of_expression(text)) << text;
  }
}

TEST(Expressions, AreNotHiddenByComments) {
  EXPECT_EQ("a comment in it is not closed", fault_of_expression("a /* b"));
  EXPECT_EQ("'//' hides what follows", fault_of_expression("a // b"));
}

TEST(Expressions, AreNotEmpty) {
  for (const char* text : {"", " ", "/* nothing */"}) EXPECT_EQ("it is empty", fault_of_expression(text)) << text;
}

}  // namespace
