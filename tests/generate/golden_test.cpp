#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"

using namespace vqc;

namespace {

/// Whole files beside the documents that they are generated from.
class Golden : public GenerateTest {
 protected:
  static std::string golden(const std::string& name) { return std::string(TEST_DATA) + "/generate/golden/" + name; }

  void read_golden(const std::string& name) { read(Source::read(golden(name).c_str())); }

  void expect_file(const char* name, int kind) const { EXPECT_EQ(read_file(golden(name)), file(kind)) << name; }

  /// For every setting of the switches.
  void expect_each_file(const char* name, int kind) const {
    const std::string marked = read_file(golden(name));
    for (const Switches switches : all_switches) {
      EXPECT_EQ(for_switches(marked, switches), file(kind, switches)) << name << " with " << switches;
    }
  }
};

/// Families that share a record of every kind.
class Dials : public Golden {
 protected:
  Dials() { read_golden("dials.vqc"); }
};

TEST_F(Dials, ConfigFile) { expect_each_file("dials_config.golden", CONFIG_FILE); }
TEST_F(Dials, CodeFile) { expect_each_file("dials_code.golden", CODE_FILE); }
TEST_F(Dials, StubsFile) { expect_each_file("dials_stubs.golden", STUBS_FILE); }

/// Odd names and null fields, with some of the headers in the working directory.
class Odd : public Golden {
 protected:
  Odd() {
    read_golden("odd.vqc");
    without_predefined();
    for (const char* header : {"present.h", "presentP.h", "50%%P.h"}) folder.with(header, "");
  }
};

TEST_F(Odd, ConfigFile) { expect_each_file("odd_config.golden", CONFIG_FILE); }
TEST_F(Odd, CodeFile) { expect_each_file("odd_code.golden", CODE_FILE); }
TEST_F(Odd, StubsFile) { expect_each_file("odd_stubs.golden", STUBS_FILE); }

/// One widget with one resource, and a name of the document's own for every table.
class Gauge : public Golden {
 protected:
  Gauge() {
    read_golden("gauge.vqc");
    without_predefined();
  }
};

TEST_F(Gauge, ConfigFile) { expect_file("gauge_config.c", CONFIG_FILE); }
TEST_F(Gauge, CodeFile) { expect_file("gauge_code.c", CODE_FILE); }

TEST_F(Golden, StubsOfAFamilyAndOfAWidget) {
  read_golden("create.vqc");
  expect_file("create_stubs.c", STUBS_FILE);
}

TEST_F(Golden, OneFileLeavesNoTraceInTheNext) {
  read_golden("dials.vqc");
  const std::string marked = read_file(golden("dials_config.golden"));
  for (int kind : {STUBS_FILE, CODE_FILE, CONFIG_FILE}) file(kind, {true, true});
  EXPECT_EQ(for_switches(marked, {}), file(CONFIG_FILE));
}

TEST(Margin, SaysWhichSwitchesALineNeeds) {
  const char* marked =
      "  |always\n"
      "c |comments\n"
      "- |no comments\n"
      " v|repeats\n"
      "c-|comments, no repeats\n";
  EXPECT_EQ("always\nno comments\n", for_switches(marked, {false, false}));
  EXPECT_EQ("always\ncomments\ncomments, no repeats\n", for_switches(marked, {true, false}));
  EXPECT_EQ("always\nno comments\nrepeats\n", for_switches(marked, {false, true}));
  EXPECT_EQ("always\ncomments\nrepeats\n", for_switches(marked, {true, true}));
}

TEST(Margin, HasNoOtherForm) {
  EXPECT_THROW(for_switches("no margin\n", {}), std::invalid_argument);
  EXPECT_THROW(for_switches("x |unknown mark\n", {}), std::invalid_argument);
  EXPECT_THROW(for_switches("  |no newline", {}), std::invalid_argument);
}

}  // namespace
