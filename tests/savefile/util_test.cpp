#include "vqc/cmd/savefile/util.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <functional>
#include <string>

#include "support/files.h"
#include "support/messages.h"

namespace {

class OutputPrimitives : public testing::Test {
 protected:
  OutputPrimitives() {
    messages.texts["file_open_fail"] = "cannot open %s: %s";
    messages.texts["file_write_fail"] = "cannot write: %s";
  }

  /// What `print` prints; `result` is what it returned.
  std::string printed(const std::function<int(Stream*)>& print) {
    const std::string path = folder / "out";
    auto stream = openfile(path.c_str(), "w");
    result = print(stream.get());
    EXPECT_EQ(1, closefile(*stream));
    return read_file(path);
  }

  static std::string write_failure() { return std::string("cannot write: ") + std::strerror(ENOSPC); }

  TemporaryFolder folder;
  RecordedMessages messages;
  int result = -1;
};

// charout and all that goes through it.

TEST_F(OutputPrimitives, CharoutPrintsTheText) {
  EXPECT_EQ("widget ", printed([](Stream* out) { return charout(out, "widget "); }));
  EXPECT_EQ(1, result);
}

TEST_F(OutputPrimitives, CharoutPrintsNothingForNullOrEmpty) {
  EXPECT_EQ("", printed([](Stream* out) { return charout(out, static_cast<const char*>(nullptr)); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("", printed([](Stream* out) { return charout(out, ""); }));
  EXPECT_EQ(1, result);
}

TEST_F(OutputPrimitives, CharoutPrintsDoubledPerCentSignsAsOne) {
  const std::pair<const char*, const char*> cases[] = {
      {"100%%", "100%"},      {"%%%%", "%%"},       {"%%%", "%%"},        {"%", "%"},
      {"50% off", "50% off"}, {"%s%d%n", "%s%d%n"}, {"a%%b%%c", "a%b%c"}, {"%%s", "%s"},
  };
  for (auto& [text, expected] : cases) {
    EXPECT_EQ(expected, printed([&](Stream* out) { return charout(out, text); })) << text;
    EXPECT_EQ(expected, printed([&](Stream* out) { return charout(out, std::string_view(text)); })) << text;
    EXPECT_EQ(expected, printed([&](Stream* out) { return charout(out, Text(text)); })) << text;
  }
}

TEST_F(OutputPrimitives, CharoutIsSilentWithoutAStream) {
  EXPECT_EQ(0, charout(nullptr, "text"));
  EXPECT_EQ(0, charout(nullptr, std::string_view("text")));
  EXPECT_EQ(0, charout(nullptr, Text("text")));
  EXPECT_EQ(0, charout(nullptr, Text("100%")));
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(OutputPrimitives, Charout1sFillsInItsArgument) {
  EXPECT_EQ("\tcan_manage=", printed([](Stream* out) { return charout_1s(out, "\t%s=", "can_manage"); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("<>", printed([](Stream* out) { return charout_1s(out, "<%s>", ""); }));
}

TEST_F(OutputPrimitives, Charout1sPrintsDoubledPerCentSignsOfItsArgumentAsOne) {
  EXPECT_EQ("<100%>", printed([](Stream* out) { return charout_1s(out, "<%s>", "100%%"); }));
  EXPECT_EQ("<%s%n>", printed([](Stream* out) { return charout_1s(out, "<%s>", "%s%n"); }));
}

TEST_F(OutputPrimitives, Charout1sPrintsNothingForNull) {
  EXPECT_EQ("", printed([](Stream* out) { return charout_1s(out, nullptr, "a"); }));
  EXPECT_EQ(0, result);
  EXPECT_EQ("", printed([](Stream* out) { return charout_1s(out, "%s=", nullptr); }));
  EXPECT_EQ(0, result);
}

TEST_F(OutputPrimitives, Charout1sHasNoGreatestLength) {
  const std::string longest(10000, 'x');
  EXPECT_EQ("<" + longest + ">", printed([&](Stream* out) { return charout_1s(out, "<%s>", longest.c_str()); }));
}

TEST_F(OutputPrimitives, StroutPutsSingleQuotesAround) {
  EXPECT_EQ("'abc'", printed([](Stream* out) { return strout(out, "abc"); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("''", printed([](Stream* out) { return strout(out, ""); }));
}

TEST_F(OutputPrimitives, StringoutPutsDoubleQuotesAround) {
  EXPECT_EQ("\"abc\"", printed([](Stream* out) { return stringout(out, "abc"); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("\"\"", printed([](Stream* out) { return stringout(out, ""); }));
}

TEST_F(OutputPrimitives, NothingIsEscaped) {
  EXPECT_EQ("'it's a\\b\n\"'", printed([](Stream* out) { return strout(out, "it's a\\b\n\""); }));
  EXPECT_EQ("\"it's \"a\\b\"", printed([](Stream* out) { return stringout(out, "it's \"a\\b"); }));
}

TEST_F(OutputPrimitives, QuotedTextsGoThroughCharout) {
  EXPECT_EQ("'100%'", printed([](Stream* out) { return strout(out, "100%%"); }));
  EXPECT_EQ("\"100%\"", printed([](Stream* out) { return stringout(out, "100%%"); }));
  EXPECT_EQ("'%'", printed([](Stream* out) { return strout(out, "%"); }));
}

TEST_F(OutputPrimitives, QuotedTextsAreSilentWithoutAStream) {
  EXPECT_EQ(0, strout(nullptr, "a"));
  EXPECT_EQ(0, stringout(nullptr, "a"));
  EXPECT_EQ(Messages{}, messages.shown);
}

// Flags and numbers.

TEST_F(OutputPrimitives, BooloutPrintsTrueOrFalse) {
  EXPECT_EQ("True", printed([](Stream* out) { return boolout(out, true); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("False", printed([](Stream* out) { return boolout(out, false); }));
  EXPECT_EQ(1, result);
}

TEST_F(OutputPrimitives, BooloutBcLeavesOutTheDefault) {
  for (bool flag : {false, true}) {
    EXPECT_EQ("", printed([=](Stream* out) { return boolout_bc(out, flag, "can_manage", flag); }));
    EXPECT_EQ(0, result);
  }
}

TEST_F(OutputPrimitives, BooloutBcPrintsALineForAnythingElse) {
  EXPECT_EQ("\tcan_manage=False\n", printed([](Stream* out) { return boolout_bc(out, false, "can_manage", true); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("\tdisablegoto=True\n", printed([](Stream* out) { return boolout_bc(out, true, "disablegoto", false); }));
  EXPECT_EQ(1, result);
}

TEST_F(OutputPrimitives, IntoutPrintsDecimals) {
  const std::pair<int, const char*> cases[] = {
      {0, "0"}, {7, "7"}, {-1, "-1"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
  for (auto& [value, expected] : cases) {
    EXPECT_EQ(expected, printed([value = value](Stream* out) { return intout(out, value); }));
    EXPECT_EQ(1, result);
  }
}

// Texts as they stand.

TEST_F(OutputPrimitives, PtroutPrintsTheTextOrZero) {
  EXPECT_EQ("proc", printed([](Stream* out) { return ptrout(out, "proc"); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("0", printed([](Stream* out) { return ptrout(out, nullptr); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("", printed([](Stream* out) { return ptrout(out, ""); }));
}

TEST_F(OutputPrimitives, PtrsfxoutPrintsTheTextAndItsSuffixOrZero) {
  EXPECT_EQ("proc_init", printed([](Stream* out) { return ptrsfxout(out, "proc", "_init"); }));
  EXPECT_EQ(1, result);
  EXPECT_EQ("0", printed([](Stream* out) { return ptrsfxout(out, nullptr, "_init"); }));
  EXPECT_EQ(1, result);
}

TEST_F(OutputPrimitives, PointersKeepTheirPerCentSigns) {
  EXPECT_EQ("100%%s", printed([](Stream* out) { return ptrout(out, "100%%s"); }));
  EXPECT_EQ("100%%%%", printed([](Stream* out) { return ptrsfxout(out, "100%%", "%%"); }));
  EXPECT_EQ("100%%", printed([](Stream* out) { return rawout(out, "100%%"); }));
}

// Failures.

TEST_F(OutputPrimitives, TheOthersReportAMissingStream) {
  EXPECT_EQ(0, boolout(nullptr, true));
  EXPECT_EQ(0, intout(nullptr, 1));
  EXPECT_EQ(0, ptrout(nullptr, "a"));
  EXPECT_EQ(0, ptrout(nullptr, nullptr));
  EXPECT_EQ(0, ptrsfxout(nullptr, "a", "b"));
  EXPECT_EQ(5u, messages.shown.size());
  for (const std::string& shown : messages.shown) EXPECT_EQ(0u, shown.find("cannot write: "));
}

TEST_F(OutputPrimitives, EachFailureToWriteIsReported) {
  const std::string longest(100000, 'x');
  auto stream = openfile("/dev/full", "w");
  EXPECT_EQ(0, charout(stream.get(), longest.c_str()));
  EXPECT_EQ(0, ptrout(stream.get(), longest.c_str()));
  EXPECT_EQ((Messages{write_failure(), write_failure()}), messages.shown);
}

TEST_F(OutputPrimitives, AQuotedTextStopsAtItsFirstFailingPiece) {
  const std::string longest(100000, 'x');
  auto stream = openfile("/dev/full", "w");
  EXPECT_EQ(0, strout(stream.get(), longest.c_str()));
  EXPECT_EQ(0, stringout(stream.get(), longest.c_str()));
  EXPECT_EQ((Messages{write_failure(), write_failure()}), messages.shown);
}

TEST_F(OutputPrimitives, AFailingCloseIsReported) {
  auto stream = openfile("/dev/full", "w");
  EXPECT_EQ(1, charout(stream.get(), "x"));
  EXPECT_EQ(Messages{}, messages.shown);
  EXPECT_EQ(0, closefile(*stream));
  EXPECT_EQ(Messages{write_failure()}, messages.shown);
}

TEST_F(OutputPrimitives, AWriteFailureIsReportedAsItIsAsked) {
  errno = ENOSPC;
  EXPECT_EQ(0, report_write_failure());
  EXPECT_EQ(Messages{write_failure()}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsThePathAndTheReason) {
  const std::string path = folder / "missing/file";
  EXPECT_EQ(nullptr, openfile(path.c_str(), "r"));
  EXPECT_EQ(nullptr, openfile(path.c_str(), "w"));
  const std::string message = "cannot open " + path + ": " + std::strerror(ENOENT);
  EXPECT_EQ((Messages{message, message}), messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsAFolder) {
  EXPECT_EQ(nullptr, openfile(folder.path().c_str(), "w"));
  EXPECT_EQ(Messages{"cannot open " + folder.path() + ": " + std::strerror(EISDIR)}, messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReportsAMissingPathOrMode) {
  messages.texts.clear();
  EXPECT_EQ(nullptr, openfile(nullptr, "r"));
  EXPECT_EQ(nullptr, openfile((folder / "file").c_str(), nullptr));
  EXPECT_EQ((Messages{"file_open_fail", "file_open_fail"}), messages.shown);
}

TEST_F(OutputPrimitives, OpenfileReadsWhatIsThere) {
  auto stream = openfile(folder.with("file", "text").c_str(), "r");
  ASSERT_NE(nullptr, stream);
  EXPECT_EQ("text", stream->read());
  EXPECT_EQ(Messages{}, messages.shown);
}

}  // namespace
