#include "libkel/message.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "support/messages.h"

using namespace vqc;

namespace {

class Message : public testing::Test {
 protected:
  RecordedMessages messages;
};

TEST(MessageInABatchRun, IsNotShown) {
  message_sink = nullptr;
  EXPECT_EQ(0, error_show("bad_save_file"));
  EXPECT_EQ(0, error_show_1s("file_write_fail", "why"));
  EXPECT_EQ(0, error_show_2s("file_open_fail", "path", "why"));
  EXPECT_EQ(0, vq_syntax_error(3, "se_string"));
  EXPECT_EQ(nullptr, vq_lookup_string("se_string"));
}

TEST_F(Message, LookupGivesTheTextOfTheResource) {
  messages.texts["none"] = "(nothing)";
  EXPECT_STREQ("(nothing)", vq_lookup_string("none"));
}

TEST_F(Message, LookupOfAMissingResourceIsEmpty) { EXPECT_STREQ("", vq_lookup_string("none")); }

TEST_F(Message, LookupOfNoNameIsNull) {
  EXPECT_EQ(nullptr, vq_lookup_string(nullptr));
  EXPECT_EQ(nullptr, vq_lookup_string(""));
}

TEST_F(Message, ShowsTheTextOfItsName) {
  messages.texts["bad_save_file"] = "This is no document";
  EXPECT_EQ(1, error_show("bad_save_file"));
  EXPECT_EQ(Messages{"This is no document"}, messages.shown);
}

TEST_F(Message, ShowsTheBareNameWhenTheTextIsMissing) {
  EXPECT_EQ(1, error_show("bad_save_file"));
  EXPECT_EQ(1, error_show_1s("file_write_fail", "why"));
  EXPECT_EQ(1, error_show_2s("file_open_fail", "path", "why"));
  EXPECT_EQ((Messages{"bad_save_file", "file_write_fail", "file_open_fail"}), messages.shown);
}

TEST_F(Message, ShowsNothingForANullName) {
  EXPECT_EQ(0, error_show(nullptr));
  EXPECT_EQ(0, error_show_1s(nullptr, "a"));
  EXPECT_EQ(0, error_show_2s(nullptr, "a", "b"));
  EXPECT_EQ(Messages{}, messages.shown);
}

TEST_F(Message, IsFilledWithOneString) {
  messages.texts["file_write_fail"] = "Cannot write: %s.";
  EXPECT_EQ(1, error_show_1s("file_write_fail", "disk full"));
  EXPECT_EQ(Messages{"Cannot write: disk full."}, messages.shown);
}

TEST_F(Message, IsFilledWithTwoStringsInTheirOrder) {
  messages.texts["file_open_fail"] = "Cannot open \"%s\" (%s)";
  EXPECT_EQ(1, error_show_2s("file_open_fail", "a.vqc", "no such file"));
  EXPECT_EQ(Messages{"Cannot open \"a.vqc\" (no such file)"}, messages.shown);
}

TEST_F(Message, TakesNullArgumentsForEmptyOnes) {
  messages.texts["one"] = "<%s>";
  messages.texts["two"] = "<%s|%s>";
  error_show_1s("one", nullptr);
  error_show_2s("two", nullptr, "b");
  error_show_2s("two", "a", nullptr);
  EXPECT_EQ((Messages{"<>", "<|b>", "<a|>"}), messages.shown);
}

TEST_F(Message, LeavesPlaceholdersInItsArgumentsAlone) {
  messages.texts["file_open_fail"] = "%s: %s";
  error_show_2s("file_open_fail", "%s%n", "%d");
  EXPECT_EQ(Messages{"%s%n: %d"}, messages.shown);
}

TEST_F(Message, FillsNothingButStringsAndNumbers) {
  messages.texts["file_write_fail"] = "%n%x %s %p";
  error_show_1s("file_write_fail", "why");
  EXPECT_EQ(Messages{"%n%x why %p"}, messages.shown);
}

TEST_F(Message, HasNoGreatestLength) {
  const std::string longest(100000, 'x');
  messages.texts["file_write_fail"] = "<%s>";
  error_show_1s("file_write_fail", longest.c_str());
  EXPECT_EQ(Messages{"<" + longest + ">"}, messages.shown);
}

TEST_F(Message, TextWithoutArgumentsIsShownAsItStands) {
  messages.texts["bad_save_file"] = "100% bad: %s";
  error_show("bad_save_file");
  EXPECT_EQ(Messages{"100% bad: %s"}, messages.shown);
}

TEST_F(Message, SyntaxErrorIsWordedByTheResourceFile) {
  messages.texts["syntax_error"] = "Line %d: %s!";
  messages.texts["se_string"] = "a name is expected";
  EXPECT_EQ(1, vq_syntax_error(12, "se_string"));
  EXPECT_EQ(Messages{"Line 12: a name is expected!"}, messages.shown);
}

TEST_F(Message, SyntaxErrorHasWordsOfItsOwnWithoutAResourceFile) {
  vq_syntax_error(3, "se_string");
  EXPECT_EQ(Messages{"Syntax error on line 3: se_string"}, messages.shown);
}

TEST_F(Message, SyntaxErrorWithoutANameIsUnknown) {
  vq_syntax_error(3, nullptr);
  vq_syntax_error(4, "");
  EXPECT_EQ((Messages{"Syntax error on line 3: <unknown error>", "Syntax error on line 4: <unknown error>"}),
            messages.shown);
}

TEST_F(Message, SyntaxErrorNameIsNoFormat) {
  vq_syntax_error(1, "'%'");
  EXPECT_EQ(Messages{"Syntax error on line 1: '%'"}, messages.shown);
}

TEST(SystemErrmsg, IsEmptyWithoutAnError) {
  errno = 0;
  EXPECT_STREQ("", system_errmsg());
}

TEST(SystemErrmsg, IsTheTextOfTheLibrary) {
  errno = ENOENT;
  const std::string text = system_errmsg();
  EXPECT_EQ(std::strerror(ENOENT), text);
}

}  // namespace
