#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "application/run_program.h"

namespace {

using Words = std::vector<std::string>;
using Files = std::vector<std::string>;

const Outcome silence{0, "", ""};

const Outcome usage{255, "",
                    "VQconfig [-x] [ -c [code_file] ] [ -s [stubs_file] ] [ -C [config_file] ] [ filename ]\n"};

const Outcome explanation{0, "",
                          "VQconfig widget integration tool\n"
                          "\n"
                          "-x             display this explanation\n"
                          "-c code_file   generate widget set description code to code_file\n"
                          "               if code_file is not specified, the code name in the save file is used\n"
                          "-C config_file generate widget configuration code to config_file\n"
                          "               if config_file is not specified, the config name in the save file is used\n"
                          "-s stubs_file  generate user-defined integration procedures to stubs_file\n"
                          "               if stubs_file is not specified, the stubs name in the save file is used\n"
                          "   filename    the name of the VQconfig save file to load\n"
                          "\n"
                          "               Where the save file has no config/code/stubs file names, and no such names\n"
                          "               are specified, the files will be based round the save file name\n"
                          "\n"
                          "               For example: VQconfig -cCs Athena.vqc will generate:\n"
                          "                          Athena_code.c, Athena_config.c, Athena_stubs.c\n"
                          "\n"
                          "               If any of -C, -c, -s are specified, the session is non-interactive\n"
                          "               You must specify a save file for any of -C, -c, and -s\n"};

class CommandLine : public ProgramTest {
 protected:
  CommandLine() { folder.with("w.vqc", "VQconfig"); }

  /// Runs without complaint and leaves these files beside the document.
  void expect_files(const Words& words, Files expected) const {
    EXPECT_EQ(silence, run(words)) << testing::PrintToString(words);
    expected.emplace_back("w.vqc");
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(expected, files()) << testing::PrintToString(words);
    for (const std::string& name : expected) {
      if (name != "w.vqc") std::filesystem::remove(folder / name);
    }
  }

