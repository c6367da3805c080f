#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <regex>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/editors/gendlg.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/generate/generate.h"

using namespace vqc;

namespace {

const char document[] = "VQconfig\nwidget 'Dial' {\nrealise='make_dial'\n}\nfamily 'A' {\nwidget='Dial'\n}\n";
const char with_knob[] =
    "VQconfig\nwidget 'Knob' {\nrealise='make_knob'\n}\nfamily 'A' {\nwidget='Knob'\n}\nfamily 'B' {\n}\n";

class GenerateAll : public Session {
 protected:
  std::string config() const { return folder / "document_config.c"; }
  std::string code() const { return folder / "document_code.c"; }
  std::string stubs() const { return folder / "document_stubs.c"; }
  static std::string newest(const std::string& path) {
    const std::vector<Version> versions = Versions(versions_folder()).of(path);
    return versions.empty() ? "" : Versions(versions_folder()).text(versions.front()).value_or("");
  }

  static void open_window() { choose_menu("family_generate_cascade", "family_genallb"); }
  /// Generates without looking.
  static void generate() {
    open_window();
    ASSERT_TRUE(is_shown("genall_dialog"));
    press("genall_generateb");
    ASSERT_FALSE(is_shown("genall_dialog"));
  }
  /// Opens another document under the same name, so that the same files belong to it.
  void change_document_to(const char* text) const { open_file(folder.with("document.vqc", text)); }

