#include "vqc/cmd/savefile/load.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "support/document.h"

using namespace vqc;

namespace {

using enum FindingId;

// Beginning and ending a document.

class Load : public DocumentTest {};

TEST_F(Load, ReadsTheShortestDocument) {
  const LoadResult result = read_document("VQconfig");
  EXPECT_TRUE(result.has_header);
  EXPECT_FALSE(result.first_error);
  EXPECT_FALSE(result.out_of_memory);
  EXPECT_TRUE(diagnostics.empty());
  EXPECT_FALSE(document.dirty);
}

TEST_F(Load, AddsToTheDocument) {
  document.ensure(document.aliases, "A");
  EXPECT_TRUE(read_document("VQconfig alias 'B' {}").has_header);
  EXPECT_EQ((Names{"A", "B"}), names_in(document.aliases));
}

TEST_F(Load, MarksTheDocumentChangedOnlyByWhatIsNew) {
  document.ensure(document.aliases, "A");
  document.dirty = false;
  read_document("VQconfig code_name = 'x' alias 'A' { to_name = 'T' }");
  EXPECT_FALSE(document.dirty);
  read_document("VQconfig alias 'B' {}");
  EXPECT_TRUE(document.dirty);
}

TEST_F(Load, AnAddedHeaderReplacesWhatItGives) {
  document.output_names.code = "old_code.c";
  document.output_names.config = "old_config.c";
  document.excluded_classes = "XmFrame";
  read_document("VQconfig code_name='new_code.c' stop_list='XmForm'");
  EXPECT_EQ("new_code.c", document.output_names.code);
  EXPECT_EQ("old_config.c", document.output_names.config);
  EXPECT_EQ("XmForm", document.excluded_classes);
}

TEST_F(Load, WhatDoesNotBeginAsADocumentIsNone) {
  for (const char* marked :
       {"<>", "! nothing<>", "<vqconfig>", "<'VQconfig'>", "<VQconfig2>", "<family> 'F' {}", "<\xff>", "<12>"}) {
    const MarkedText text(marked);
    const LoadResult result = read_document(text.text);
    EXPECT_FALSE(result.has_header) << marked;
    EXPECT_FALSE(result.first_error) << marked;
    EXPECT_EQ((Findings{{no_document, text.ranges.front()}}), diagnostics.findings()) << marked;
    EXPECT_EQ("VQconfig\n", saved(document)) << marked;
  }
}

TEST_F(Load, WhatIsNoDocumentIsNotAdded) {
  document.ensure(document.aliases, "A");
  EXPECT_FALSE(read_document("nothing alias 'B' {}", AfterError::go_on).has_header);
  EXPECT_EQ(Names{"A"}, names_in(document.aliases));
}

TEST_F(Load, ABadHeaderEndsReading) {
  const LoadResult result = read_document("VQconfig\ncode_name='a' config_name=5 alias 'A' {}");
  EXPECT_FALSE(result.has_header);
  ASSERT_TRUE(result.first_error);
  EXPECT_EQ("se_string", result.first_error->message);
  EXPECT_EQ(2, result.first_error->line);
  EXPECT_EQ(0U, document.aliases.size());
}

TEST_F(Load, AnItemErrorKeepsWhatCameBefore) {
  const LoadResult result = read_document("VQconfig alias 'A' { to_name='T' ; } alias 'B' {}");
  EXPECT_TRUE(result.has_header);
  EXPECT_TRUE(result.first_error);
  EXPECT_EQ(Names{"A"}, names_in(document.aliases));
  EXPECT_EQ("T", document.aliases.find("A")->to_name);
}

TEST_F(Load, ReadsADocumentAfterASyntaxErrorWhole) {
  EXPECT_TRUE(read_document("VQconfig 5").first_error);
  EXPECT_FALSE(read_document("VQconfig alias 'A' {} alias 'B' {}").first_error);
  EXPECT_EQ(2U, document.aliases.size());
}

TEST_F(Load, StatesItsOwnErrorWhateverWasFoundBefore) {
  Diagnostics findings;
  load(Source::from_text("nothing"), document, findings);
  const LoadResult result = load(Source::from_text("VQconfig 5"), document, findings);
  EXPECT_EQ(2U, findings.findings().size());
  ASSERT_TRUE(result.first_error);
  EXPECT_EQ("se_reserved", result.first_error->message);
}

TEST_F(Load, AFamilyWithoutANameEndsReadingAndIsStatedNowhere) {
  const MarkedText text("VQconfig alias 'A' {} family <''> {} alias 'B' {}");
  const LoadResult result = read_document(text.text);
  EXPECT_TRUE(result.has_header);
  EXPECT_FALSE(result.first_error);
  EXPECT_EQ((Findings{{nameless_family, text.ranges.front()}}), diagnostics.findings());
  EXPECT_EQ(Names{"A"}, names_in(document.aliases));
  EXPECT_EQ(0U, document.families.size());
}

TEST_F(Load, TheDocumentKeepsTheTextsOfASourceThatNobodyElseHas) {
  for (int i = 0; i < 3; ++i) read_document("VQconfig alias 'name" + std::to_string(i) + "' { to_name = 'T\\65' }");
  EXPECT_EQ((Names{"name0", "name1", "name2"}), names_in(document.aliases));
  for (const AliasDef& alias : document.aliases) EXPECT_EQ("TA", alias.to_name);
}

TEST_F(Load, DocumentsDoNotDisturbEachOther) {
  Document other;
  Diagnostics of_other;
  load(Source::from_text("VQconfig alias 'A' { to_name='T' } 5"), other, of_other);
  read_document("VQconfig alias 'A' { to_name='U' } alias 'B' {}");
  EXPECT_EQ(1U, of_other.findings().size());
  EXPECT_TRUE(diagnostics.empty());
  EXPECT_EQ("VQconfig\nalias 'A' {\n\tto_name='T'\n}\n", saved(other));
  EXPECT_EQ("VQconfig\nalias 'A' {\n\tto_name='U'\n}\nalias 'B' {\n}\n", saved(document));
}

// The header.

class ReadHeader : public DocumentTest {
 protected:
  /// Reads a text that must have no fault.
  void read(std::string_view text) {
    EXPECT_TRUE(read_document(text).has_header) << text;
    EXPECT_EQ(Findings{}, diagnostics.findings()) << text;
  }

