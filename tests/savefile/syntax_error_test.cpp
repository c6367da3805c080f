#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "savefile/keyword_table.h"
#include "support/document.h"

namespace {

class SyntaxError : public DocumentTest {
 protected:
  /// The first error of a document, as it is shown; "" when it has none.
  std::string error_in(const std::string& document) {
    parse_errors = 0;
    messages.shown.clear();
    read_document(document);
    EXPECT_EQ(messages.shown.size(), static_cast<std::size_t>(parse_errors)) << document;
    EXPECT_LE(messages.shown.size(), 1u) << document;
    return messages.shown.empty() ? "" : messages.shown.front();
  }
};

std::string error(int line, const char* name) { return "Syntax error on line " + std::to_string(line) + ": " + name; }

/// A document after its first line and what is wrong with it.
struct Fault {
  const char* items;
  int line;
  const char* name;
};

class FaultyDocument : public SyntaxError {
 protected:
  void expect(std::initializer_list<Fault> faults) {
    for (const Fault& fault : faults) {
      EXPECT_EQ(error(fault.line, fault.name), error_in(std::string("VQconfig\n") + fault.items)) << fault.items;
    }
  }
};

TEST_F(FaultyDocument, ShowsFaultsInTheHeader) {
  expect({
      {"code_name 'x'", 2, "'='"},
      {"code_name\n5", 3, "'='"},
      {"code_name = 5", 2, "se_string"},
      {"code_name = page", 2, "se_string"},
      {"generate_alias_string = ;", 2, "se_string"},
      {"stop_list = ", 2, "se_string"},
      {"stop_list='x'\ncode_name='y'", 3, "se_unexpected_keyword"},
      {"config_name='x'\ncode_name='y'", 3, "se_unexpected_keyword"},
  });
}

TEST_F(FaultyDocument, ShowsFaultsWhereAnItemMustBegin) {
  expect({
      {"'x'", 2, "se_reserved"},
      {"word", 2, "se_reserved"},
      {"5", 2, "se_reserved"},
      {"\n\n{", 4, "se_reserved"},
      {"#", 2, "se_reserved"},
      {"-", 2, "se_reserved"},
      {"\x0f", 2, "se_reserved"},
      {"/\f", 2, "se_reserved"},
      {"\xc3\xa9", 2, "se_reserved"},
      {"alias 'a' {}\n}", 3, "se_reserved"},
      {"to_name", 2, "se_unexpected_keyword"},
      {"VQconfig", 2, "se_unexpected_keyword"},
  });
}

TEST_F(FaultyDocument, ShowsFaultsWhereANameIsExpected) {
  expect({
      {"header 5", 2, "se_string"},
      {"cheader page", 2, "se_string"},
      {"family_header ;", 2, "se_string"},
      {"page {", 2, "se_string"},
      {"alias {", 2, "se_string"},
      {"popup 5", 2, "se_string"},
      {"converter =", 2, "se_string"},
      {"enumeration widget", 2, "se_string"},
      {"widget 5", 2, "se_string"},
      {"family -", 2, "se_string"},
      {"alias", 2, "se_string"},
      {"alias\n", 3, "se_string"},
      {"enumeration 'e' {\nenumentry {", 3, "se_string"},
  });
}

TEST_F(FaultyDocument, ShowsFaultsInBlocks) {
  expect({
      {"alias 'a'\nto_name", 3, "'{'"},
      {"popup 'a' ;", 2, "'{'"},
      {"converter 'a' 'b'", 2, "'{'"},
      {"enumeration 'a'", 2, "'{'"},
      {"widget 'a' }", 2, "'{'"},
      {"family 'a' 5", 2, "'{'"},
      {"enumeration 'a' { enumentry 'b' }", 2, "'{'"},
      {"alias 'a' { to_name 'x'", 2, "'='"},
      {"alias 'a' {\nto_name = 5", 3, "se_string"},
      {"alias 'a' { to_name = }", 2, "se_string"},
      {"alias 'a' { to_name = alias }", 2, "se_string"},
      {"popup 'a' { dialog_init }", 2, "'='"},
      {"converter 'a' { dialog_create }", 2, "'='"},
      {"converter 'a' { dialog_create = 5", 2, "se_string"},
      {"converter 'a' { add_in_vq = 5", 2, "se_boolean"},
      {"enumeration 'a' { typename }", 2, "'='"},
      {"enumeration 'a' { enumentry 'b' {\ncode_symbol }", 3, "'='"},
      {"enumeration 'a' { enumentry 'b' { code_symbol = 5", 2, "se_string"},
      {"enumeration 'a' { enumentry 'b' {}\n", 3, "'}'"},
      {"widget 'a' { realise }", 2, "'='"},
      {"widget 'a' { realise = 5 }", 2, "se_string"},
      {"widget 'a' { can_manage }", 2, "'='"},
      {"widget 'a' {\ncan_manage =\n5 }", 4, "se_boolean"},
      {"widget 'a' { can_manage = page }", 2, "se_boolean"},
      {"widget 'a' { can_manage = ; }", 2, "se_boolean"},
      {"widget 'a' { can_manage = ", 2, "se_boolean"},
      {"family 'a' { widget 'W' }", 2, "'='"},
      {"family 'a' { popup = 5 }", 2, "se_string"},
      {"family 'a' { page = page }", 2, "se_string"},
      {"family 'a' { family_init }", 2, "'='"},
      {"family 'a' { family_init = 5 }", 2, "se_string"},
      {"family 'a' { generate_family_init_vq = 5 }", 2, "se_boolean"},
  });
}

TEST_F(FaultyDocument, ShowsFaultsInResources) {
  expect({
      {"widget w { resource_definitions 'r'", 2, "'='"},
      {"widget w { resource_definitions = 'r' ;", 2, "','"},
      {"widget w { resource_definitions = 'r', 'P' ;", 2, "','"},
      {"widget w { resource_definitions = 'r', , 'misc' True", 2, "','"},
      {"widget w { resource_definitions = 'r', P", 2, "','"},
      {"widget w { resource_definitions =\n'r', , ,\n5", 4, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , 'True'", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , page", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , True, 5", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , True, ;", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , True, FREE", 2, "se_free_get"},
      {"widget w { resource_definitions = 'r', , , True, vqc_free", 2, "se_free_get"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE ;", 2, "','"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE,\nFREE", 3, "se_free_set"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_Free", 2, "se_free_set"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, 'VQC_FREE'", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, 5", 2, "se_boolean"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access x", 2, "se_integer"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access '7'", 2, "se_integer"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access ;", 2, "se_integer"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE counter n", 2, "se_string"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE counter 5", 2, "se_string"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULTS", 2, "se_free_set"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT\naccess x", 3,
       "se_integer"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT counter x", 2, "se_string"},
      {"widget w { resource_definitions = 'r', , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT", 2, "','"},
      {"widget w { resource_definitions = 'r', , , True }\n", 3, "'}'"},
      {"widget w { resource_popups 'r'", 2, "'='"},
      {"widget w { resource_popups = r", 2, "se_string"},
      {"widget w { resource_popups = 5", 2, "se_string"},
  });
}

TEST_F(FaultyDocument, ShowsFaultsOnTheLineWhereTheTokenEnds) {
  expect({
      {"5\n\n\n", 2, "se_reserved"},
      {"word\n", 2, "se_reserved"},
      {"'a\nb'\n", 3, "se_reserved"},
      {"'a\nb", 3, "se_reserved"},
      {"! c\n/*\n\n*/ 5", 5, "se_reserved"},
      {"page 'a\n\nb'\npage\n5", 6, "se_string"},
      {"alias 'a' {\n\n", 4, "'}'"},
  });
}

TEST_F(SyntaxError, CountsLinesFromTheFirstToken) {
  EXPECT_EQ(error(2, "se_reserved"), error_in("\n\n! comment\nVQconfig\n5"));
  EXPECT_EQ(error(1, "se_reserved"), error_in("\n\nVQconfig 5"));
}

TEST_F(SyntaxError, CountsLinesOfEachDocumentAnew) {
  EXPECT_EQ(error(4, "se_reserved"), error_in("VQconfig\n\n\n5"));
  EXPECT_EQ(error(2, "se_reserved"), error_in("VQconfig\n5"));
}

TEST_F(SyntaxError, IsFarDownInALongDocument) {
  std::string document = "VQconfig\n";
  for (int i = 0; i < 20000; ++i) document += "alias a" + std::to_string(i) + " {}\n";
  EXPECT_EQ(error(20002, "se_reserved"), error_in(document + "5"));
}

// Which keyword stands where.

bool is_among(const std::vector<std::string>& words, const char* word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

struct Block {
  const char* name;
  const char* opening;
  std::vector<std::string> words;
};

void PrintTo(const Block& block, std::ostream* out) { *out << block.name; }

class BlockOf : public SyntaxError, public testing::WithParamInterface<Block> {};

INSTANTIATE_TEST_SUITE_P(
    , BlockOf,
    testing::Values(
        Block{"document",
              "page 'p'",
              {"header", "cheader", "family_header", "page", "alias", "popup", "converter", "enumeration", "widget",
               "family"}},
        Block{"alias", "alias 'a' {", {"to_name"}}, Block{"popup", "popup 'a' {", {"dialog_init", "dialog_update"}},
        Block{"converter",
              "converter 'a' {",
              {"proc_name", "dialog", "add_in_vq", "add_in_code", "dialog_create", "dialog_init", "dialog_update"}},
        Block{"enumeration", "enumeration 'a' {", {"typename", "enumentry"}},
        Block{"enumentry", "enumeration 'a' { enumentry 'b' {", {"code_symbol", "resfile_symbol"}},
        Block{"widget",
              "widget 'a' {",
              {"include_filename",
               "defined_name",
               "realise",
               "abstract",
               "can_add_child",
               "appropriate_parent",
               "largeicon",
               "smallicon",
               "largeiconheader",
               "smalliconheader",
               "pixmap_resource",
               "widget_doc",
               "widget_tag",
               "dialogue_doc",
               "dialogue_tag",
               "disablefgswap",
               "disablegoto",
               "can_create",
               "can_edit_abstract",
               "can_manage",
               "generate_initialise",
               "default_is_dont_free",
               "resource_definitions",
               "resource_popups"}},
        Block{"family",
              "family 'a' {",
              {"widget", "enumeration", "header", "cheader", "family_header", "alias", "converter", "popup", "page",
               "family_init", "generate_family_init_vq", "generate_family_init_code", "generate_family_init_stub",
               "generate_family_init_pre_shell"}}),
    [](const auto& test) { return std::string(test.param.name); });

TEST_P(BlockOf, TakesItsOwnKeywordsOnly) {
  for (const KeywordRow& row : keyword_table) {
    const std::string shown = error_in(std::string("VQconfig\n") + GetParam().opening + "\n" + row.word);
    if (is_among(GetParam().words, row.word)) {
      EXPECT_TRUE(shown == error(3, "'='") || shown == error(3, "se_string")) << row.word << ": " << shown;
    } else {
      EXPECT_EQ(error(3, "se_unexpected_keyword"), shown) << row.word;
    }
  }
}

TEST_P(BlockOf, TakesNoOtherTokens) {
  const bool top = std::string(GetParam().name) == "document";
  const std::string opening = std::string("VQconfig\n") + GetParam().opening + "\n";
  for (const char* token : {"word", "'string'", "5", "-5"}) {
    EXPECT_EQ(error(3, top ? "se_reserved" : "se_unexpected_keyword"), error_in(opening + token)) << token;
  }
  for (const char* token : {";", ",", "{", "=", "#", "-", "/\t", "/\r", "\xe9"}) {
    EXPECT_EQ(error(3, top ? "se_reserved" : "'}'"), error_in(opening + token)) << token;
  }
}

}  // namespace
