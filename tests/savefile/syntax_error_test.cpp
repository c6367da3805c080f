#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "savefile/keyword_table.h"
#include "support/document.h"

using namespace vqc;

namespace {

using enum FindingId;

/// What the editor states of a document, as "LINE: MESSAGE"; "" when it states no error.
std::string stated(const LoadResult& result) {
  const std::optional<StatedError>& error = result.first_error;
  return error ? std::to_string(error->line) + ": " + error->message : "";
}

std::string error(int line, const char* message) { return std::to_string(line) + ": " + message; }

class SyntaxError : public DocumentTest {
 protected:
  /// The first error of a document as it is stated, whether or not reading goes on after it.
  std::string error_in(const std::string& text) {
    document.clear();
    const std::string going_on = stated(read_document(text, AfterError::go_on));
    const Findings found = diagnostics.findings();
    document.clear();
    const std::string stopping = stated(read_document(text));
    EXPECT_EQ(stopping, going_on) << text;
    EXPECT_EQ(stopping.empty() ? 0U : 1U, diagnostics.findings().size()) << text;
    EXPECT_EQ(Findings(found.begin(), found.begin() + (found.empty() ? 0 : 1)), diagnostics.findings()) << text;
    return stopping;
  }
};

/// A document after its first line, with marks around what is found, and what is stated.
struct Fault {
  const char* marked_items;
  int line;
  const char* message;
  FindingId id;
  const char* suggestion = "";
};

/// The character or the word that words about a finding name.
std::vector<std::string> arguments_of(const Fault& fault, const MarkedText& document) {
  if (fault.id == expected_character) return {std::string(1, fault.message[1])};
  const Range range = document.ranges.front();
  if (fault.id == misplaced_word) return {document.text.substr(range.begin, range.end - range.begin)};
  return {};
}

class FaultyDocument : public SyntaxError {
 protected:
  void expect(std::initializer_list<Fault> faults) {
    for (const Fault& fault : faults) {
      const MarkedText marked(std::string("VQconfig\n") + fault.marked_items);
      EXPECT_EQ(error(fault.line, fault.message), error_in(marked.text)) << fault.marked_items;
      EXPECT_EQ((Findings{{fault.id, marked.ranges.front(), arguments_of(fault, marked), {}, fault.suggestion}}),
                diagnostics.findings())
          << fault.marked_items;
    }
  }
};

TEST_F(FaultyDocument, HasFaultsInTheHeader) {
  expect({
      {"code_name<> 'x'", 2, "'='", expected_character},
      {"code_name<>\n5", 3, "'='", expected_character},
      {"code_name = <5>", 2, "se_string", expected_name},
      {"code_name = <page>", 2, "se_string", expected_name},
      {"generate_alias_string =<> ;", 2, "se_string", expected_name},
      {"stop_list =<> ", 2, "se_string", expected_name},
      {"stop_list='x'\n<code_name>='y'", 3, "se_unexpected_keyword", misplaced_word},
      {"config_name='x'\n<code_name>='y'", 3, "se_unexpected_keyword", misplaced_word},
  });
}

TEST_F(FaultyDocument, HasFaultsWhereAnItemMustBegin) {
  expect({
      {"<'x'>", 2, "se_reserved", unknown_item},
      {"<word>", 2, "se_reserved", unknown_item},
      {"<5>", 2, "se_reserved", unknown_item},
      {"\n\n<{>", 4, "se_reserved", unknown_item},
      {"<#>", 2, "se_reserved", unknown_item},
      {"<->", 2, "se_reserved", unknown_item},
      {"<\x0f>", 2, "se_reserved", unknown_item},
      {"</>\f", 2, "se_reserved", unknown_item},
      {"<\xc3>\xa9", 2, "se_reserved", unknown_item},
      {"alias 'a' {}\n<}>", 3, "se_reserved", unknown_item},
      {"<to_name>", 2, "se_unexpected_keyword", misplaced_word},
      {"<VQconfig>", 2, "se_unexpected_keyword", misplaced_word},
  });
}

TEST_F(FaultyDocument, HasFaultsWhereANameIsExpected) {
  expect({
      {"header <5>", 2, "se_string", expected_name},
      {"cheader <page>", 2, "se_string", expected_name},
      {"family_header<> ;", 2, "se_string", expected_name},
      {"page<> {", 2, "se_string", expected_name},
      {"alias<> {", 2, "se_string", expected_name},
      {"popup <5>", 2, "se_string", expected_name},
      {"converter <=>", 2, "se_string", expected_name},
      {"enumeration <widget>", 2, "se_string", expected_name},
      {"widget <5>", 2, "se_string", expected_name},
      {"family <->", 2, "se_string", expected_name},
      {"alias<>", 2, "se_string", expected_name},
      {"alias<>\n", 3, "se_string", expected_name},
      {"enumeration 'e' {\nenumentry<> {", 3, "se_string", expected_name},
  });
}

TEST_F(FaultyDocument, HasFaultsInBlocks) {
  expect({
      {"alias 'a'<>\nto_name", 3, "'{'", expected_character},
      {"popup 'a' <;>", 2, "'{'", expected_character},
      {"converter 'a'<> 'b'", 2, "'{'", expected_character},
      {"enumeration 'a'<>", 2, "'{'", expected_character},
      {"widget 'a'<> }", 2, "'{'", expected_character},
      {"family 'a'<> 5", 2, "'{'", expected_character},
      {"enumeration 'a' { enumentry 'b'<> }", 2, "'{'", expected_character},
      {"alias 'a' { to_name<> 'x'", 2, "'='", expected_character},
      {"alias 'a' {\nto_name = <5>", 3, "se_string", expected_name},
      {"alias 'a' { to_name =<> }", 2, "se_string", expected_name},
      {"alias 'a' { to_name = <alias> }", 2, "se_string", expected_name},
      {"popup 'a' { dialog_init<> }", 2, "'='", expected_character},
      {"converter 'a' { dialog_create<> }", 2, "'='", expected_character},
      {"converter 'a' { dialog_create = <5>", 2, "se_string", expected_name},
      {"converter 'a' { add_in_vq = <5>", 2, "se_boolean", expected_boolean},
      {"enumeration 'a' { typename<> }", 2, "'='", expected_character},
      {"enumeration 'a' { enumentry 'b' {\ncode_symbol<> }", 3, "'='", expected_character},
      {"enumeration 'a' { enumentry 'b' { code_symbol = <5>", 2, "se_string", expected_name},
      {"enumeration 'a' <{> enumentry 'b' {}\n", 3, "'}'", unclosed_block},
      {"widget 'a' { realise<> }", 2, "'='", expected_character},
      {"widget 'a' { realise = <5> }", 2, "se_string", expected_name},
      {"widget 'a' { can_manage<> }", 2, "'='", expected_character},
      {"widget 'a' {\ncan_manage =\n<5> }", 4, "se_boolean", expected_boolean},
      {"widget 'a' { can_manage = <page> }", 2, "se_boolean", expected_boolean},
      {"widget 'a' { can_manage =<> ; }", 2, "se_boolean", expected_boolean},
      {"widget 'a' { can_manage =<> ", 2, "se_boolean", expected_boolean},
      {"family 'a' { widget<> 'W' }", 2, "'='", expected_character},
      {"family 'a' { popup = <5> }", 2, "se_string", expected_name},
      {"family 'a' { page = <page> }", 2, "se_string", expected_name},
      {"family 'a' { family_init<> }", 2, "'='", expected_character},
      {"family 'a' { family_init = <5> }", 2, "se_string", expected_name},
      {"family 'a' { generate_family_init_vq = <5> }", 2, "se_boolean", expected_boolean},
  });
}

TEST_F(FaultyDocument, HasFaultsInResources) {
  expect({
      {"widget w { resource_definitions<> 'r'", 2, "'='", expected_character},
      {"widget w { resource_definitions = 'r'<> ;", 2, "','", expected_character},
      {"widget w { resource_definitions = 'r', 'P'<> ;", 2, "','", expected_character},
      {"widget w { resource_definitions = 'r', , 'misc'<> True", 2, "','", expected_character},
      {"widget w { resource_definitions = 'r', <P>", 2, "','", expected_text},
      {"widget w { resource_definitions =\n'r', , ,\n<5>", 4, "se_boolean", expected_boolean},
      {"widget w { resource_definitions = 'r', , , <'True'>", 2, "se_boolean", expected_boolean},
      {"widget w { resource_definitions = 'r', , , <page>", 2, "se_boolean", expected_boolean},
      {"widget w { resource_definitions = 'r', , , True, <5>", 2, "se_boolean", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True,<> ;", 2, "se_boolean", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, <FREE>", 2, "se_free_get", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, <vqc_free>", 2, "se_free_get", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE<> ;", 2, "','", expected_character},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE,\n<FREE>", 3, "se_free_set", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, <VQC_Free>", 2, "se_free_set", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, <'VQC_FREE'>", 2, "se_boolean", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, <5>", 2, "se_boolean", expected_free_mode},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access <x>", 2, "se_integer",
       expected_integer},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access <'7'>", 2, "se_integer",
       expected_integer},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE access<> ;", 2, "se_integer",
       expected_integer},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE counter <n>", 2, "se_string",
       expected_text},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE, VQC_FREE counter <5>", 2, "se_string",
       expected_text},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, <VQC_FREE_DEFAULTS>", 2, "se_free_set",
       expected_free_mode, "VQC_FREE_DEFAULT"},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT\naccess <x>", 3,
       "se_integer", expected_integer},
      {"widget w { resource_definitions = 'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT counter <x>", 2,
       "se_string", expected_text},
      {"widget w { resource_definitions = 'r', ,<> True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT", 2, "','",
       expected_character},
      {"widget w { resource_popups<> 'r'", 2, "'='", expected_character},
      {"widget w { resource_popups = <r>", 2, "se_string", expected_text},
      {"widget w { resource_popups = <5>", 2, "se_string", expected_text},
  });
}

