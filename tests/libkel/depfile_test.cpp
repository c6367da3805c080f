#include "libkel/depfile.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

#include "support/files.h"

using namespace vqc;

namespace {

using Paths = std::vector<std::string>;

TEST(Depfile, IsARuleAndATargetForEachHeader) {
  EXPECT_EQ(
      "X_config.c X_code.c: \\\n"
      " X.vqc \\\n"
      " Dial.h \\\n"
      " sub/DialP.h\n"
      "\n"
      "Dial.h:\n"
      "\n"
      "sub/DialP.h:\n",
      depfile(Paths{"X_config.c", "X_code.c"}, Paths{"X.vqc"}, Paths{"Dial.h", "sub/DialP.h"}));
}

TEST(Depfile, MayHaveNoHeadersAndNoSources) {
  EXPECT_EQ("out: \\\n in\n", depfile(Paths{"out"}, Paths{"in"}, Paths{}));
  EXPECT_EQ("out:\n", depfile(Paths{"out"}, Paths{}, Paths{}));
}

TEST(Depfile, IsEmptyWithoutTargets) { EXPECT_EQ("", depfile(Paths{}, Paths{"in"}, Paths{"a.h"})); }

TEST(Depfile, MarksWhatRulesTakeSpecially) {
  EXPECT_EQ("a\\ b\\\tc\\#d$$e\\:f\\g: \\\n h\\\\\\ i \\\n j\\\\\n",
            depfile(Paths{"a b\tc#d$e:f\\g"}, Paths{"h\\ i", "j\\"}, Paths{}));
}

TEST(Depfile, LeavesOutWhatRulesCannotName) {
  EXPECT_EQ("out: \\\n in\n", depfile(Paths{"out", "o\nt", ""}, Paths{"i\rn", "in"}, Paths{"h\n.h"}));
  EXPECT_EQ("", depfile(Paths{"o\nt"}, Paths{"in"}, Paths{}));
}

/// A build in which `out` is made from what a depfile says, by a command that counts how often it runs.
class DepfileInUse : public testing::Test {
 protected:
  DepfileInUse() {
    for (const std::string& name : odd_names) folder.with(name, "");
    folder.with("in", "");
    Paths sources = odd_names;
    sources.emplace_back("in");
    folder.with("out.d", depfile(Paths{"out"}, sources, odd_names));
    folder.with("Makefile", "out:\n\techo run >> runs; touch out\n-include out.d\n");
    folder.with("build.ninja",
                "rule make\n  command = echo run >> runs; touch out\n  depfile = out.d\nbuild out: make\n");
  }

  /// Builds, and gives how often the command has run by now.
  std::size_t runs_after(const std::string& builder) const {
    const std::string command = "cd '" + folder.path() + "' && " + builder + " out >log 2>&1";
    EXPECT_EQ(0, std::system(command.c_str())) << read_file(folder / "log");
    return read_file(folder / "runs").size() / std::string_view("run\n").size();
  }

  /// Makes a file newer than all others, by the clock that stamps files, which is a coarse one.
  void touch(const std::string& name) const {
    std::this_thread::sleep_for(std::chrono::milliseconds(15));
    EXPECT_EQ(0, utimensat(AT_FDCWD, (folder / name).c_str(), nullptr, 0));
  }

  /// It runs once, again when any of the files is new, and also when one is gone.
  void expect_rebuilds(const std::string& builder) const {
    std::size_t runs = 1;
    ASSERT_EQ(runs, runs_after(builder));
    EXPECT_EQ(runs, runs_after(builder)) << "nothing has changed";
    for (const std::string& name : odd_names) {
      touch(name);
      EXPECT_EQ(++runs, runs_after(builder)) << name;
      EXPECT_EQ(runs, runs_after(builder)) << name;
    }
    std::filesystem::remove(folder / odd_names.front());
    EXPECT_EQ(++runs, runs_after(builder)) << "gone";
  }

  TemporaryFolder folder;
  const Paths odd_names = {"plain.h", "two words.h", "a$b.h", "a#b.h", "a:b.h", "back\\slash.h", "\xc3\xa4.h"};
};

TEST_F(DepfileInUse, IsReadByMake) { expect_rebuilds("make"); }

TEST_F(DepfileInUse, IsReadByNinja) { expect_rebuilds("ninja"); }

}  // namespace
