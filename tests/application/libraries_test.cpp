#include <gtest/gtest.h>

#include <regex>
#include <string>

#include "application/run_program.h"

// What the programs are linked with. A machine that only generates has none of X's libraries.

namespace {

class Libraries : public ProgramTest {
 protected:
  /// The libraries that a program is loaded with: those that it names, and those that these need.
  std::string loaded_with(const std::string& file) { return output({"ldd", file}); }

  /// The libraries that a program names itself, used or not.
  std::string named_by(const std::string& file) { return output({"readelf", "--dynamic", file}); }

 private:
  std::string output(std::vector<std::string> command) {
    program = command.front();
    command.erase(command.begin());
    const Outcome outcome = run(command);
    EXPECT_EQ((Outcome{0, outcome.out, ""}), outcome);
    EXPECT_NE(std::string::npos, outcome.out.find("libc.so")) << outcome.out;
    return outcome.out;
  }
};

/// The libraries of X in a list, one after another: X's own, the toolkit's and Motif's.
std::string of_x(const std::string& list) {
  static const std::regex library("lib(X|xcb|SM|ICE|Mrm)[^ /]*\\.so");
  std::string found;
  for (std::sregex_iterator match(list.begin(), list.end(), library), none; match != none; ++match) {
    found += match->str() + " ";
  }
  return found;
}

TEST_F(Libraries, OfXAreNotNeededByVqconfigAndVqc) {
  for (const char* tested : {VQCONFIG_PROGRAM, VQC_PROGRAM}) {
    EXPECT_EQ("", of_x(loaded_with(tested))) << tested;
    EXPECT_EQ("", of_x(named_by(tested))) << tested;
  }
}

TEST_F(Libraries, OfXAreNotLinkedWithTheLayersBelowTheEditor) {
  for (const std::string layer : {"kel", "model", "savefile", "generate", "application"}) {
    const std::string tests = std::string(LAYER_TESTS) + "/" + layer + "_test";
    EXPECT_EQ("", of_x(loaded_with(tests))) << layer;
    EXPECT_EQ("", of_x(named_by(tests))) << layer;
  }
}

TEST_F(Libraries, OfXAreFoundWhereTheyAre) {
  const std::string editors = of_x(loaded_with(EDITOR_PROGRAM));
  for (const char* library : {"libX11.so", "libXt.so", "libXm.so", "libxcb.so", "libSM.so", "libICE.so"}) {
    EXPECT_NE(std::string::npos, editors.find(library)) << library;
  }
  EXPECT_NE("", of_x(named_by(EDITOR_PROGRAM)));
}

}  // namespace
