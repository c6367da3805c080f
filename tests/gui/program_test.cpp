#include "gui/session.h"

#include <cstdlib>
#include <filesystem>

#include "gui/outside.h"

using namespace vqc;

// The program itself, as a process of its own, driven by its windows and the keyboard.

namespace {

const char athena[] = "VQconfig\nfamily 'Athena' {\n}\n";

class Program : public testing::Test {
 protected:
  TemporaryFolder folder;
  OtherDisplay screen;
};

TEST_F(Program, OpensTheDocumentAndEndsWhenItsWindowIsClosed) {
  RunningProgram program({folder.with("athena.vqc", athena)}, screen.name());
  const Window window = screen.wait_for_window("vqconfig: athena.vqc");
  ASSERT_NE(0u, window);
  screen.close(window);
  EXPECT_EQ(0, program.wait());
  EXPECT_EQ("", program.errors());
}

TEST_F(Program, SavesByKeyboardAndEndsWithoutAQuestion) {
  RunningProgram program({folder.with("athena.vqc", athena)}, screen.name());
  ASSERT_NE(0u, screen.wait_for_window("vqconfig: athena.vqc"));
  screen.focus("vqconfig: athena.vqc");
  screen.type("demo");
  screen.key("Return");
  screen.key("s", true);
  EXPECT_TRUE(
      wait_until_true([&] { return read_file(folder / "athena.vqc").find("family 'demo' {\n") != std::string::npos; }));
  screen.key("q", true);
  EXPECT_EQ(0, program.wait());
  EXPECT_EQ("", program.errors());
}

TEST_F(Program, AsksWhenItIsClosedWithChanges) {
  RunningProgram program({folder.with("athena.vqc", athena)}, screen.name());
  const Window window = screen.wait_for_window("vqconfig: athena.vqc");
  ASSERT_NE(0u, window);
  screen.focus("vqconfig: athena.vqc");
  screen.type("demo");
  screen.key("Return");
  screen.close(window);
  ASSERT_NE(0u, screen.wait_for_window("Save Changes"));
  EXPECT_TRUE(program.is_running());
  screen.focus("Save Changes");
  screen.key("Return");
  EXPECT_EQ(0, program.wait());
  EXPECT_NE(std::string::npos, read_file(folder / "athena.vqc").find("family 'demo' {\n"));
  EXPECT_EQ("", program.errors());
}

TEST_F(Program, EndsWithAMessageWhenItsDisplayIsLost) {
  RunningProgram program({folder.with("athena.vqc", athena)}, screen.name());
  ASSERT_NE(0u, screen.wait_for_window("vqconfig: athena.vqc"));
  screen.lose();
  EXPECT_NE(0, program.wait());
  EXPECT_NE("", program.errors());
  EXPECT_EQ(athena, read_file(folder / "athena.vqc"));
}

TEST_F(Program, OpensItsWindowWhereItWasLeftTheLastTime) {
  setenv("XDG_STATE_HOME", folder.path().c_str(), 1);
  for (int session = 0; session < 4; ++session) {
    RunningProgram program({folder.with("athena.vqc", athena)}, screen.name());
    const Window window = screen.wait_for_window("vqconfig: athena.vqc");
    ASSERT_NE(0u, window);
    if (session == 0) {
      screen.focus("vqconfig: athena.vqc");
      screen.key("s", true);  // once it answers, it has seen its window come up
      ASSERT_TRUE(wait_until_true([&] { return read_file(folder / "athena.vqc") != athena; }));
      screen.move(window, 123, 234);
    }
    EXPECT_EQ(std::pair(123, 234), screen.corner(window)) << session;
    screen.close(window);
    EXPECT_EQ(0, program.wait());
  }
}

TEST_F(Program, GoesByTheNameItWasStartedWith) {
  setenv("PATH", (std::filesystem::path(VQCONFIG_PROGRAM).parent_path().string() + ":" + getenv("PATH")).c_str(), 1);
  RunningProgram program({"-xrm", "vqconfig.iconName: Icon", folder.with("athena.vqc", athena)}, screen.name(),
                         "vqconfig");
  const Window window = screen.wait_for_window("vqconfig: athena.vqc");
  ASSERT_NE(0u, window);
  EXPECT_EQ(std::string("vqconfig\0VQconfig\0", 18), screen.property_of(window, "WM_CLASS"));
  EXPECT_EQ("Icon", screen.property_of(window, "WM_ICON_NAME"));
  const std::vector<pid_t> editors = processes(EDITOR_PROGRAM, screen.name());
  ASSERT_EQ(1u, editors.size());
  const std::string process = "/proc/" + std::to_string(editors.front());
  EXPECT_EQ("vqconfig\n", read_file(process + "/comm"));
  EXPECT_TRUE(read_file(process + "/cmdline").starts_with(std::string("vqconfig\0-xrm\0", 14)));
  EXPECT_EQ(std::vector<pid_t>(), processes(VQCONFIG_PROGRAM, screen.name()));
}

TEST_F(Program, TakesTheToolkitsOptionsBeforeTheDocumentAndAfterIt) {
  const std::string document = folder.with("athena.vqc", athena);
  for (std::vector<std::string> words : {std::vector<std::string>{"-display", screen.name(), "-j", document},
                                         {"-j", document, "-display", screen.name()},
                                         {"-d", screen.name(), document, "-xrm", "*iconName: Icon"}}) {
    RunningProgram program(words, ":999999");
    const Window window = screen.wait_for_window("vqconfig: athena.vqc");
    ASSERT_NE(0u, window) << testing::PrintToString(words);
    screen.close(window);
    EXPECT_EQ(0, program.wait());
    EXPECT_EQ("", program.errors());
  }
}

TEST_F(Program, TakesTheToolkitsOptionsOutOfABatchRunWhereThereIsADisplay) {
  const std::string document = folder.with("athena.vqc", athena);
  EXPECT_EQ(0, RunningProgram({"-c", "-iconic", folder / "1.c", document}, screen.name()).wait());
  EXPECT_TRUE(std::filesystem::exists(folder / "1.c"));
  EXPECT_EQ(0, RunningProgram({"-d", screen.name(), "-c", folder / "2.c", document, "+rv"}, ":999999").wait());
  EXPECT_TRUE(std::filesystem::exists(folder / "2.c"));
  EXPECT_EQ(255, RunningProgram({"-c", document, "-iconic"}, ":999999").wait()) << "an option of ours, and a wrong one";
}

TEST_F(Program, WithoutADisplayItSaysSo) {
  RunningProgram program({}, ":999999");
  EXPECT_EQ(255, program.wait());
  EXPECT_EQ(std::string(VQCONFIG_PROGRAM) + ": cannot open display. Exiting...\n", program.errors());
}

}  // namespace
