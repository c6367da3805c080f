#include "libkel/unified_diff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

using namespace vqc;

namespace {

using namespace std::string_literals;

/// Lines of one letter each.
std::string lines(std::string_view letters) {
  std::string text;
  for (const char letter : letters) (text += letter) += '\n';
  return text;
}

/// The hunks alone.
std::string hunks(std::string_view old_text, std::string_view new_text) {
  const std::string diff = unified_diff("file", old_text, new_text);
  const std::size_t head = diff.find("@@ ");
  return head == std::string::npos ? "" : diff.substr(head);
}

TEST(UnifiedDiff, IsEmptyWhereNothingChanges) {
  EXPECT_EQ("", unified_diff("file", "", ""));
  EXPECT_EQ("", unified_diff("file", "same\n", "same\n"));
}

TEST(UnifiedDiff, ShowsAChangeAndThreeLinesAround) {
  EXPECT_EQ(
      "diff --git a/X_config.c b/X_config.c\n"
      "--- a/X_config.c\n"
      "+++ b/X_config.c\n"
      "@@ -3,7 +3,7 @@\n"
      " c\n"
      " d\n"
      " e\n"
      "-f\n"
      "+F\n"
      " g\n"
      " h\n"
      " i\n",
      unified_diff("X_config.c", lines("abcdefghij"), lines("abcdeFghij")));
}

TEST(UnifiedDiff, ShowsLinesThatComeAndGo) {
  EXPECT_EQ("@@ -1,2 +1,3 @@\n a\n+x\n b\n", hunks(lines("ab"), lines("axb")));
  EXPECT_EQ("@@ -1,3 +1,2 @@\n a\n-x\n b\n", hunks(lines("axb"), lines("ab")));
  EXPECT_EQ("@@ -1,2 +1,2 @@\n-a\n-b\n+c\n+d\n", hunks(lines("ab"), lines("cd")));
}

TEST(UnifiedDiff, CountsOneLineWithoutANumberAndNoneFromTheLineBefore) {
  EXPECT_EQ("@@ -1 +1 @@\n-a\n+b\n", hunks(lines("a"), lines("b")));
  EXPECT_EQ("@@ -0,0 +1 @@\n+a\n", hunks("", lines("a")));
  EXPECT_EQ("@@ -1,2 +0,0 @@\n-a\n-b\n", hunks(lines("ab"), ""));
}

TEST(UnifiedDiff, SixLinesBetweenChangesAreShownAndSevenAreNot) {
  EXPECT_EQ("@@ -1,8 +1,8 @@\n-a\n+A\n 1\n 2\n 3\n 4\n 5\n 6\n-b\n+B\n", hunks(lines("a123456b"), lines("A123456B")));
  EXPECT_EQ("@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n",
            hunks(lines("a1234567b"), lines("A1234567B")));
}

TEST(UnifiedDiff, LaterHunksCountWhatCameBefore) {
  EXPECT_EQ("@@ -1,3 +1,5 @@\n+x\n+y\n 1\n 2\n 3\n@@ -5,4 +7,3 @@\n 5\n 6\n 7\n-8\n",
            hunks(lines("12345678"), lines("xy1234567")));
}

TEST(UnifiedDiff, TellsOfAMissingLastNewline) {
  EXPECT_EQ("@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n", hunks("a", "a\n"));
  EXPECT_EQ("@@ -1 +1 @@\n-a\n+a\n\\ No newline at end of file\n", hunks("a\n", "a"));
  EXPECT_EQ("@@ -1,2 +1,2 @@\n-a\n+A\n b\n\\ No newline at end of file\n", hunks("a\nb", "A\nb"));
}

TEST(UnifiedDiff, TakesBytesAsTheyAre) {
  EXPECT_EQ("@@ -1 +1 @@\n-a\r\n+a\n", hunks("a\r\n", "a\n"));
  EXPECT_EQ("@@ -1 +1 @@\n-\0\xff\n+\0\xfe\n"s, hunks("\0\xff\n"s, "\0\xfe\n"s));
}

TEST(UnifiedDiff, OfANewFileSaysSo) {
  EXPECT_EQ(
      "diff --git a/new b/new\n"
      "new file mode 100644\n"
      "--- /dev/null\n"
      "+++ b/new\n"
      "@@ -0,0 +1,2 @@\n"
      "+a\n"
      "+b\n",
      unified_diff("new", {}, lines("ab")));
  EXPECT_EQ("diff --git a/new b/new\nnew file mode 100644\n", unified_diff("new", {}, ""));
}

std::string head(std::string_view path) {
  const std::string diff = unified_diff(path, "a\n", "b\n");
  return diff.substr(0, diff.find("@@"));
}

TEST(UnifiedDiff, NamesPathsFromTheRootAsThoseOfAFolder) {
  EXPECT_EQ("diff --git a/tmp/f b/tmp/f\n--- a/tmp/f\n+++ b/tmp/f\n", head("/tmp/f"));
}

TEST(UnifiedDiff, EndsAPathWithBlanksByATab) {
  EXPECT_EQ("diff --git a/a b b/a b\n--- a/a b\t\n+++ b/a b\t\n", head("a b"));
}

TEST(UnifiedDiff, QuotesWhatAHeadCannotHold) {
  EXPECT_EQ(
      "diff --git \"a/\\\"\\\\\\012\\011\\177\" \"b/\\\"\\\\\\012\\011\\177\"\n"
      "--- \"a/\\\"\\\\\\012\\011\\177\"\n"
      "+++ \"b/\\\"\\\\\\012\\011\\177\"\n",
      head("\"\\\n\t\x7f"));
  EXPECT_EQ("diff --git a/\xc3\xa4 b/\xc3\xa4\n--- a/\xc3\xa4\n+++ b/\xc3\xa4\n", head("\xc3\xa4"));
}

/// Takes the next line, with its line feed, from a text.
std::string take_line(std::string_view& text) {
  const std::string line(text.substr(0, text.find('\n') + 1));
  text.remove_prefix(line.size());
  return line;
}

/// A side of a hunk's head: which line is the first, from 0, and how many there are.
struct Extent {
  explicit Extent(std::string_view head) {
    const auto [rest, error] = std::from_chars(head.begin(), head.end(), begin);
    if (rest != head.end() && *rest == ',') std::from_chars(rest + 1, head.end(), count);
    if (count > 0) --begin;
  }
  std::size_t begin = 0;
  std::size_t count = 1;
};

/// The lines of a text, each with its line feed.
std::vector<std::string> split(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.emplace_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

void expect(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(what);
}

/// What a patch program makes of the old text. It throws where the hunks do not fit.
std::string patched(const std::string& old_text, std::string_view hunks) {
  const std::vector<std::string> old_lines = split(old_text);
  std::vector<std::string> result;
  std::size_t next = 0;
  while (!hunks.empty()) {
    const std::string head = take_line(hunks);
    expect(head.starts_with("@@ -") && head.ends_with(" @@\n"), "no head");
    Extent before(std::string_view(head).substr(4));
    Extent after(std::string_view(head).substr(head.find('+') + 1));
    expect(before.begin >= next, "hunks overlap");
    while (next < before.begin) result.push_back(old_lines.at(next++));
    expect(after.begin == result.size(), "new lines are counted wrongly");
    while (before.count + after.count > 0) {
      std::string line = take_line(hunks);
      if (hunks.starts_with("\\ No newline at end of file\n")) {
        take_line(hunks);
        line.pop_back();
      }
      const std::string text = line.substr(1);
      if (line[0] != '+') expect(before.count-- > 0 && text == old_lines.at(next++), "old lines differ");
      if (line[0] != '-') {
        expect(after.count-- > 0, "too many new lines");
        result.push_back(text);
      }
    }
  }
  while (next < old_lines.size()) result.push_back(old_lines[next++]);
  std::string text;
  for (const std::string& line : result) text += line;
  return text;
}

using Random = std::minstd_rand;

std::string random_text(Random& random) {
  std::string text;
  const auto most = random() % 40;
  const auto letters = 1 + random() % 6;
  for (unsigned i = 0; i < most; ++i) text += {static_cast<char>('a' + random() % letters), '\n'};
  if (!text.empty() && random() % 4 == 0) text.pop_back();
  return text;
}

TEST(UnifiedDiff, TurnsAnyTextIntoAnyOther) {
  Random random(1);
  for (int i = 0; i < 300; ++i) {
    const std::string old_text = random_text(random);
    const std::string new_text = random_text(random);
    EXPECT_EQ(new_text, patched(old_text, hunks(old_text, new_text))) << old_text << "->\n" << new_text;
  }
}

TEST(UnifiedDiff, CopesWithLargeTextsThatHaveNothingInCommon) {
  std::string old_text;
  std::string new_text;
  for (int i = 0; i < 20000; ++i) {
    old_text += "old " + std::to_string(i) + "\n";
    new_text += "new " + std::to_string(i) + "\n";
  }
  EXPECT_TRUE(new_text == patched(old_text, hunks(old_text, new_text)));
}

}  // namespace
