#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "application/false_display.h"
#include "application/run_program.h"

// Which command lines vqconfig serves itself, and how it becomes the editor for all others.

namespace {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;

const Outcome silence{0, "", ""};

/// An installation of vqconfig in a folder of its own.
class Installation : public ProgramTest {
 protected:
  Installation() {
    fs::create_directories(place / "bin");
    fs::create_directories(place / "libexec");
    fs::copy_file(VQCONFIG_PROGRAM, place / "bin/vqconfig");
    program = place / "bin/vqconfig";
    folder.with("w.vqc", "VQconfig");
  }

  /// Puts the editor there.
  void add_editor() const { fs::copy_file(EDITOR_PROGRAM, editor()); }

  /// Puts one there that prints the words it is given.
  void add_talking_editor() const {
    place.with("libexec/vqconfig-editor", "#!/bin/sh\nprintf '<%s>' \"$@\"\nexit 7\n");
    fs::permissions(editor(), fs::perms::owner_all);
  }

  std::string editor() const { return place / "libexec/vqconfig-editor"; }

  TemporaryFolder place;
};

/// What the talking editor leaves behind.
Outcome talk(const Words& words) {
  std::string text;
  for (const std::string& word : words) text += "<" + word + ">";
  return {7, words.empty() ? "<>" : text, ""};
}

const Outcome no_display{255, "", "vqconfig: cannot open display. Exiting...\n"};

class Editor : public Installation {};

TEST_F(Editor, IsGivenTheWholeCommandLineOfASession) {
  add_talking_editor();
  for (const Words& words : {Words{}, Words{"w.vqc"}, Words{"missing.vqc"}, Words{""}, Words{"-"}, Words{"-j"},
                             Words{"-jm", "-", "w.vqc"}, Words{"w.vqc", "-c", "out.c"}, Words{"w.vqc", "-q", "-x"}}) {
    EXPECT_EQ(talk(words), run(words)) << testing::PrintToString(words);
  }
}

TEST_F(Editor, IsGivenEveryCommandLineWithAWordThatTheToolkitWouldTake) {
  add_talking_editor();
  for (const Words& words :
       {Words{"-display", ":1", "-c", "w.vqc"}, Words{"-c", "-rv", "w.vqc"}, Words{"-c", "w.vqc", "-name", "n"},
        Words{"-c", "out.c", "w.vqc", "-iconic"}, Words{"-x", "-iconic"}, Words{"-q", "-sync"}, Words{"-cC", "+rv"},
        Words{"+s", "-c", "w.vqc"}, Words{"-d", ":1", "-s", "w.vqc"}, Words{"-xt", "1", "-s", "w.vqc"}}) {
    EXPECT_EQ(talk(words), run(words)) << testing::PrintToString(words);
    EXPECT_EQ((Words{"w.vqc"}), files()) << testing::PrintToString(words);
  }
}

TEST_F(Editor, IsNotNeededForABatchRun) {
  EXPECT_EQ(silence, run({"-cCs", "w.vqc"}));
  EXPECT_EQ(silence, run({"-c", "-x", "-C", "+out", "-s", "-f", "w.vqc", "other", "-q"}));
  EXPECT_EQ((Words{"+out", "-f", "-x", "w.vqc", "w_code.c", "w_config.c", "w_stubs.c"}), files());
  EXPECT_EQ((Outcome{255, "", ""}), run({"-cj"}));
}

TEST_F(Editor, IsNotNeededForTheExplanation) {
  const Outcome outcome = run({"-x"});
  EXPECT_EQ(0, outcome.status);
  EXPECT_TRUE(outcome.err.starts_with("VQconfig widget integration tool\n")) << outcome.err;
}

TEST_F(Editor, IsNotNeededForTheUsage) {
  for (const char* word : {"-q", "--help", "-f", "-s1", "-rvx", "-displays", "-c"}) {
    const Outcome outcome = run({word});
    EXPECT_EQ(255, outcome.status) << word;
    EXPECT_TRUE(outcome.err.starts_with("VQconfig [-x] ")) << word << ": " << outcome.err;
  }
}

TEST_F(Editor, IsNamedWhereItIsMissing) {
  const Outcome missing{255, "",
                        "vqconfig: cannot start the editor, " + editor() + ": No such file or directory. Exiting...\n"};
  EXPECT_EQ(missing, run({}));
  EXPECT_EQ(missing, run({"-display", ":1", "-c", "w.vqc"}));
  EXPECT_EQ((Words{"w.vqc"}), files());
  program_name = "./100%s";
  EXPECT_TRUE(run({}).err.starts_with("./100%s: cannot start the editor, "));
}

TEST_F(Editor, IsNamedWhereItCannotBeRun) {
  place.with("libexec/vqconfig-editor", "");
  EXPECT_EQ((Outcome{255, "", "vqconfig: cannot start the editor, " + editor() + ": Permission denied. Exiting...\n"}),
            run({"w.vqc"}));
}

TEST_F(Editor, IsThatOfTheSameInstallation) {
  add_editor();
  EXPECT_EQ(no_display, run({"w.vqc"}));
}

TEST_F(Editor, IsFoundThroughALink) {
  add_talking_editor();
  fs::create_symlink(program, folder / "link");
  fs::create_symlink("link", folder / "link to link");
  program = folder / "link to link";
  EXPECT_EQ(talk({"w.vqc"}), run({"w.vqc"}));
}

TEST_F(Editor, IsFoundWhereTheInstallationHasBeenMoved) {
  add_talking_editor();
  fs::rename(place.path(), place.path() + " moved");
  program = place.path() + " moved/bin/vqconfig";
  const Outcome outcome = run({"w.vqc"});
  fs::rename(place.path() + " moved", place.path());
  EXPECT_EQ(talk({"w.vqc"}), outcome);
}

TEST_F(Editor, ServesBatchRunsExplanationAndUsageToo) {
  EXPECT_EQ(silence, run({"-cCs", "w.vqc"}));
  const std::string code = read_file(folder / "w_code.c");
  fs::remove(folder / "w_code.c");
  program = EDITOR_PROGRAM;
  EXPECT_EQ(silence, run({"-c", "w.vqc"}));
  EXPECT_EQ(code, read_file(folder / "w_code.c"));
  EXPECT_EQ((Outcome{255, "", "Cannot open file -rv\n"}), run({"-c", "-rv"}));
  EXPECT_EQ(0, run({"-x", "-rv"}).status);
  EXPECT_TRUE(run({"-q", "-rv"}).err.starts_with("VQconfig [-x] "));
}

/// What `make install` installs.
class Installed : public ProgramTest {
 protected:
  /// Installs with these further words.
  void install(Words words) {
    program = CMAKE_PROGRAM;
    program_name = "cmake";
    words.insert(words.begin(), {"--install", BUILD_FOLDER, "--prefix", "/usr"});
    const Outcome outcome = run(words, {.environment = {"DESTDIR=" + place.path()}});
    EXPECT_EQ((Outcome{0, outcome.out, ""}), outcome);
    program = place / "usr/bin/vqconfig";
    program_name = "vqconfig";
  }

