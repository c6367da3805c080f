#include "vqc/cmd/savefile/util.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <functional>
#include <memory>
#include <string>

#include "support/files.h"
#include "support/messages.h"

using namespace vqc;

namespace {

class OutputPrimitives : public testing::Test {
 protected:
  OutputPrimitives() {
    messages.texts["file_open_fail"] = "cannot open %s: %s";
    messages.texts["file_write_fail"] = "cannot write: %s";
  }

  /// What `print` prints.
  static std::string printed(const std::function<void(Sink&)>& print) {
    StringSink out;
    print(out);
    EXPECT_TRUE(out.finish());
    return out.text();
  }

  static std::string write_failure() { return std::string("cannot write: ") + std::strerror(ENOSPC); }

  TemporaryFolder folder;
  RecordedMessages messages;
};

// charout and all that goes through it.

TEST_F(OutputPrimitives, CharoutPrintsTheText) {
  EXPECT_EQ("widget ", printed([](Sink& out) { charout(out, "widget "); }));
}

TEST_F(OutputPrimitives, CharoutPrintsNothingForNullOrEmpty) {
  EXPECT_EQ("", printed([](Sink& out) { charout(out, nullptr); }));
  EXPECT_EQ("", printed([](Sink& out) { charout(out, ""); }));
}

TEST_F(OutputPrimitives, CharoutPrintsDoubledPerCentSignsAsOne) {
  const std::pair<const char*, const char*> cases[] = {
      {"100%%", "100%"},      {"%%%%", "%%"},       {"%%%", "%%"},        {"%", "%"},
      {"50% off", "50% off"}, {"%s%d%n", "%s%d%n"}, {"a%%b%%c", "a%b%c"}, {"%%s", "%s"},
  };
  for (auto& [text, expected] : cases) {
    EXPECT_EQ(expected, printed([&](Sink& out) { charout(out, text); })) << text;
  }
}

TEST_F(OutputPrimitives, Charout1sFillsInItsArgument) {
  EXPECT_EQ("\tcan_manage=", printed([](Sink& out) { charout_1s(out, "\t%s=", "can_manage"); }));
  EXPECT_EQ("<>", printed([](Sink& out) { charout_1s(out, "<%s>", ""); }));
}

TEST_F(OutputPrimitives, Charout1sPrintsDoubledPerCentSignsOfItsArgumentAsOne) {
  EXPECT_EQ("<100%>", printed([](Sink& out) { charout_1s(out, "<%s>", "100%%"); }));
  EXPECT_EQ("<%s%n>", printed([](Sink& out) { charout_1s(out, "<%s>", "%s%n"); }));
}

TEST_F(OutputPrimitives, Charout1sHasNoGreatestLength) {
  const std::string longest(10000, 'x');
  EXPECT_EQ("<" + longest + ">", printed([&](Sink& out) { charout_1s(out, "<%s>", longest); }));
}

TEST_F(OutputPrimitives, StroutPutsSingleQuotesAround) {
  EXPECT_EQ("'abc'", printed([](Sink& out) { strout(out, "abc"); }));
  EXPECT_EQ("''", printed([](Sink& out) { strout(out, ""); }));
}

TEST_F(OutputPrimitives, StringoutPutsDoubleQuotesAround) {
  EXPECT_EQ("\"abc\"", printed([](Sink& out) { stringout(out, "abc"); }));
  EXPECT_EQ("\"\"", printed([](Sink& out) { stringout(out, ""); }));
}

TEST_F(OutputPrimitives, NothingIsEscaped) {
  EXPECT_EQ("'it's a\\b\n\"'", printed([](Sink& out) { strout(out, "it's a\\b\n\""); }));
  EXPECT_EQ("\"it's \"a\\b\"", printed([](Sink& out) { stringout(out, "it's \"a\\b"); }));
}

TEST_F(OutputPrimitives, QuotedTextsGoThroughCharout) {
  EXPECT_EQ("'100%'", printed([](Sink& out) { strout(out, "100%%"); }));
  EXPECT_EQ("\"100%\"", printed([](Sink& out) { stringout(out, "100%%"); }));
  EXPECT_EQ("'%'", printed([](Sink& out) { strout(out, "%"); }));
}

// Flags and numbers.

TEST_F(OutputPrimitives, BooloutPrintsTrueOrFalse) {
  EXPECT_EQ("True", printed([](Sink& out) { boolout(out, true); }));
  EXPECT_EQ("False", printed([](Sink& out) { boolout(out, false); }));
}

TEST_F(OutputPrimitives, BooloutBcLeavesOutTheDefault) {
  for (bool flag : {false, true}) {
    EXPECT_EQ("", printed([=](Sink& out) { EXPECT_FALSE(boolout_bc(out, flag, "can_manage", flag)); }));
  }
}

TEST_F(OutputPrimitives, BooloutBcPrintsALineForAnythingElse) {
  EXPECT_EQ("\tcan_manage=False\n",
            printed([](Sink& out) { EXPECT_TRUE(boolout_bc(out, false, "can_manage", true)); }));
  EXPECT_EQ("\tdisablegoto=True\n",
            printed([](Sink& out) { EXPECT_TRUE(boolout_bc(out, true, "disablegoto", false)); }));
}

TEST_F(OutputPrimitives, IntoutPrintsDecimals) {
  const std::pair<int, const char*> cases[] = {
      {0, "0"}, {7, "7"}, {-1, "-1"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
  for (auto& [value, expected] : cases) {
    EXPECT_EQ(expected, printed([value = value](Sink& out) { intout(out, value); }));
  }
}

// Texts as they stand.

TEST_F(OutputPrimitives, PtroutPrintsTheTextOrZero) {
  EXPECT_EQ("proc", printed([](Sink& out) { ptrout(out, "proc"); }));
  EXPECT_EQ("0", printed([](Sink& out) { ptrout(out, nullptr); }));
  EXPECT_EQ("", printed([](Sink& out) { ptrout(out, ""); }));
}

TEST_F(OutputPrimitives, PtrsfxoutPrintsTheTextAndItsSuffixOrZero) {
  EXPECT_EQ("proc_init", printed([](Sink& out) { ptrsfxout(out, "proc", "_init"); }));
  EXPECT_EQ("0", printed([](Sink& out) { ptrsfxout(out, nullptr, "_init"); }));
}

TEST_F(OutputPrimitives, PointersKeepTheirPerCentSigns) {
  EXPECT_EQ("100%%s", printed([](Sink& out) { ptrout(out, "100%%s"); }));
  EXPECT_EQ("100%%%%", printed([](Sink& out) { ptrsfxout(out, "100%%", "%%"); }));
}

// Failures.

TEST_F(OutputPrimitives, AFailureToWriteIsReportedOnceAtTheEnd) {
  const std::string longest(100000, 'x');
  const std::unique_ptr<FileSink> out = openfile("/dev/full");
  ASSERT_TRUE(out);
  charout(*out, longest.c_str());
  strout(*out, longest.c_str());
  EXPECT_EQ(Messages{}, messages.shown);
  EXPECT_FALSE(closefile(*out));
  EXPECT_EQ(Messages{write_failure()}, messages.shown);
}

TEST_F(OutputPrimitives, AFailureOfTheLastWriteIsReportedToo) {
  const std::unique_ptr<FileSink> out = openfile("/dev/full");
  ASSERT_TRUE(out);
  charout(*out, "x");
  EXPECT_EQ(Messages{}, messages.shown);
  EXPECT_FALSE(closefile(*out));
  EXPECT_EQ(Messages{write_failure()}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsThePathAndTheReason) {
  const std::string path = folder / "missing/file";
  EXPECT_EQ(nullptr, openfile(path.c_str()));
  EXPECT_EQ(Messages{"cannot open " + path + ": " + std::strerror(ENOENT)}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsAFolder) {
  EXPECT_EQ(nullptr, openfile(folder.path().c_str()));
  EXPECT_EQ(Messages{"cannot open " + folder.path() + ": " + std::strerror(EISDIR)}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsAMissingPath) {
  messages.texts.clear();
  EXPECT_EQ(nullptr, openfile(nullptr));
  EXPECT_EQ(Messages{"file_open_fail"}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReplacesWhatIsThere) {
  const std::string path = folder.with("file", "something longer");
  const std::unique_ptr<FileSink> out = openfile(path.c_str());
  ASSERT_TRUE(out);
  charout(*out, "text");
  EXPECT_TRUE(closefile(*out));
  EXPECT_EQ("text", read_file(path));
  EXPECT_EQ(Messages{}, messages.shown);
}

}  // namespace