  /// What is said of a file, which stands behind its name.
  static std::string words(const std::string& leaf) {
    for (const std::string& row : items("genall_list")) {
      if (row.starts_with(leaf)) return std::regex_replace(row.substr(leaf.size()), std::regex("^ +"), "");
    }
    return "no row of " + leaf;
  }
  static bool shows(const std::string& line) {
    const Items lines = items("genall_text");
    return std::ranges::find(lines, line) != lines.end();
  }
  static std::string said() { return label("status_line.status_said"); }
};

TEST_F(GenerateAll, ShowsWhatEachFileWouldHoldAndWritesNothing) {
  open_document(document);
  open_window();
  ASSERT_TRUE(is_shown("genall_dialog"));
  EXPECT_TRUE(words("document_config.c").starts_with("new: ")) << words("document_config.c");
  EXPECT_TRUE(words("document_stubs.c").starts_with("adds 1, new: ")) << words("document_stubs.c");
  EXPECT_EQ(config(), items("genall_text").front());
  click_row("genall_list", 3);
  EXPECT_EQ(stubs(), items("genall_text").front());
  EXPECT_TRUE(shows("+Widget make_dial(char       *name,"));
  press("genall_closeb");
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_FALSE(std::filesystem::exists(config()));
}

TEST_F(GenerateAll, ReadsNoDocumentThatHasNoEnd) {
  open_document(document);
  const std::string path = folder / "document.vqc";
  std::filesystem::remove(path);
  ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
  open_window();
  EXPECT_TRUE(is_shown("genall_dialog"));
}

TEST_F(GenerateAll, WritesWhatTheCommandsForOneFileWrite) {
  open_document(document);
  generate();
  for (const int kind : {CONFIG_FILE, CODE_FILE, STUBS_FILE}) {
    const std::string alone = folder / "alone.c";
    ASSERT_TRUE(generate_file(edited_document, alone.c_str(), all_families(edited_document), kind, chosen_switches()));
    EXPECT_EQ(read_file(alone), read_file(batch_file_name(folder / "document.vqc", kind)));
  }
  EXPECT_EQ(0U, said().find("Wrote document_config.c: "));
  EXPECT_NE(std::string::npos, said().find("document_stubs.c: "));
}

TEST_F(GenerateAll, LeavesTheDocumentAsItIs) {
  open_document(document);
  generate();
  EXPECT_FALSE(dirty);
  EXPECT_FALSE(edited_document.output_names.config);
  EXPECT_EQ(document, read_file(folder / "document.vqc"));
}

TEST_F(GenerateAll, UsesTheNamesThatTheDocumentRemembers) {
  open_document("VQconfig\ncode_name='other.c'\nfamily 'A' {\n}\n");
  generate();
  EXPECT_TRUE(std::filesystem::exists(folder / "other.c"));
  EXPECT_FALSE(std::filesystem::exists(code()));
}

TEST_F(GenerateAll, LeavesUnchangedFilesAlone) {
  open_document(document);
  generate();
  const auto time = std::filesystem::last_write_time(config());
  open_window();
  EXPECT_EQ("unchanged", words("document_config.c"));
  EXPECT_EQ("unchanged", words("document_stubs.c"));
  EXPECT_FALSE(is_sensitive("genall_generateb"));
  EXPECT_EQ(resource_text("genall_same"), said());
  EXPECT_EQ(time, std::filesystem::last_write_time(config()));
}

TEST_F(GenerateAll, KeepsWhatWasWrittenInStubsAndRetiresOthers) {
  open_document(document);
  generate();
  const std::string body = std::regex_replace(read_file(stubs()), std::regex("/\\* FIXME \\*/"), "mine();");
  write_file(stubs(), body);
  change_document_to(with_knob);
  open_window();
  EXPECT_TRUE(words("document_stubs.c").starts_with("adds 1, retires 1, ")) << words("document_stubs.c");
  press("genall_generateb");
  EXPECT_NE(std::string::npos, read_file(stubs()).find("mine();"));
  EXPECT_NE(std::string::npos, read_file(stubs()).find("make_knob"));
  EXPECT_EQ(body, newest(stubs()));
}

TEST_F(GenerateAll, KeepsWhatFilesHeldOncePerContent) {
  open_document(document);
  folder.with("document_config.c", "by hand\n");
  generate();
  EXPECT_EQ("by hand\n", newest(config()));
  EXPECT_EQ(1U, Versions(versions_folder()).of(config()).size());
  EXPECT_TRUE(Versions(versions_folder()).of(code()).empty());
}

TEST_F(GenerateAll, WritesNothingWhereStubsCannotBeKept) {
  open_document(document);
  const std::string text = "Widget make_dial(\n#if X\nint a)\n#else\nint b)\n#endif\n{\n";
  folder.with("document_stubs.c", text);
  open_window();
  ASSERT_TRUE(is_shown("genall_dialog"));
  EXPECT_EQ(resource_text("genall_blocked"), words("document_stubs.c"));
  EXPECT_EQ(resource_text("genall_blocked_so"), said());
  EXPECT_FALSE(is_sensitive("genall_generateb"));
  click_row("genall_list", 3);
  ASSERT_LT(1U, items("genall_text").size());
  EXPECT_EQ(0U, items("genall_text")[1].find("line "));
  EXPECT_EQ(text, read_file(stubs()));
  EXPECT_FALSE(std::filesystem::exists(config()));
}

TEST_F(GenerateAll, RefusesADocumentOfWhichTheFileHasErrors) {
  open_document("VQconfig\nfamily 'A' {\n}\nfamily {\n");
  press("error_messageb.Cancel");
  open_window();
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_EQ(0U, said().find("Nothing generated, errors: ")) << said();
  EXPECT_FALSE(std::filesystem::exists(config()));
  press("family_saveb");  // which leaves what was read
  generate();
  EXPECT_TRUE(std::filesystem::exists(config()));
}

TEST_F(GenerateAll, ADocumentWithoutANameHasToBeSavedFirst) {
  start();
  add_family("A");
  open_window();
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_EQ(resource_text("genall_unnamed"), said());
}

TEST_F(GenerateAll, WritesNeitherTheDocumentNorAFileTwice) {
  open_document("VQconfig\nconfig_name='document.vqc'\nfamily 'A' {\n}\n");
  open_window();
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_NE(std::string::npos, said().find("document.vqc is the document"));
  change_document_to("VQconfig\nconfig_name='document_code.c'\nfamily 'A' {\n}\n");
  open_window();
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_NE(std::string::npos, said().find("document_code.c would be written twice"));
}

TEST_F(GenerateAll, ShowsAgainWhatHasChangedMeanwhile) {
  open_document(document);
  open_window();
  folder.with("document_config.c", "by another hand\n");
  press("genall_generateb");
  ASSERT_TRUE(is_shown("genall_dialog"));
  EXPECT_EQ(resource_text("genall_changed"), said());
  EXPECT_EQ("by another hand\n", read_file(config()));
  EXPECT_TRUE(shows("-by another hand"));
  press("genall_generateb");
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_EQ("by another hand\n", newest(config()));
}

TEST_F(GenerateAll, SaysWhatCannotBeWritten) {
  open_document("VQconfig\ncode_name='missing/code.c'\nfamily 'A' {\n}\n");
  open_window();
  EXPECT_FALSE(is_shown("genall_dialog"));
  EXPECT_NE(std::string::npos, said().find("missing/code.c"));
  EXPECT_FALSE(std::filesystem::exists(config()));
}

}  // namespace
