#include <gtest/gtest.h>

#include <string>

#include "check/check_support.h"

namespace {

// The rules on what single names and values are in C.

/// A document with a widget that has some fields.
std::string widget_with(const std::string& fields) {
  return "VQconfig widget W { " + fields + " } family F { widget=W }";
}

TEST(NamesOfC, AreThoseOfWidgetsPopupsAndTables) {
  EXPECT_EQ((Sayings{"no_identifier: 'my-table' is no identifier of C", "no_identifier: 'a b' is no identifier of C",
                     "no_identifier: '1st' is no identifier of C"}),
            said_at_marks("VQconfig generate_popup_string=<'my-table'> widget <'a b'> {} popup <'1st'> {} "
                          "family F { widget='a b' popup='1st' }"));
}

TEST(NamesOfC, AreThoseOfProcedures) {
  for (const char* field : {"defined_name", "realise", "abstract", "can_add_child", "appropriate_parent"}) {
    EXPECT_EQ((Sayings{"no_identifier: 'p()' is no identifier of C"}),
              said_at_marks(widget_with(std::string(field) + "=<'p()'>")));
  }
  EXPECT_EQ((Sayings{"no_identifier: 'i-' is no identifier of C", "no_identifier: 'u-' is no identifier of C",
                     "no_identifier: 'f-' is no identifier of C"}),
            said_at_marks("VQconfig popup P { dialog_init=<'i-'> dialog_update=<'u-'> } "
                          "family F { popup=P family_init=<'f-'> }"));
}

TEST(NamesOfC, OfConvertersAreThoseThatTheBuilderCalls) {
  EXPECT_EQ((Sayings{"no_identifier: 'p q' is no identifier of C"}),
            said_at_marks("VQconfig converter C { proc_name=<'p q'> add_in_vq=True } family F { converter=C }"));
  EXPECT_EQ(Sayings{}, said_about("VQconfig converter C { proc_name='p q' add_in_code=True } "
                                  "converter D { proc_name='\"' } family F { converter=C converter=D }"));
}

TEST(NamesOfC, AreNoKeywords) {
  EXPECT_EQ((Sayings{"c_keyword: 'int' is a keyword of C", "c_keyword: 'default' is a keyword of C",
                     "c_keyword: 'sizeof' is a keyword of C"}),
            said_at_marks("VQconfig widget <int> { realise=<'default'> resource_definitions=<'sizeof'>, , , True; } "
                          "family F { widget=int }"));
}

TEST(NamesOfC, OfWhatIsDefinedNowhereAreNoMatter) {
  EXPECT_EQ((Sayings{"undefined_name: the widget 'a b' is defined nowhere"}),
            said_at_marks("VQconfig family F { widget=<'a b'> }"));
}

TEST(NamesOfC, BeginWithThoseOfIconsAndEnumerations) {
  EXPECT_EQ((Sayings{"no_beginning_of_identifiers: no identifier of C begins with 'big-'",
                     "no_beginning_of_identifiers: no identifier of C begins with '2nd'"}),
            said_at_marks("VQconfig widget W { largeicon=<'big-'> largeiconheader='i.h' } enumeration <'2nd'> {} "
                          "enumeration int {} family F { widget=W enumeration='2nd' enumeration=int }"));
}

TEST(Expressions, AreTheNamesOfResourcesAndTheirCounters) {
  EXPECT_EQ((Sayings{"no_expression: 'border width' is no expression of C: two words stand side by side",
                     "no_expression: 'n(' is no expression of C: its brackets do not pair"}),
            said_at_marks(widget_with("resource_definitions=<'border width'>, , , True, VQC_FREE, VQC_FREE "
                                      "counter <'n('>, '\"r\"', , , True, VQC_FREE, VQC_FREE counter '(char*) 0';")));
}

TEST(Expressions, AreTypesAndAliases) {
  EXPECT_EQ((Sayings{"no_expression: '\"t' is no expression of C: its quotes do not pair",
                     "no_expression: '3D' is no expression of C: a word in it begins with a digit",
                     "no_expression: 'a, b' is no expression of C: a ',' or ';' ends it"}),
            said_at_marks("VQconfig enumeration E { typename=<'\"t'> } alias <'3D'> { to_name=<'a, b'> } "
                          "alias '\"A\"' { to_name='\"B\"' } family F { enumeration=E alias='3D' alias='\"A\"' }"));
}

TEST(Expressions, ThatComeOutInQuotesTooHaveNone) {
  EXPECT_EQ((Sayings{"quotes_in_quoted_expression: '\"C\"' has a double quote, and C has it in double quotes",
                     "quotes_in_quoted_expression: '\"s\"' has a double quote, and C has it in double quotes",
                     "unquotable_text: a line break in a text that C has in double quotes"}),
            said_at_marks("VQconfig converter <'\"C\"'> {} enumeration E { enumentry a { code_symbol=<'\"s\"'> } "
                          "enumentry b { code_symbol=<'1 +\n1'> } enumentry c { code_symbol='\\'x\\'' } } "
                          "family F { converter='\"C\"' enumeration=E }"));
}

const std::string kQuote = "unquotable_text: a double quote in a text that C has in double quotes";
const std::string kBackslash = "unquotable_text: a backslash in a text that C has in double quotes";
const std::string kLineBreak = "unquotable_text: a line break in a text that C has in double quotes";

TEST(TextsInQuotes, OfWidgetsEndWhereTheyEnd) {
  EXPECT_EQ((Sayings{kQuote, kBackslash, kLineBreak, kQuote, kQuote, kQuote}),
            said_at_marks(widget_with("include_filename=<'a\"b'> pixmap_resource=<'a\\\\b'> widget_doc=<'a\nb'> "
                                      "widget_tag=<'\"'> dialogue_doc=<'\"'> dialogue_tag=<'\"'>")));
}

TEST(TextsInQuotes, OfValuesEndWhereTheyEnd) {
  EXPECT_EQ((Sayings{kQuote, kQuote}),
            said_at_marks("VQconfig enumeration E { enumentry <'a\"'> { code_symbol=A resfile_symbol=<'\"b'> } } "
                          "family F { enumeration=E }"));
}

TEST(TextsInQuotes, OfFamiliesPagesAndHeadersEndWhereTheyEnd) {
  EXPECT_EQ((Sayings{kQuote, kQuote, kBackslash}),
            said_at_marks("VQconfig family <'F\"'> { page=<'p\"'> family_header=<'a\\\\b'> }"));
}

TEST(TextsInQuotes, OfCodeOnlyEndWhereTheyEnd) {
  EXPECT_EQ((Sayings{kQuote}), said_at_marks("VQconfig converter C { proc_name=<'\"p\"'> add_in_code=True } "
                                             "family F { converter=C }"));
}

TEST(TextsInQuotes, AreNotThoseOfOtherHeaders) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig family F { header='a\\\\b' cheader='\"c\"' }"));
}

TEST(FamilyNames, EndNoComment) {
  EXPECT_EQ((Sayings{"comment_ended_by_name: '*/' in 'a*/b' ends the comment in which C has it"}),
            said_at_marks("VQconfig family <'a*/b'> {} family '/*' {}"));
}

TEST(MissingValues, AreFoundWhereTheyAreNeeded) {
  EXPECT_EQ(
      (Sayings{"missing_code_symbol: the value 'a' has no code_symbol", "missing_to_name: the alias 'A' has no to_name",
               "missing_to_name: the alias 'B' has no to_name",
               "empty_family_init: the name of the family's procedure is empty"}),
      said_at_marks("VQconfig enumeration E { enumentry <'a'> { resfile_symbol=a } enumentry b { code_symbol=B } } "
                    "alias <A> {} alias <B> { to_name='' } "
                    "family F { family_init=<''> enumeration=E alias=A alias=B }"));
}

TEST(MissingValues, AreNoneOfWhatIsDefinedNowhere) {
  EXPECT_EQ((Sayings{"undefined_name: the alias 'A' is defined nowhere"}),
            said_at_marks("VQconfig family F { alias=<A> }"));
}

}  // namespace