  /// Reads a text with a key where none may stand, which is where the mark is, on that line.
  void expect_misplaced(const char* marked, const char* key, int line) {
    const MarkedText text(marked);
    const LoadResult result = read_document(text.text);
    EXPECT_TRUE(result.has_header);
    ASSERT_TRUE(result.first_error);
    EXPECT_EQ("se_unexpected_keyword", result.first_error->message);
    EXPECT_EQ(line, result.first_error->line);
    EXPECT_EQ((Findings{{misplaced_word, text.ranges.front(), {key}}}), diagnostics.findings());
  }
};

TEST_F(ReadHeader, SetsAllNames) {
  read(
      "VQconfig code_name='code.c' config_name='config.c' stubs_name='stubs.c'\n"
      "generate_family_table_string='table' generate_family_name_string='names'\n"
      "generate_xwidget_string='widgets' generate_stop_list_string='stops'\n"
      "generate_popup_string='popups_' generate_page_name_string='pages'\n"
      "generate_family_count_string='count' generate_enumeration_string='enums'\n"
      "generate_converter_string='convs' generate_alias_string='aliases_'\n"
      "stop_list = 'XmFrame,XmLabel'");
  EXPECT_EQ("code.c", document.output_names.code);
  EXPECT_EQ("config.c", document.output_names.config);
  EXPECT_EQ("stubs.c", document.output_names.stubs);
  EXPECT_EQ("table", document.names.family_table.value());
  EXPECT_EQ("names", document.names.family_names.value());
  EXPECT_EQ("widgets", document.names.xwidgets.value());
  EXPECT_EQ("stops", document.names.stop_list.value());
  EXPECT_EQ("popups_", document.names.popups.value());
  EXPECT_EQ("pages", document.names.page_names.value());
  EXPECT_EQ("count", document.names.family_count.value());
  EXPECT_EQ("enums", document.names.enumerations.value());
  EXPECT_EQ("convs", document.names.converters.value());
  EXPECT_EQ("aliases_", document.names.aliases.value());
  EXPECT_EQ("XmFrame,XmLabel", document.excluded_classes);
}

TEST_F(ReadHeader, TakesWordsForNames) {
  read("VQconfig code_name = code.c generate_alias_string = mine stop_list = XmFrame");
  EXPECT_EQ("code.c", document.output_names.code);
  EXPECT_EQ("mine", document.names.aliases.value());
  EXPECT_EQ("XmFrame", document.excluded_classes);
}

TEST_F(ReadHeader, TakesEmptyNamesForNone) {
  read("VQconfig code_name='' generate_alias_string='' stop_list=''");
  EXPECT_EQ(nullptr, document.output_names.code);
  EXPECT_EQ(nullptr, document.names.aliases.document);
  EXPECT_EQ(nullptr, document.excluded_classes);
}

TEST_F(ReadHeader, EndsANameAtItsFirstNul) {
  read("VQconfig code_name='a\\0b' generate_alias_string='\\0x'");
  EXPECT_EQ("a", document.output_names.code);
  EXPECT_EQ(nullptr, document.names.aliases.document);
}

TEST_F(ReadHeader, KeepsANameThatEqualsItsDefault) {
  read("VQconfig generate_alias_string='aliases'");
  EXPECT_EQ("aliases", document.names.aliases.document);
}

TEST_F(ReadHeader, HasAnOrder) {
  expect_misplaced("VQconfig\nstop_list='XmFrame'\n<code_name>='code.c'", "code_name", 3);
  EXPECT_EQ("XmFrame", document.excluded_classes);
  EXPECT_EQ(nullptr, document.output_names.code);
}

TEST_F(ReadHeader, HasEachKeyOnce) {
  expect_misplaced("VQconfig code_name='a'\n<code_name>='b'", "code_name", 2);
  EXPECT_EQ("a", document.output_names.code);
}

}  // namespace
