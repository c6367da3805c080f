#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "application/run_program.h"
#include "support/random_document.h"

namespace {

namespace fs = std::filesystem;

using Files = std::vector<std::string>;
using Words = std::vector<std::string>;

const char document[] =
    "VQconfig widget 'W' { realise='make' } family 'F' { widget='W' header='Dial.h' cheader='Gauge.h' }";
const char broken[] = "VQconfig family 'F' { widget='V' widget=; widget='W' } family 'G' { }";

/// A test that runs vqc, and vqconfig where it says so.
class Generate : public ProgramTest {
 protected:
  Generate() {
    program = VQC_PROGRAM;
    program_name = "vqc";
    folder.with("w.vqc", document);
  }

  Outcome generate(Words words) const {
    words.insert(words.begin(), "generate");
    return run(words);
  }

  /// Runs a command of the shell, for which $vqc is the program.
  Outcome shell(const std::string& command) {
    program = "/bin/sh";
    program_name = "sh";
    Outcome outcome = run({"-c", command}, {.environment = {"vqc=" VQC_PROGRAM}});
    program = VQC_PROGRAM;
    program_name = "vqc";
    return outcome;
  }

  Outcome vqconfig(const Words& words) {
    program = VQCONFIG_PROGRAM;
    program_name = "vqconfig";
    Outcome outcome = run(words);
    program = VQC_PROGRAM;
    program_name = "vqc";
    return outcome;
  }

  std::string text(const std::string& name) const { return read_file(folder / name); }
  bool has_text(const std::string& name, const std::string& part) const {
    return text(name).find(part) != std::string::npos;
  }