  TemporaryFolder place;
};

TEST_F(Installed, ProgramFindsItsEditor) {
  install({});
  EXPECT_EQ(no_display, run({}));
  fs::rename(place / "usr", place / "opt");
  program = place / "opt/bin/vqconfig";
  EXPECT_EQ(no_display, run({"missing"}));
}

TEST_F(Installed, ComponentBatchIsWhatAMachineNeedsThatOnlyGenerates) {
  install({"--component", "batch"});
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(place.path())) {
    if (entry.is_regular_file()) found.push_back(fs::relative(entry.path(), place / "usr"));
  }
  std::sort(found.begin(), found.end());
  EXPECT_EQ((Words{"bin/vqc",
                   "bin/vqconfig",
                   "include/vqconfig.mk",
                   "include/vqconfig/xwidget.h",
                   "share/bash-completion/completions/vqc",
                   "share/cmake/VQconfig/VQconfigConfig.cmake",
                   "share/cmake/VQconfig/VQconfigConfigVersion.cmake",
                   "share/fish/vendor_completions.d/vqc.fish",
                   "share/man/man1/vqc.1",
                   "share/man/man1/vqconfig.1",
                   "share/man/man5/vqc.5",
                   "share/man/man7/vqc-findings.7",
                   "share/pkgconfig/vqconfig.pc",
                   "share/vqconfig/runtime/dialogs.c",
                   "share/vqconfig/runtime/host.c",
                   "share/vqconfig/runtime/host.h",
                   "share/vqconfig/runtime/lookup.c",
                   "share/vqconfig/runtime/report.c",
                   "share/vqconfig/runtime/tables.c",
                   "share/vqconfig/runtime/values.c",
                   "share/vqconfig/runtime/widgets.c",
                   "share/zsh/site-functions/_vqc"}),
            found);
  EXPECT_EQ(silence, run({"-cCs", folder.with("w.vqc", "VQconfig")}));
  EXPECT_EQ((Outcome{255, "",
                     "vqconfig: cannot start the editor, " + place.path() +
                         "/usr/libexec/vqconfig-editor: " + "No such file or directory. Exiting...\n"}),
            run({"w.vqc"}));
}

class Display : public Installation {
 protected:
  Outcome run_on(FalseDisplay& display, const Words& words) const {
    return run(words, {.environment = {"DISPLAY=" + display.name()}});
  }
};

TEST_F(Display, IsLeftAloneByWhatNeedsNone) {
  FalseDisplay display;
  program = VQCONFIG_PROGRAM;
  EXPECT_EQ(silence, run_on(display, {"-cCs", "w.vqc"}));
  EXPECT_EQ(0, run_on(display, {"-x"}).status);
  EXPECT_EQ(255, run_on(display, {"-q"}).status);
  EXPECT_EQ(0, display.connections());
}

TEST_F(Display, IsAskedForByASession) {
  FalseDisplay display;
  program = VQCONFIG_PROGRAM;
  EXPECT_EQ(255, run_on(display, {"w.vqc"}).status);
  EXPECT_LT(0, display.connections());
}

TEST_F(Display, IsAskedForWhereTheToolkitMayHaveWordsToTake) {
  FalseDisplay display;
  program = VQCONFIG_PROGRAM;
  EXPECT_EQ(silence, run_on(display, {"-c", "-rv", "w.vqc"}));
  EXPECT_LT(0, display.connections());
  EXPECT_EQ((Words{"-rv", "w.vqc"}), files()) << "there is no display, so that the word is a name";
}

}  // namespace