  void expect_nothing_done(const Outcome& outcome, const Words& words) const {
    EXPECT_EQ(outcome, run(words)) << testing::PrintToString(words);
    EXPECT_EQ(Files{"w.vqc"}, files()) << testing::PrintToString(words);
  }
};

TEST_F(CommandLine, UnknownOptionPrintsTheUsage) {
  for (const char* option : {"-q", "-cq", "-X", "--", "--help", "-S", "-J", "-1", "-c "}) {
    expect_nothing_done(usage, {option, "w.vqc"});
  }
}

TEST_F(CommandLine, OptionWithoutTheWordItTakesPrintsTheUsage) {
  for (const char* option : {"-c", "-C", "-s", "-cC", "-jc", "-cCs"}) expect_nothing_done(usage, {option});
}

TEST_F(CommandLine, ExplanationComesAtOnce) {
  expect_nothing_done(explanation, {"-x"});
  expect_nothing_done(explanation, {"-cx"});
  expect_nothing_done(explanation, {"-cx", "w.vqc"});
  expect_nothing_done(explanation, {"-xq", "w.vqc"});
  expect_nothing_done(explanation, {"-j", "-x", "-q"});
}

TEST_F(CommandLine, WrongOptionBeforeTheExplanationWins) {
  expect_nothing_done(usage, {"-q", "-x"});
  expect_nothing_done(usage, {"-qx"});
}

TEST_F(CommandLine, EachLetterAsksForOneFile) {
  expect_files({"-c", "w.vqc"}, {"w_code.c"});
  expect_files({"-C", "w.vqc"}, {"w_config.c"});
  expect_files({"-s", "w.vqc"}, {"w_stubs.c"});
}

TEST_F(CommandLine, LettersMayBeClustered) {
  expect_files({"-cCs", "w.vqc"}, {"w_config.c", "w_code.c", "w_stubs.c"});
  expect_files({"-sC", "w.vqc"}, {"w_config.c", "w_stubs.c"});
  expect_files({"-cj", "w.vqc"}, {"w_code.c"});
  expect_files({"-cc", "w.vqc"}, {"w_code.c"});
}

TEST_F(CommandLine, LastLetterTakesTheNextWord) {
  expect_files({"-c", "out.c", "w.vqc"}, {"out.c"});
  expect_files({"-C", "out.c", "w.vqc"}, {"out.c"});
  expect_files({"-s", "out.c", "w.vqc"}, {"out.c"});
  expect_files({"-cC", "out.c", "w.vqc"}, {"out.c", "w_code.c"});
  expect_files({"-c", "1.c", "-C", "2.c", "-s", "3.c", "w.vqc"}, {"1.c", "2.c", "3.c"});
}

TEST_F(CommandLine, LetterThatIsNotLastTakesNothing) {
  expect_files({"-cj", "-C", "out.c", "w.vqc"}, {"out.c", "w_code.c"});
}

TEST_F(CommandLine, WordTakenMayLookLikeAnOption) {
  expect_files({"-c", "-x", "w.vqc"}, {"-x"});
  expect_files({"-s", "-c", "w.vqc"}, {"-c"});
  expect_files({"-s", "-", "w.vqc"}, {"-"});
}

TEST_F(CommandLine, LastWordOfAllIsTheSaveFileWhateverItLooksLike) {
  expect_nothing_done({255, "", "Cannot open file -x\n"}, {"-c", "-x"});
  expect_nothing_done({255, "", "Cannot open file out.c\n"}, {"-c", "out.c"});
}

TEST_F(CommandLine, OutputNameAloneIsTakenForTheSaveFile) {
  folder.with("out.c", "VQconfig");
  EXPECT_EQ(silence, run({"-c", "out.c"}));
  EXPECT_EQ((Files{"out.c", "out.c_code.c", "w.vqc"}), files());
  EXPECT_EQ("VQconfig", read_file(folder / "out.c"));
}

TEST_F(CommandLine, OptionGivenAgainReplacesTheName) {
  expect_files({"-c", "1.c", "-c", "2.c", "w.vqc"}, {"2.c"});
  expect_files({"-c", "1.c", "-c", "w.vqc"}, {"1.c"});
}

TEST_F(CommandLine, BareHyphenIsSkipped) { expect_files({"-", "-c", "w.vqc"}, {"w_code.c"}); }

TEST_F(CommandLine, WordsAfterTheSaveFileAreIgnored) {
  expect_files({"-c", "out.c", "w.vqc", "missing.vqc", "-q"}, {"out.c"});
}

TEST_F(CommandLine, OptionsEndAtTheFirstOtherWord) {
  expect_nothing_done({255, "", "vqconfig: cannot open display. Exiting...\n"}, {"w.vqc", "-c", "out.c"});
  expect_nothing_done({255, "", "vqconfig: cannot open display. Exiting...\n"}, {"", "-q"});
}

TEST_F(CommandLine, BatchWithoutASaveFileFailsSilently) {
  expect_nothing_done({255, "", ""}, {"-cj"});
  expect_nothing_done({255, "", ""}, {"-c", "out.c", "-"});
}

TEST_F(CommandLine, CompatibilityIsForcedOn) {
  folder.with("w.vqc", "VQconfig widget 'W' { resource_definitions='r', , , True; } family 'F' { widget='W' }");
  const auto config = [&](const char* options) {
    EXPECT_EQ(silence, run({options, "w.vqc"}));
    return read_file(folder / "w_config.c");
  };
  EXPECT_NE(std::string::npos, config("-C").find(", -1, False, False, (char *) 0},\n"));
  EXPECT_NE(std::string::npos, config("-mC").find(", -1, True, False, (char *) 0},\n"));
  EXPECT_NE(std::string::npos, config("-jC").find(", -1, False, True, (char *) 0},\n"));
  EXPECT_NE(std::string::npos, config("-Cjm").find(", -1, True, True, (char *) 0},\n"));
}

class Session : public CommandLine {};

TEST_F(Session, NeedsADisplay) {
  const Outcome no_display{255, "", "vqconfig: cannot open display. Exiting...\n"};
  for (const Words& words :
       {Words{}, Words{"w.vqc"}, Words{"-j", "w.vqc"}, Words{"-m"}, Words{"-"}, Words{"missing"}}) {
    expect_nothing_done(no_display, words);
  }
  EXPECT_EQ(no_display, run({"w.vqc"}, {.environment = {"DISPLAY=:4242"}}));
}

TEST_F(Session, IsToldByTheNameItWasStartedWith) {
  program_name = "./bin/100%s";
  EXPECT_EQ((Outcome{255, "", "./bin/100%s: cannot open display. Exiting...\n"}), run({}));
}

TEST_F(Session, UsageDoesNotTakeThatName) {
  program_name = "other";
  EXPECT_EQ(usage, run({"-q"}));
}

}  // namespace
