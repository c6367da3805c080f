#include "vqc/cmd/editors/document_files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <optional>
#include <string>

#include "support/edited_document.h"
#include "support/files.h"
#include "support/messages.h"

using namespace vqc;

namespace {

using namespace vqc::editors;

// Opening, beginning and ending a document.

class DocumentFiles : public EditedDocumentTest {
 protected:
  DocumentFiles() { parse_errors = 0; }
  ~DocumentFiles() override { parse_errors = 0; }

  /// Reads `text` as a document, by default in place of the one that is there.
  int read_document(std::string_view text, int fresh = 1) { return parse(folder.with("document.vqc", text), fresh); }

  /// Adds the document `text` to the one that is there.
  int merge_document(std::string_view text) { return read_document(text, 0); }

  /// Reads the file `file` that is there, or not.
  int parse(const std::string& file, int fresh = 1) {
    path = file;
    return parseit(path, fresh);
  }

  RecordedMessages messages;
  TemporaryFolder folder;
  std::optional<std::string> path;
};

class ParseIt : public DocumentFiles {
 protected:
  ParseIt() { messages.texts["file_open_fail"] = "cannot open %s: %s"; }
};

TEST_F(ParseIt, NeedsAName) {
  EXPECT_EQ(0, parseit(path, 1));
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(ParseIt, ReadsTheShortestDocument) {
  const std::string file = folder.with("document.vqc", "VQconfig");
  EXPECT_EQ(1, parse(file));
  EXPECT_EQ(file, path);
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(ParseIt, AFileThatCannotBeOpenedLosesItsNameAndLeavesTheModel) {
  alias_add("A");
  const std::string file = folder / "missing/document.vqc";
  EXPECT_EQ(0, parse(file));
  EXPECT_EQ(std::nullopt, path);
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(Messages{"cannot open " + file + ": " + std::strerror(ENOENT)}, messages.shown);
}

TEST_F(ParseIt, AFolderCannotBeOpenedAndLeavesTheModel) {
  alias_add("A");
  EXPECT_EQ(0, parse(folder.path()));
  EXPECT_EQ(std::nullopt, path);
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(Messages{"cannot open " + folder.path() + ": " + std::strerror(EISDIR)}, messages.shown);
}

TEST_F(ParseIt, AFreshDocumentReplacesTheModel) {
  new_family("F");
  alias_add("A");
  page_add("own");
  edited_document.output_names.code = "code.c";
  edited_document.excluded_classes = "XmFrame";
  vqc_set_aliases_variable("mine");
  EXPECT_EQ(1, read_document("VQconfig header 'a.h'"));
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, alias_count());
  EXPECT_EQ(0, page_count());
  EXPECT_EQ(0, popup_count());
  EXPECT_EQ(1, codeheader_count());
  EXPECT_EQ(nullptr, edited_document.output_names.code);
  EXPECT_EQ(nullptr, edited_document.excluded_classes);
  EXPECT_EQ("aliases", vqc_get_aliases_variable());
}

TEST_F(ParseIt, AnyOtherDocumentIsAdded) {
  alias_add("A");
  EXPECT_EQ(1, merge_document("VQconfig alias 'B' {}"));
  EXPECT_EQ((Names{"A", "B"}), names_in(edited_document.aliases));
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
  edited_document.output_names.code = "old_code.c";
  edited_document.output_names.config = "old_config.c";
  edited_document.excluded_classes = "XmFrame";
  merge_document("VQconfig code_name='new_code.c' stop_list='XmForm'");
  EXPECT_EQ("new_code.c", edited_document.output_names.code);
  EXPECT_EQ("old_config.c", edited_document.output_names.config);
  EXPECT_EQ("XmForm", edited_document.excluded_classes);
}

TEST_F(ParseIt, WhatDoesNotBeginAsADocumentIsNone) {
  for (const char* text : {"", "! nothing", "vqconfig", "'VQconfig'", "VQconfig2", "family 'F' {}", "\xff", "12"}) {
    messages.shown.clear();
    alias_add("A");
    EXPECT_EQ(0, parse(folder.with("document.vqc", text))) << text;
    EXPECT_EQ(Messages{"bad_save_file"}, messages.shown) << text;
    EXPECT_EQ(0, alias_count()) << text;
    EXPECT_EQ(std::nullopt, path) << text;
  }
  EXPECT_EQ(0, parse_errors);
}

TEST_F(ParseIt, WhatIsNoDocumentIsNotAdded) {
  alias_add("A");
  const std::string file = folder.with("document.vqc", "nothing");
  EXPECT_EQ(0, parse(file, 0));
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(file, path);
  EXPECT_EQ(Messages{"bad_save_file"}, messages.shown);
}

TEST_F(ParseIt, ABadHeaderLeavesAnEmptyDocument) {
  alias_add("A");
  EXPECT_EQ(0, parse(folder.with("document.vqc", "VQconfig\ncode_name='a' config_name=5")));
  EXPECT_EQ(Messages{"Syntax error on line 2: se_string"}, messages.shown);
  EXPECT_EQ(1, parse_errors);
  EXPECT_EQ(0, alias_count());
  EXPECT_EQ(nullptr, edited_document.output_names.code);
  EXPECT_EQ(std::nullopt, path);
}

TEST_F(ParseIt, AnItemErrorKeepsWhatCameBefore) {
  const std::string file = folder.with("document.vqc", "VQconfig alias 'A' { to_name='T' ; } alias 'B' {}");
  EXPECT_EQ(1, parse(file));
  EXPECT_EQ(Names{"A"}, names_in(edited_document.aliases));
  EXPECT_EQ("T", alias_ptr("A")->to_name);
  EXPECT_EQ(file, path);
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
  EXPECT_EQ(Names{"A"}, names_in(edited_document.aliases));
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, parse_errors);
  EXPECT_EQ(Messages{}, messages.shown);
}

// Saving.

using WriteSaveFile = DocumentFiles;

TEST_F(WriteSaveFile, ReplacesTheFileAndClearsDirty) {
  const std::string file = folder.with("document.vqc", std::string(1000, 'x'));
  dirty = true;
  EXPECT_TRUE(write_save_file(file.c_str()));
  EXPECT_EQ("VQconfig\n", read_file(file));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(WriteSaveFile, ChangesNothingWhenTheFileCannotBeOpened) {
  messages.texts["file_open_fail"] = "cannot open %s: %s";
  const std::string missing = folder / "missing/document.vqc";
  dirty = true;
  EXPECT_FALSE(write_save_file(missing.c_str()));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(Messages{"cannot open " + missing + ": " + std::strerror(ENOENT)}, messages.shown);
}

TEST_F(WriteSaveFile, RefusesAFolder) {
  dirty = true;
  EXPECT_FALSE(write_save_file(folder.path().c_str()));
  EXPECT_TRUE(dirty);
  EXPECT_EQ(Messages{"file_open_fail"}, messages.shown);
}

TEST_F(WriteSaveFile, GoesOnWhenTheDiskIsFull) {
  messages.texts["file_write_fail"] = "cannot write: %s";
  dirty = true;
  EXPECT_TRUE(write_save_file("/dev/full"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Messages{std::string("cannot write: ") + std::strerror(ENOSPC)}, messages.shown);
}

TEST_F(WriteSaveFile, GoesOnWhenALongDocumentDoesNotFit) {
  for (int i = 0; i < 10000; ++i) alias_add("some_alias_" + std::to_string(i));
  EXPECT_TRUE(write_save_file("/dev/full"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ(1U, messages.shown.size());  // a failure is remembered, and told at the end
}

}  // namespace