  /// A time long ago, which a file keeps only when nobody touches it.
  void make_old(const std::string& name) const {
    fs::last_write_time(folder / name, fs::file_time_type::clock::now() - std::chrono::hours(1000));
  }
  bool is_old(const std::string& name) const {
    return fs::last_write_time(folder / name) < fs::file_time_type::clock::now() - std::chrono::hours(999);
  }
};

const Files made = {"w.vqc", "w_code.c", "w_config.c", "w_stubs.c"};

TEST_F(Generate, MakesThreeFilesOfADocument) {
  EXPECT_EQ((Outcome{0, "", "3 files, 1 new stub\n"}), generate({"w.vqc"}));
  EXPECT_EQ(made, files());
  EXPECT_TRUE(has_text("w_config.c", "\"F\", F_widgets, "));
  EXPECT_TRUE(has_text("w_code.c", "XWidgetClass_t xw_W={\n"));
  EXPECT_TRUE(has_text("w_stubs.c", "** vqconfig generated stub: make\n"));
  EXPECT_EQ(document, text("w.vqc"));
}

/// All documents that there are, sound and broken.
std::vector<std::string> all_documents() {
  std::vector<std::string> documents;
  const std::string tests = TEST_DATA;
  for (const std::string& place :
       {tests + "/../examples", tests + "/fuzz/corpus/documents", tests + "/generate/golden"}) {
    for (const auto& entry : fs::recursive_directory_iterator(place)) {
      if (entry.path().extension() == ".vqc") documents.push_back(entry.path());
    }
  }
  return documents;
}

/// Tells whether vqc makes what vqconfig makes, be it of a broken document. Nothing is left behind.
class AsVqconfig : public Generate {
 protected:
  /// False when neither makes anything of it.
  bool expect_same_bytes(const std::string& path) {
    const bool readable = vqconfig({"-C", "1", "-c", "2", "-s", "3", path}).status == 0;
    EXPECT_NE(2, generate({"--force", "--config=a", "--code=b", "--stubs=c", path}).status) << path;
    EXPECT_EQ(readable, exists("a") && exists("b") && exists("c")) << path;
    for (const auto& [ours, theirs] : {std::pair("a", "1"), std::pair("b", "2"), std::pair("c", "3")}) {
      EXPECT_TRUE(!readable || text(ours) == text(theirs)) << path;
      fs::remove(folder / ours);
      fs::remove(folder / theirs);
    }
    return readable;
  }
};

TEST_F(AsVqconfig, FromAllDocumentsThatThereAre) {
  const auto documents = all_documents();
  EXPECT_LT(100U, documents.size()) << "where are the others?";
  for (const char* header : {"present.h", "presentP.h", "50%%P.h"}) folder.with(header, "");
  EXPECT_LT(50, std::ranges::count_if(documents, [this](const auto& each) { return expect_same_bytes(each); }));
}

TEST_F(AsVqconfig, FromRandomDocuments) {
  folder.with("A", "");  // a header that is there
  for (unsigned seed = 1; seed <= 10; ++seed) {
    RandomDocument random(seed);
    expect_same_bytes(folder.with("sound.vqc", random.text()));
    EXPECT_EQ(0, generate({"-n", "sound.vqc"}).status);
    expect_same_bytes(folder.with("broken.vqc", random.broken_text()));
    if (HasFailure()) FAIL() << text("sound.vqc") << text("broken.vqc");
  }
}

TEST_F(AsVqconfig, ErrorsAreFoundExactlyWhereTheLastItemIsNotRead) {
  int with_error = 0;
  for (unsigned seed = 11; seed <= 50; ++seed) {
    folder.with("w.vqc", RandomDocument(seed).broken_text());
    fs::remove(folder / "config");
    vqconfig({"-C", "config", "w.vqc"});
    const bool is_read = exists("config") && has_text("config", std::string(RandomDocument::kLast));
    const Outcome checked = run({"check", "w.vqc"});
    const bool is_open = checked.out.find("it ends with the document") != std::string::npos;
    EXPECT_EQ(is_read || is_open ? 0 : 1, checked.status) << text("w.vqc") << checked.out;
    with_error += checked.status;
  }
  EXPECT_LT(10, with_error);
  EXPECT_GT(40, with_error);
}

// Names.

TEST_F(Generate, NamesTheFilesAfterTheDocument) {
  fs::create_directory(folder / "sub");
  for (const auto& [name, code] : std::vector<std::pair<std::string, std::string>>{
           {"sub/w.vqc", "sub/w_code.c"}, {"widgets", "widgets_code.c"}, {"a.vqc.vqc", "a.vqc_code.c"}}) {
    folder.with(name, document);
    EXPECT_EQ(0, generate({name}).status);
    EXPECT_TRUE(exists(code)) << code;
  }
}

TEST_F(Generate, PutsFilesWithoutANameIntoTheFolder) {
  fs::create_directories(folder / "out");
  fs::create_directories(folder / "sub");
  folder.with("sub/x.vqc", document);
  EXPECT_EQ(0, generate({"-o", "out", "--code", "named.c", "sub/x.vqc"}).status);
  EXPECT_TRUE(exists("out/x_config.c"));
  EXPECT_TRUE(exists("out/x_stubs.c"));
  EXPECT_TRUE(exists("named.c"));
  EXPECT_FALSE(exists("out/x_code.c"));
  EXPECT_FALSE(exists("sub/x_config.c"));
}

TEST_F(Generate, DoesNotConsultNamesInTheDocument) {
  folder.with("w.vqc", "VQconfig code_name='other_code.c' config_name='other_config.c' stubs_name='other_stubs.c'");
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_EQ(made, files());
}

TEST_F(Generate, LeavesOutTheStubs) {
  EXPECT_EQ((Outcome{0, "", "2 files\n"}), generate({"--no-stubs", "w.vqc"}));
  EXPECT_EQ((Files{"w.vqc", "w_code.c", "w_config.c"}), files());
}

TEST_F(Generate, ReadsStandardInput) {
  fs::create_directory(folder / "out");
  EXPECT_EQ(0, shell("$vqc generate -o out - <w.vqc").status);
  EXPECT_EQ(0, shell("$vqc generate --config a --code b --stubs c - <w.vqc").status);
  EXPECT_EQ(0, shell("$vqc generate --config d --code e --no-stubs - <w.vqc").status);
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_EQ(text("w_config.c"), text("out/-_config.c"));
  EXPECT_EQ(text("w_code.c"), text("b"));
  EXPECT_EQ(text("w_stubs.c"), text("c"));
  EXPECT_EQ(text("w_config.c"), text("d"));
}

TEST_F(Generate, WantsNamesForStandardInput) {
  for (const std::string names : {"", "--config a", "--config a --code b", "--no-stubs"}) {
    const Outcome outcome = shell("$vqc generate " + names + " - <w.vqc");
    EXPECT_EQ(2, outcome.status) << names;
    EXPECT_NE("", outcome.err);
  }
  EXPECT_EQ(Files{"w.vqc"}, files());
}

// What is refused.

TEST_F(Generate, WritesNothingForADocumentWithErrors) {
  folder.with("w.vqc", broken);
  const Outcome outcome = generate({"w.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_TRUE(outcome.out.starts_with("w.vqc:1:41: error: ")) << outcome.out;
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, GoesOnWhenForced) {
  folder.with("w.vqc", broken);
  const Outcome outcome = generate({"--force", "w.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_TRUE(outcome.out.starts_with("w.vqc:1:41: error: ")) << outcome.out;
  EXPECT_EQ(made, files());
  EXPECT_TRUE(has_text("w_config.c", "extern XWidgetClass_t xw_V;\n"));
}

TEST_F(Generate, MakesNothingOfWhatIsNoDocument) {
  folder.with("w.vqc", "family 'F' { }");
  EXPECT_EQ(1, generate({"--force", "w.vqc"}).status);
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, TellsOfADocumentThatCannotBeRead) {
  EXPECT_EQ((Outcome{2, "", "vqc: missing.vqc: No such file or directory\n"}), generate({"missing.vqc"}));
  EXPECT_EQ((Outcome{2, "", "vqc: no/missing.vqc: No such file or directory\n"}), generate({"no/missing.vqc"}));
  EXPECT_EQ((Outcome{2, "", "vqc: /: Is a directory\n"}), generate({"--config=a", "--code=b", "--no-stubs", "/"}));
}

TEST_F(Generate, DoesNotWriteTheDocument) {
  fs::create_symlink("w.vqc", folder / "link");
  fs::create_hard_link(folder / "w.vqc", folder / "other_name");
  for (const std::string option : {"--config", "--code", "--stubs", "--depfile"}) {
    for (const std::string path : {"w.vqc", "./w.vqc", "link", "other_name"}) {
      EXPECT_EQ((Outcome{2, "", "vqc: " + path + ": this is the document\n"}), generate({option, path, "w.vqc"}));
    }
  }
  EXPECT_EQ((Files{"link", "other_name", "w.vqc"}), files());
  EXPECT_EQ(document, text("w.vqc"));
}

TEST_F(Generate, DoesNotWriteAFileTwice) {
  fs::create_symlink("w_config.c", folder / "link");
  for (const Words& words : std::vector<Words>{{"--code", "w_config.c"},
                                               {"--stubs", "./w_config.c"},
                                               {"--depfile", "link"},
                                               {"--config", "a", "--code", "b", "--stubs", "a"}}) {
    Words all = words;
    all.emplace_back("w.vqc");
    EXPECT_EQ((Outcome{2, "", "vqc: " + words.back() + ": this file would be written twice\n"}), generate(all));
  }
  EXPECT_EQ((Files{"link", "w.vqc"}), files());
}

TEST_F(Generate, RefusesWhatItDoesNotKnow) {
  for (const Words& words : std::vector<Words>{
           {}, {"w.vqc", "w.vqc"}, {"--unknown", "w.vqc"}, {"--stubs", "s", "--no-stubs", "w.vqc"}, {"--config"}}) {
    const Outcome outcome = generate(words);
    EXPECT_EQ(2, outcome.status);
    EXPECT_EQ("", outcome.out);
    EXPECT_NE("", outcome.err);
  }
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, TakesWhatFollowsTwoHyphensForTheDocument) {
  folder.with("--force", document);
  EXPECT_EQ(0, generate({"--", "--force"}).status);
  EXPECT_TRUE(exists("--force_code.c"));
}

// What takes part.

TEST_F(Generate, TakesTheFamiliesThatAreAskedFor) {
  folder.with("w.vqc", "VQconfig family 'F' { } family 'G' { } family 'H' { }");
  EXPECT_EQ(0, generate({"--families", "H,F", "w.vqc"}).status);
  EXPECT_TRUE(has_text("w_config.c", "int xw_family_count = 2;\n"));
  EXPECT_LT(text("w_config.c").find("\"F\""), text("w_config.c").find("\"H\""));
  EXPECT_FALSE(has_text("w_config.c", "\"G\""));
  EXPECT_EQ(0, generate({"--families", "G", "--families", "H", "w.vqc"}).status);
  EXPECT_FALSE(has_text("w_config.c", "\"F\""));
  EXPECT_TRUE(has_text("w_config.c", "\"G\""));
}

TEST_F(Generate, KnowsNoOtherFamilies) {
  folder.with("w.vqc", "VQconfig family 'Athena' { }");
  EXPECT_EQ((Outcome{2, "", "vqc: there is no family 'Atena'; did you mean 'Athena'?\n"}),
            generate({"--families", "Athena,Atena", "w.vqc"}));
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, WritesCommentsAndRepeatsWhenAsked) {
  folder.with("w.vqc", "VQconfig enumeration 'E' { } family 'F' { enumeration='E' } family 'G' { enumeration='E' }");
  const std::string comment = "/* Family: F */\n";
  const std::string repeat = "/*\t{0, (XrmQuark) 0, E_enum},*/\n";
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_FALSE(has_text("w_config.c", comment));
  EXPECT_FALSE(has_text("w_config.c", repeat));
  EXPECT_EQ(0, generate({"--comments", "w.vqc"}).status);
  EXPECT_TRUE(has_text("w_config.c", comment));
  EXPECT_FALSE(has_text("w_config.c", repeat));
  EXPECT_EQ(0, generate({"--verbose-code", "w.vqc"}).status);
  EXPECT_FALSE(has_text("w_config.c", comment));
  EXPECT_TRUE(has_text("w_config.c", repeat));
}

// How files come to their places.

TEST_F(Generate, DoesNotTouchWhatDoesNotChange) {
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  folder.with("w_code.c", "old");
  for (const std::string& name : made) make_old(name);
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_TRUE(is_old("w_config.c"));
  EXPECT_TRUE(is_old("w_stubs.c"));
  EXPECT_FALSE(is_old("w_code.c"));
}

TEST_F(Generate, SaysHowManyFilesAreUnchanged) {
  generate({"--no-stubs", "w.vqc"});
  EXPECT_EQ((Outcome{0, "", "2 files, 2 unchanged\n"}), generate({"--no-stubs", "w.vqc"}));
  folder.with("w_code.c", "old");
  EXPECT_EQ((Outcome{0, "", "2 files, 1 unchanged\n"}), generate({"--no-stubs", "--depfile=d", "w.vqc"}));
}

TEST_F(Generate, LeavesSymbolicLinks) {
  fs::create_directory(folder / "real");
  fs::create_symlink("real/code.c", folder / "w_code.c");
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_EQ("real/code.c", fs::read_symlink(folder / "w_code.c"));
  EXPECT_TRUE(has_text("real/code.c", "xw_W"));
}

TEST_F(Generate, KeepsPermissions) {
  folder.with("w_code.c", "old");
  fs::permissions(folder / "w_code.c", fs::perms::owner_all);
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_TRUE(has_text("w_code.c", "xw_W"));
  EXPECT_EQ(fs::perms::owner_all, fs::status(folder / "w_code.c").permissions());
}

TEST_F(Generate, WritesAllFilesOrNone) {
  folder.with("w_config.c", "old");
  EXPECT_EQ((Outcome{2, "", "vqc: /dev/full: No space left on device\n"}), generate({"--code", "/dev/full", "w.vqc"}));
  EXPECT_EQ((Outcome{2, "", "vqc: no/code.c: No such file or directory\n"}),
            generate({"--code", "no/code.c", "w.vqc"}));
  EXPECT_EQ((Outcome{2, "", "vqc: .: Is a directory\n"}), generate({"--stubs", ".", "w.vqc"}));
  EXPECT_EQ("old", text("w_config.c"));
  EXPECT_EQ((Files{"w.vqc", "w_config.c"}), files());
}

TEST_F(Generate, WritesNothingWhereOneFolderTakesNoFiles) {
  const Outcome outcome = generate({"--stubs", "/sys/stubs.c", "w.vqc"});
  EXPECT_EQ(2, outcome.status);
  EXPECT_TRUE(outcome.err.starts_with("vqc: /sys/stubs.c: ")) << outcome.err;
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, WritesThroughPipesAndDevices) {
  const Outcome outcome = shell(
      "mkfifo pipe; cat pipe >got & $vqc generate --config pipe --code /dev/stdout --stubs /dev/null w.vqc; wait");
  EXPECT_EQ(0, outcome.status);
  EXPECT_EQ("3 files, 1 new stub\n", outcome.err);
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  EXPECT_EQ(text("w_config.c"), text("got"));
  EXPECT_EQ(text("w_code.c"), outcome.out);
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(Generate, OfTwoRunsAtOnceLeavesTheFilesOfOne) {
  folder.with("w.vqc", "VQconfig widget 'W' { } family 'F' { widget='W' } family 'G' { }");
  for (int round = 0; round < 10; ++round) {
    const Outcome outcome = shell(
        "for family in F G F G; do $vqc generate --no-stubs --families $family w.vqc || echo failed & done 2>log; wait");
    EXPECT_EQ("", outcome.out);
    EXPECT_EQ(has_text("w_config.c", "xw_W"), has_text("w_code.c", "xw_W"));
    ASSERT_EQ((Files{"log", "w.vqc", "w_code.c", "w_config.c"}), files());
  }
}

TEST_F(Generate, TellsWhenFindingsCannotBeShown) {
  folder.with("w.vqc", broken);
  EXPECT_EQ((Outcome{2, "", "vqc: standard output: No space left on device\n"}),
            shell("$vqc generate w.vqc >/dev/full"));
}

// The stubs file, which a person edits.

TEST_F(Generate, KeepsWhatIsWrittenInStubs) {
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  std::string stubs = text("w_stubs.c");
  const std::string empty_body = "\t/* FIXME */\n";
  stubs.replace(stubs.find(empty_body), empty_body.size(), "\tprepare() ;\n");
  folder.with("w_stubs.c", stubs);
  folder.with("w.vqc",
              "VQconfig widget 'W' { realise='make' can_add_child='test' } family 'F' { widget='W' header='Dial.h' "
              "cheader='Gauge.h' }");
  EXPECT_EQ((Outcome{0, "", "3 files, 1 unchanged, 1 body kept, 1 new stub\n"}), generate({"w.vqc"}));
  EXPECT_TRUE(has_text("w_stubs.c", "\tprepare() ;\n"));
  EXPECT_TRUE(has_text("w_stubs.c", "** vqconfig generated stub: test\n"));
}

TEST_F(Generate, WarnsOfAStubThatHasChangedItsKind) {
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  std::string stubs = text("w_stubs.c");
  const std::string empty_body = "\t/* FIXME */\n";
  stubs.replace(stubs.find(empty_body), empty_body.size(), "\tprepare() ;\n");
  folder.with("w_stubs.c", stubs);
  folder.with("w.vqc", "VQconfig widget 'W' { can_add_child='make' } family 'F' { widget='W' }");
  const Outcome outcome = generate({"w.vqc"});
  EXPECT_EQ(0, outcome.status);
  EXPECT_TRUE(outcome.out.starts_with("w_stubs.c:")) << outcome.out;
  EXPECT_NE(std::string::npos, outcome.out.find(": warning: ")) << outcome.out;
  EXPECT_TRUE(has_text("w_stubs.c", "\tprepare() ;\n"));
}

TEST_F(Generate, WritesNothingWhenAStubCannotBePlaced) {
  folder.with("w_stubs.c", "int f(void)\n{\n");
  const Outcome outcome = generate({"w.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_TRUE(outcome.out.starts_with("w_stubs.c:2: error: ")) << outcome.out;
  EXPECT_EQ((Files{"w.vqc", "w_stubs.c"}), files());
}

// Without writing.

TEST_F(Generate, VerifiesThatNothingWouldChange) {
  EXPECT_EQ(0, generate({"w.vqc"}).status);
  const Outcome outcome = generate({"--verify", "w.vqc"});
  EXPECT_EQ(0, outcome.status);
  EXPECT_EQ("", outcome.out);
}

TEST_F(Generate, VerifyShowsWhatWouldChange) {
  EXPECT_EQ(0, generate({"--no-stubs", "w.vqc"}).status);
  const std::string code = text("w_code.c");
  const std::string old = code.substr(0, code.find('\n') + 1) + "// mine\n" + code.substr(code.find('\n') + 1);
  folder.with("w_code.c", old);
  EXPECT_EQ((Outcome{1,
                     "diff --git a/w_code.c b/w_code.c\n"
                     "--- a/w_code.c\n"
                     "+++ b/w_code.c\n"
                     "@@ -1,5 +1,4 @@\n"
                     " /*\n"
                     "-// mine\n"
                     " ** Generated by vqconfig\n"
                     " */\n"
                     " \n",
                     "2 files, 1 unchanged\n"}),
            generate({"--no-stubs", "--verify", "w.vqc"}));
  EXPECT_EQ(old, text("w_code.c"));
}

TEST_F(Generate, VerifyMakesNoFile) {
  const Outcome outcome = generate({"--verify", "w.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_TRUE(outcome.out.starts_with("diff --git a/w_config.c b/w_config.c\nnew file mode 100644\n--- /dev/null\n"));
  EXPECT_EQ(Files{"w.vqc"}, files());
}

TEST_F(Generate, VerifyFindsNothingInADevice) {
  EXPECT_EQ(0, generate({"--verify", "--no-stubs", "--config=/dev/null", "--code=/dev/zero", "w.vqc"}).status);
}

TEST_F(Generate, VerifyTellsOfErrorsFirst) {
  folder.with("w.vqc", broken);
  const Outcome outcome = generate({"--verify", "w.vqc"});
  EXPECT_EQ(1, outcome.status);
  EXPECT_EQ(std::string::npos, outcome.out.find("diff")) << outcome.out;
}

TEST_F(Generate, SaysWhatItWouldWrite) {
  EXPECT_EQ(0, generate({"--no-stubs", "w.vqc"}).status);
  folder.with("w_code.c", "old");
  EXPECT_EQ((Outcome{0, "", "would write w_code.c\nwould write w_stubs.c\n3 files, 1 unchanged, 1 new stub\n"}),
            generate({"-n", "w.vqc"}));
  EXPECT_EQ("old", text("w_code.c"));
  EXPECT_EQ((Files{"w.vqc", "w_code.c", "w_config.c"}), files());
}

// What the files are made from.

TEST_F(Generate, WritesADepfile) {
  for (const char* header : {"Dial.h", "Gauge.h"}) folder.with(header, "");
  EXPECT_EQ(0, generate({"--depfile", "w.d", "w.vqc"}).status);
  EXPECT_EQ("w_config.c w_code.c: \\\n w.vqc \\\n Gauge.h \\\n Dial.h\n\nGauge.h:\n\nDial.h:\n", text("w.d"));
}

TEST_F(Generate, DepfileHasNoHeadersThatAreElsewhere) {
  fs::create_directory(folder / "include");
  folder.with("include/Dial.h", "");
  EXPECT_EQ(0, generate({"-I", "include", "--depfile", "w.d", "w.vqc"}).status);
  EXPECT_EQ("w_config.c w_code.c: \\\n w.vqc\n", text("w.d"));
}

TEST_F(Generate, DepfileHasTheHeadersOfTheFamiliesThatTakePart) {
  folder.with("w.vqc", "VQconfig family 'F' { header='f.h' } family 'G' { header='g.h' header='w_code.c' }");
  for (const char* header : {"f.h", "g.h", "w_code.c"}) folder.with(header, "");
  EXPECT_EQ(0, generate({"--families=G", "--depfile=w.d", "w.vqc"}).status);
  EXPECT_EQ("w_config.c w_code.c: \\\n w.vqc \\\n g.h\n\ng.h:\n", text("w.d"));
}

TEST_F(Generate, DepfileHasNoFolders) {
  fs::create_directory(folder / "Dial.h");
  EXPECT_EQ(0, generate({"--depfile=w.d", "w.vqc"}).status);
  EXPECT_EQ("w_config.c w_code.c: \\\n w.vqc\n", text("w.d"));
}

TEST_F(Generate, DepfileOfStandardInputHasNoDocument) {
  EXPECT_EQ(0, shell("$vqc generate --config a --code b --no-stubs --depfile d - <w.vqc").status);
  EXPECT_EQ("a b:\n", text("d"));
}

}  // namespace
