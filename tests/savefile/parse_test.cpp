#include "vqc/cmd/savefile/parse.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "support/document.h"
#include "vqc/cmd/model/alias.h"
#include "vqc/cmd/model/header.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/model/widgetedit.h"

namespace {

// Opening, beginning and ending a document.

class ParseIt : public DocumentTest {
 protected:
  ParseIt() {
    messages.texts["file_open_fail"] = "cannot open %s: %s";
    titles.clear();
    document_hooks.titled = [](const char* title) { titles.emplace_back(title); };
  }

  /// Reads the file `file` that is there, or not.
  int parse(const std::string& file, int fresh = 1) {
    path = file.c_str();
    return parseit(&path, fresh);
  }

  Text path;
  inline static Names titles;
};

TEST_F(ParseIt, NeedsAName) {
  EXPECT_EQ(0, parseit(nullptr, 1));
  EXPECT_EQ(0, parseit(&path, 1));
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(ParseIt, ReadsTheShortestDocument) {
  const std::string file = folder.with("document.vqc", "VQconfig");
  EXPECT_EQ(1, parse(file));
  EXPECT_STREQ(file.c_str(), path);
  EXPECT_EQ(Names{file}, titles);
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(ParseIt, AFileThatCannotBeOpenedLosesItsNameAndLeavesTheModel) {
  alias_add("A");
  const std::string file = folder / "missing/document.vqc";
  EXPECT_EQ(0, parse(file));
  EXPECT_EQ(nullptr, path.c_str());
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(Names{}, titles);
  EXPECT_EQ(Messages{"cannot open " + file + ": " + std::strerror(ENOENT)}, messages.shown);
}

TEST_F(ParseIt, AFolderCannotBeOpenedAndLeavesTheModel) {
  alias_add("A");
  EXPECT_EQ(0, parse(folder.path()));
  EXPECT_EQ(nullptr, path.c_str());
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(Names{}, titles);
  EXPECT_EQ(Messages{"cannot open " + folder.path() + ": " + std::strerror(EISDIR)}, messages.shown);
}

TEST_F(ParseIt, AFreshDocumentReplacesTheModel) {
  new_family("F");
  alias_add("A");
  page_add("own");
  set_code_file("code.c");
  stop_list_set("XmFrame");
  vqc_set_aliases_variable("mine");
  EXPECT_EQ(1, read_document("VQconfig header 'a.h'"));
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, alias_count());
  EXPECT_EQ(0, page_count());
  EXPECT_EQ(0, popup_count());
  EXPECT_EQ(1, codeheader_count());
  EXPECT_EQ(nullptr, code_generate_name());
  EXPECT_EQ(nullptr, excluded_classes.c_str());
  EXPECT_STREQ("aliases", vqc_get_aliases_variable());
}

TEST_F(ParseIt, AnyOtherDocumentIsAdded) {
  alias_add("A");
  EXPECT_EQ(1, merge_document("VQconfig alias 'B' {}"));
  EXPECT_EQ((Names{"A", "B"}), names_in(alias_pool.list));
  EXPECT_EQ(Names{}, titles);
}

TEST_F(ParseIt, AddingMarksTheDocumentChangedOnlyByWhatIsNew) {
  alias_add("A");
  dirty = false;
  merge_document("VQconfig code_name = 'x' alias 'A' { to_name = 'T' }");
  EXPECT_FALSE(dirty);
  merge_document("VQconfig alias 'B' {}");
  EXPECT_TRUE(dirty);
}

TEST_F(ParseIt, AnAddedHeaderReplacesWhatItGives) {
  set_code_file("old_code.c");
  set_config_file("old_config.c");
  stop_list_set("XmFrame");
  merge_document("VQconfig code_name='new_code.c' stop_list='XmForm'");
  EXPECT_STREQ("new_code.c", code_generate_name());
  EXPECT_STREQ("old_config.c", config_generate_name());
  EXPECT_STREQ("XmForm", excluded_classes);
}

TEST_F(ParseIt, WhatDoesNotBeginAsADocumentIsNone) {
  for (const char* text : {"", "! nothing", "vqconfig", "'VQconfig'", "VQconfig2", "family 'F' {}", "\xff", "12"}) {
    messages.shown.clear();
    alias_add("A");
    EXPECT_EQ(0, parse(folder.with("document.vqc", text))) << text;
    EXPECT_EQ(Messages{"bad_save_file"}, messages.shown) << text;
    EXPECT_EQ(0, alias_count()) << text;
    EXPECT_EQ(nullptr, path.c_str()) << text;
  }
  EXPECT_EQ(0, parse_errors);
  EXPECT_EQ(Names{}, titles);
}

TEST_F(ParseIt, WhatIsNoDocumentIsNotAdded) {
  alias_add("A");
  const std::string file = folder.with("document.vqc", "nothing");
  EXPECT_EQ(0, parse(file, 0));
  EXPECT_EQ(1, alias_count());
  EXPECT_STREQ(file.c_str(), path);
  EXPECT_EQ(Messages{"bad_save_file"}, messages.shown);
}

TEST_F(ParseIt, ABadHeaderLeavesAnEmptyDocument) {
  alias_add("A");
  EXPECT_EQ(0, parse(folder.with("document.vqc", "VQconfig\ncode_name='a' config_name=5")));
  EXPECT_EQ(Messages{"Syntax error on line 2: se_string"}, messages.shown);
  EXPECT_EQ(1, parse_errors);
  EXPECT_EQ(0, alias_count());
  EXPECT_EQ(nullptr, code_generate_name());
  EXPECT_EQ(nullptr, path.c_str());
  EXPECT_EQ(Names{}, titles);
}

TEST_F(ParseIt, AnItemErrorKeepsWhatCameBefore) {
  const std::string file = folder.with("document.vqc", "VQconfig alias 'A' { to_name='T' ; } alias 'B' {}");
  EXPECT_EQ(1, parse(file));
  EXPECT_EQ(Names{"A"}, names_in(alias_pool.list));
  EXPECT_STREQ("T", alias_ptr("A")->to_name);
  EXPECT_STREQ(file.c_str(), path);
  EXPECT_EQ(Names{file}, titles);
}

TEST_F(ParseIt, ShowsTheFirstSyntaxErrorOnly) {
  read_document("VQconfig\n5");
  read_document("VQconfig\n\n6");
  EXPECT_EQ(Messages{"Syntax error on line 2: se_reserved"}, messages.shown);
  EXPECT_EQ(2, parse_errors);
}

TEST_F(ParseIt, ShowsABadFileAfterASyntaxErrorToo) {
  read_document("VQconfig 5");
  read_document("nothing");
  EXPECT_EQ((Messages{"Syntax error on line 1: se_reserved", "bad_save_file"}), messages.shown);
  EXPECT_EQ(1, parse_errors);
}

TEST_F(ParseIt, ReadsADocumentAfterASyntaxErrorWhole) {
  read_document("VQconfig 5");
  EXPECT_EQ(1, read_document("VQconfig alias 'A' {} alias 'B' {}"));
  EXPECT_EQ(2, alias_count());
  EXPECT_EQ(1, parse_errors);
}

TEST_F(ParseIt, WordsASyntaxErrorByTheResourceFile) {
  messages.texts["syntax_error"] = "line %d: %s";
  messages.texts["se_reserved"] = "a keyword is expected";
  read_document("VQconfig\n5");
  EXPECT_EQ(Messages{"line 2: a keyword is expected"}, messages.shown);
}

TEST_F(ParseIt, IsSilentWithoutMessages) {
  message_sink = nullptr;
  EXPECT_EQ(1, read_document("VQconfig alias 'A' {} 5"));
  EXPECT_EQ(1, parse_errors);
  EXPECT_EQ(1, alias_count());
}

TEST_F(ParseIt, AFamilyWithoutANameEndsReadingSilently) {
  EXPECT_EQ(1, read_document("VQconfig alias 'A' {} family '' {} alias 'B' {}"));
  EXPECT_EQ(Names{"A"}, names_in(alias_pool.list));
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, parse_errors);
  EXPECT_EQ(Messages{}, messages.shown);
}

// The header.

class ReadHeader : public DocumentTest {};

TEST_F(ReadHeader, SetsAllNames) {
  ASSERT_EQ(1, read_document("VQconfig code_name='code.c' config_name='config.c' stubs_name='stubs.c'\n"
                             "generate_family_table_string='table' generate_family_name_string='names'\n"
                             "generate_xwidget_string='widgets' generate_stop_list_string='stops'\n"
                             "generate_popup_string='popups_' generate_page_name_string='pages'\n"
                             "generate_family_count_string='count' generate_enumeration_string='enums'\n"
                             "generate_converter_string='convs' generate_alias_string='aliases_'\n"
                             "stop_list = 'XmFrame,XmLabel'"));
  EXPECT_STREQ("code.c", code_generate_name());
  EXPECT_STREQ("config.c", config_generate_name());
  EXPECT_STREQ("stubs.c", stubs_generate_name());
  EXPECT_STREQ("table", vqc_get_family_table_variable());
  EXPECT_STREQ("names", vqc_get_family_names_variable());
  EXPECT_STREQ("widgets", vqc_get_xwidgets_variable());
  EXPECT_STREQ("stops", vqc_get_stop_list_variable());
  EXPECT_STREQ("popups_", vqc_get_popups_variable());
  EXPECT_STREQ("pages", vqc_get_page_names_variable());
  EXPECT_STREQ("count", vqc_get_family_count_variable());
  EXPECT_STREQ("enums", vqc_get_enumerations_variable());
  EXPECT_STREQ("convs", vqc_get_converters_variable());
  EXPECT_STREQ("aliases_", vqc_get_aliases_variable());
  EXPECT_STREQ("XmFrame,XmLabel", excluded_classes);
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(ReadHeader, TakesWordsForNames) {
  ASSERT_EQ(1, read_document("VQconfig code_name = code.c generate_alias_string = mine stop_list = XmFrame"));
  EXPECT_STREQ("code.c", code_generate_name());
  EXPECT_STREQ("mine", vqc_get_aliases_variable());
  EXPECT_STREQ("XmFrame", excluded_classes);
}

TEST_F(ReadHeader, TakesEmptyNamesForNone) {
  ASSERT_EQ(1, read_document("VQconfig code_name='' generate_alias_string='' stop_list=''"));
  EXPECT_EQ(nullptr, code_generate_name());
  EXPECT_EQ(nullptr, name_options.aliases.document.c_str());
  EXPECT_EQ(nullptr, excluded_classes.c_str());
}

TEST_F(ReadHeader, EndsANameAtItsFirstNul) {
  ASSERT_EQ(1, read_document("VQconfig code_name='a\\0b' generate_alias_string='\\0x'"));
  EXPECT_STREQ("a", code_generate_name());
  EXPECT_EQ(nullptr, name_options.aliases.document.c_str());
}

TEST_F(ReadHeader, KeepsANameThatEqualsItsDefault) {
  ASSERT_EQ(1, read_document("VQconfig generate_alias_string='aliases'"));
  EXPECT_STREQ("aliases", name_options.aliases.document);
}

TEST_F(ReadHeader, HasAnOrder) {
  EXPECT_EQ(1, read_document("VQconfig\nstop_list='XmFrame'\ncode_name='code.c'"));
  EXPECT_EQ(Messages{"Syntax error on line 3: se_unexpected_keyword"}, messages.shown);
  EXPECT_STREQ("XmFrame", excluded_classes);
  EXPECT_EQ(nullptr, code_generate_name());
}

TEST_F(ReadHeader, HasEachKeyOnce) {
  EXPECT_EQ(1, read_document("VQconfig code_name='a'\ncode_name='b'"));
  EXPECT_EQ(Messages{"Syntax error on line 2: se_unexpected_keyword"}, messages.shown);
  EXPECT_STREQ("a", code_generate_name());
}

}  // namespace