TEST_F(FaultyDocument, LacksTheEndOfItsResources) {
  const MarkedText marked("VQconfig\nwidget w { resource_definitions = 'r', , , True<> }\n");
  EXPECT_EQ(error(3, "'}'"), error_in(marked.text));
  EXPECT_EQ((Findings{{expected_character, marked.ranges.front(), {";"}}}), diagnostics.findings());
}

TEST_F(FaultyDocument, HasFaultsOnTheLineWhereTheTokenEnds) {
  expect({
      {"<5>\n\n\n", 2, "se_reserved", unknown_item},
      {"<word>\n", 2, "se_reserved", unknown_item},
      {"<'>a\nb'\n", 3, "se_reserved", unclosed_text},
      {"<'>a\nb", 3, "se_reserved", unclosed_text},
      {"! c\n/*\n\n*/ <5>", 5, "se_reserved", unknown_item},
      {"page 'a\n\nb'\npage\n<5>", 6, "se_string", expected_name},
      {"alias 'a' <{>\n\n", 4, "'}'", unclosed_block},
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
  std::string text = "VQconfig\n";
  for (int i = 0; i < 20000; ++i) text += "alias a" + std::to_string(i) + " {}\n";
  EXPECT_EQ(error(20002, "se_reserved"), error_in(text + "5"));
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

class BlockOf : public SyntaxError, public testing::WithParamInterface<Block> {
 protected:
  /// There must be one finding, at what stands behind `before`.
  void expect_finding(FindingId id, const std::string& before, const std::string& found,
                      const std::vector<std::string>& arguments = {}) {
    const Range range{before.size(), before.size() + found.size()};
    EXPECT_EQ((Findings{{id, range, arguments}}), diagnostics.findings()) << before << found;
  }
};

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
  const std::string opening = std::string("VQconfig\n") + GetParam().opening + "\n";
  for (const KeywordRow& row : keyword_table) {
    const std::string shown = error_in(opening + row.word);
    if (is_among(GetParam().words, row.word)) {
      EXPECT_TRUE(shown == error(3, "'='") || shown == error(3, "se_string")) << row.word << ": " << shown;
    } else {
      EXPECT_EQ(error(3, "se_unexpected_keyword"), shown) << row.word;
      expect_finding(misplaced_word, opening, row.word, {row.word});
    }
  }
}

TEST_P(BlockOf, TakesNoOtherTokens) {
  const bool top = std::string(GetParam().name) == "document";
  const std::string opening = std::string("VQconfig\n") + GetParam().opening + "\n";
  for (const char* token : {"word", "'string'", "5", "-5"}) {
    EXPECT_EQ(error(3, top ? "se_reserved" : "se_unexpected_keyword"), error_in(opening + token)) << token;
    const std::string shown = token[0] == '\'' ? "string" : token;
    top ? expect_finding(unknown_item, opening, token) : expect_finding(misplaced_word, opening, token, {shown});
  }
  for (const char* text : {";", ",", "{", "=", "#", "-", "/\t", "/\r", "\xe9"}) {
    const std::string token(text, 1);  // a slash is skipped, and found all the same
    EXPECT_EQ(error(3, top ? "se_reserved" : "'}'"), error_in(opening + text)) << text;
    top ? expect_finding(unknown_item, opening, token) : expect_finding(misplaced_word, opening, token, {token});
  }
}

}  // namespace
