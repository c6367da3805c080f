#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "application/run_program.h"

namespace {

using Files = std::vector<std::string>;

const Outcome silence{0, "", ""};

const char document[] = "VQconfig widget 'W' { realise='make' } family 'F' { widget='W' }";

class Batch : public ProgramTest {
 protected:
  Batch() { folder.with("w.vqc", document); }

  /// What is derived from the name of a save file for the code file.
  void expect_derived(const std::string& save_file, const std::string& code_file) const {
    folder.with(save_file, document);
    EXPECT_EQ(silence, run({"-c", save_file}));
    EXPECT_TRUE(exists(code_file)) << code_file;
    std::filesystem::remove(folder / code_file);
  }

  bool has_text(const std::string& name, const std::string& text) const {
    return read_file(folder / name).find(text) != std::string::npos;
  }
};

TEST_F(Batch, WritesThreeFilesOfTheDocument) {
  folder.with("Athena.vqc", document);
  EXPECT_EQ(silence, run({"-cCs", "Athena.vqc"}));
  EXPECT_EQ((Files{"Athena.vqc", "Athena_code.c", "Athena_config.c", "Athena_stubs.c", "w.vqc"}), files());
  EXPECT_TRUE(has_text("Athena_config.c", "\"F\", F_widgets, "));
  EXPECT_TRUE(has_text("Athena_code.c", "XWidgetClass_t xw_W={\n"));
  EXPECT_TRUE(has_text("Athena_stubs.c", "** vqconfig generated stub: make\n"));
  EXPECT_EQ(document, read_file(folder / "Athena.vqc"));
}

TEST_F(Batch, NamesAreDerivedFromTheSaveFile) {
  std::filesystem::create_directories(folder / "sub.vqc");
  expect_derived("w.vqc", "w_code.c");
  expect_derived("widgets", "widgets_code.c");
  expect_derived("a.vqc.bak", "a.vqc.bak_code.c");
  expect_derived("a.vqc.vqc", "a.vqc_code.c");
  expect_derived("a.VQC", "a.VQC_code.c");
  expect_derived("a.vq", "a.vq_code.c");
  expect_derived("avqc", "avqc_code.c");
  expect_derived(".vqc", "_code.c");
  expect_derived("sub.vqc/w.vqc", "sub.vqc/w_code.c");
  expect_derived("sub.vqc/w", "sub.vqc/w_code.c");
  expect_derived("100%s.vqc", "100%s_code.c");
}

TEST_F(Batch, LongNamesAreNotCut) {
  std::string deep;
  for (int i = 0; i < 10; ++i) deep += std::string(200, 'd') + "/";
  std::filesystem::create_directories(folder / deep);
  expect_derived(deep + "w.vqc", deep + "w_code.c");
}

TEST_F(Batch, NamesInTheDocumentAreNotConsulted) {
  folder.with("w.vqc", "VQconfig code_name='named_code.c' config_name='named_config.c' stubs_name='named_stubs.c'");
  EXPECT_EQ(silence, run({"-cCs", "w.vqc"}));
  EXPECT_EQ((Files{"w.vqc", "w_code.c", "w_config.c", "w_stubs.c"}), files());
}

TEST_F(Batch, NamesOfTablesAreTheDocumentsOrBuiltIn) {
  folder.with("w.vqc", "VQconfig generate_alias_string='my_aliases'");
  EXPECT_EQ(silence, run({"-C", "w.vqc"}));
  EXPECT_TRUE(has_text("w_config.c", "Type_alias_t my_aliases[] = {\n"));
  EXPECT_TRUE(has_text("w_config.c", "XFamily_t xw_families[] = {\n"));
}

TEST_F(Batch, MissingSaveFileIsNamed) {
  EXPECT_EQ((Outcome{255, "", "Cannot open file missing.vqc\n"}), run({"-c", "missing.vqc"}));
  EXPECT_EQ((Outcome{255, "", "Cannot open file no/100%s.vqc\n"}), run({"-c", "no/100%s.vqc"}));
  EXPECT_EQ((Outcome{255, "", "Cannot open file \n"}), run({"-cj", ""}));
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Batch, LinkToNowhereIsAMissingSaveFile) {
  std::filesystem::create_symlink("missing", folder / "link.vqc");
  EXPECT_EQ((Outcome{255, "", "Cannot open file link.vqc\n"}), run({"-c", "link.vqc"}));
}

TEST_F(Batch, SaveFileThatIsNoDocumentIsNotParsed) {
  folder.with("empty.vqc", "");
  folder.with("other.vqc", "vqconfig family 'F' { }");
  folder.with("key.vqc", "VQconfig code_name=");
  for (const std::string name : {"empty.vqc", "other.vqc", "key.vqc", "/dev/null"}) {
    EXPECT_EQ((Outcome{255, "", "Could not parse file " + name + "\n"}), run({"-c", "out.c", name}));
  }
  EXPECT_FALSE(exists("out.c"));
}

TEST_F(Batch, FolderIsNoDocument) {
  std::filesystem::create_directory(folder / "d.vqc");
  EXPECT_EQ((Outcome{255, "", "Could not parse file d.vqc\n"}), run({"-c", "out.c", "d.vqc"}));
  EXPECT_FALSE(exists("out.c"));
}

TEST_F(Batch, SyntaxErrorInAnItemIsSilentAndKeepsWhatCameBefore) {
  folder.with("w.vqc", "VQconfig family 'F' { widget='V' widget=; widget='W' } family 'G' { }");
  EXPECT_EQ(silence, run({"-C", "w.vqc"}));
  EXPECT_TRUE(has_text("w_config.c", "int xw_family_count = 1;\n"));
  EXPECT_TRUE(has_text("w_config.c", "extern XWidgetClass_t xw_V;\n"));
  EXPECT_FALSE(has_text("w_config.c", "xw_W"));
}

TEST_F(Batch, FailureEndsTheRunInTheOrderOfTheFiles) {
  EXPECT_EQ((Outcome{1, "", "Cannot open configuration file no/out.c\n"}), run({"-csC", "no/out.c", "w.vqc"}));
  EXPECT_EQ(Files{"w.vqc"}, files());
  EXPECT_EQ((Outcome{1, "", "Cannot open code file no/out.c\n"}), run({"-sCc", "no/out.c", "w.vqc"}));
  EXPECT_EQ((Files{"w.vqc", "w_config.c"}), files());
  EXPECT_EQ((Outcome{1, "", "Cannot open stubs file no/out.c\n"}), run({"-cCs", "no/out.c", "w.vqc"}));
  EXPECT_EQ((Files{"w.vqc", "w_code.c", "w_config.c"}), files());
}

TEST_F(Batch, FailureLeavesTheFilesThatWouldHaveFollowed) {
  folder.with("w_code.c", "old");
  EXPECT_EQ(1, run({"-csC", "no/out.c", "w.vqc"}).status);
  EXPECT_EQ("old", read_file(folder / "w_code.c"));
}

TEST_F(Batch, FolderCannotBeWritten) {
  std::filesystem::create_directory(folder / "w_code.c");
  EXPECT_EQ((Outcome{1, "", "Cannot open code file w_code.c\n"}), run({"-cs", "w.vqc"}));
  EXPECT_FALSE(exists("w_stubs.c"));
}

TEST_F(Batch, FullDiskIsSilent) { EXPECT_EQ(silence, run({"-c", "/dev/full", "w.vqc"})); }

TEST_F(Batch, EarlierOutputIsReplaced) {
  EXPECT_EQ(silence, run({"-s", "w.vqc"}));
  const std::string fresh = read_file(folder / "w_stubs.c");
  folder.with("w_stubs.c", fresh + std::string(100000, 'x'));
  EXPECT_EQ(silence, run({"-s", "w.vqc"}));
  EXPECT_EQ(fresh, read_file(folder / "w_stubs.c"));
}

TEST_F(Batch, MessagesDoNotLandInAFileWhenStandardErrorIsClosed) {
  EXPECT_EQ(silence, run({"-C", "w.vqc"}));
  const std::string config = read_file(folder / "w_config.c");
  const Surroundings closed{.err_closed = true};
  EXPECT_EQ(1, run({"-Cc", "no/out.c", "w.vqc"}, closed).status);
  EXPECT_EQ(config, read_file(folder / "w_config.c"));
  folder.with("other.vqc", "no document");
  EXPECT_EQ(255, run({"-C", "other.vqc"}, closed).status);
  EXPECT_EQ("no document", read_file(folder / "other.vqc"));
  EXPECT_EQ((Files{"other.vqc", "w.vqc", "w_config.c"}), files());
}

TEST_F(Batch, ClosedStandardErrorLeadsNowhere) {
  EXPECT_EQ(0, run({"-c", "/dev/fd/2", "w.vqc"}, {.err_closed = true}).status) << "another file may take its place";
}

TEST_F(Batch, ClosedStreamsChangeNothing) {
  EXPECT_EQ(silence, run({"-cCs", "w.vqc"}));
  const Files names = {"w_code.c", "w_config.c", "w_stubs.c"};
  std::vector<std::string> texts;
  for (const std::string& name : names) texts.push_back(read_file(folder / name));
  EXPECT_EQ(0, run({"-cCs", "w.vqc"}, {.out_closed = true, .err_closed = true}).status);
  for (std::size_t i = 0; i < names.size(); ++i) EXPECT_EQ(texts[i], read_file(folder / names[i])) << names[i];
}

TEST_F(Batch, NeedsNeitherDisplayNorHomeNorResources) {
  EXPECT_EQ(silence, run({"-c", "w.vqc"}));
  const std::string nowhere = folder / "nowhere";
  EXPECT_EQ(silence,
            run({"-c", "w.vqc"}, {.environment = {"DISPLAY=:4242", "HOME=" + nowhere, "XAPPLRESDIR=" + nowhere + "/",
                                                  "XENVIRONMENT=" + nowhere, "XFILESEARCHPATH=" + nowhere + "/%N"}}));
}

TEST_F(Batch, ReadsNoResources) {
  folder.with(".Xdefaults", "*commentCode: True\n*verboseCode: True\n*aliasArrayString: other\n");
  EXPECT_EQ(silence, run({"-C", "w.vqc"}, {.environment = {"HOME=" + folder.path()}}));
  EXPECT_FALSE(has_text("w_config.c", "/* Family: "));
  EXPECT_TRUE(has_text("w_config.c", "Type_alias_t aliases[] = {\n"));
}

TEST_F(Batch, TitlesAndRepeatsAreOff) {
  folder.with("w.vqc", "VQconfig family 'F' { widget='W' alias='a' } family 'G' { widget='W' alias='a' }");
  EXPECT_EQ(silence, run({"-C", "w.vqc"}));
  EXPECT_FALSE(has_text("w_config.c", "Alias definitions"));
  EXPECT_FALSE(has_text("w_config.c", "/*\t"));
}

#ifndef __SANITIZE_ADDRESS__  // which itself takes more than any limit
TEST_F(Batch, IsWholeOrSaysThatMemoryIsShort) {
  std::string large = "VQconfig family 'F' {";
  for (int i = 0; i < 100000; ++i) large += " header='folder/of/the/header" + std::to_string(i) + ".h'";
  folder.with("large.vqc", large + " }");
  ASSERT_EQ(silence, run({"-c", "whole.c", "large.vqc"}));
  int failures = 0;
  for (int kilobytes = 8000; kilobytes <= 40000; kilobytes += 2000) {
    const Outcome outcome = run({"-c", "some.c", "large.vqc"}, {.memory = kilobytes});
    if (outcome.status == 0) {
      EXPECT_EQ(read_file(folder / "whole.c"), read_file(folder / "some.c")) << kilobytes;
    } else {
      EXPECT_EQ((Outcome{255, "", "vqconfig: out of memory. Exiting...\n"}), outcome) << kilobytes << " kB";
      ++failures;
    }
  }
  EXPECT_LT(0, failures);
}
#endif

}  // namespace
