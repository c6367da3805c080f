#include "help/viewer/page_text.h"

#include <gtest/gtest.h>

#include <clocale>

using namespace help;

namespace {

const std::string mark = "<a name=\"found\" href=\"#\" target=\"found\">";

/// The body of a page in which the words have been found and marked; "" when they have not been found.
std::string found(const std::string& body, const std::string& words, std::size_t from = 0) {
  const std::string head = "<html><head><title>title</title></head><body>";
  const PageText text(head + body);
  const std::optional<Span> span = text.find(words, from);
  return span ? text.mark(*span).substr(head.size()) : "";
}

TEST(Find, MarksTheFirstSuchWords) { EXPECT_EQ("one " + mark + "two</a> two", found("one two two", "two")); }

TEST(Find, LooksIntoTheBodyAlone) {
  EXPECT_EQ("", found("one", "title"));
  EXPECT_EQ("", found("<b>one</b>", "b>"));
}

TEST(Find, DoesNotCareForCase) {
  std::setlocale(LC_ALL, "C.UTF-8");
  EXPECT_EQ(mark + "\u00C4rger</a>", found("\u00C4rger", "\u00E4RGER"));
}

TEST(Find, DoesNotCareForWhiteSpace) {
  EXPECT_EQ("a " + mark + "b \n c</a> d", found("a b \n c d", "b c"));
  EXPECT_EQ(mark + "b c</a>", found("b c", "b   c"));
}

TEST(Find, ReadsEntities) { EXPECT_EQ("a " + mark + "&lt;b&gt; &amp;</a> c", found("a &lt;b&gt; &amp; c", "<b> &")); }

TEST(Find, ReadsThroughTagsOfWords) {
  EXPECT_EQ("a <b>" + mark + "bo</a></b><a href=\"#\" target=\"found\">ld</a>er", found("a <b>bo</b>lder", "bold"));
}

TEST(Find, DoesNotReadAcrossLines) {
  EXPECT_EQ("", found("<p>a</p><p>b</p>", "ab"));
  EXPECT_EQ("", found("a<br>b", "a b"));
}

TEST(Find, InterruptsALink) {
  EXPECT_EQ("<a href=\"3\">a </a><a name=\"found\" href=\"3\" target=\"found\">b</a><a href=\"3\"> c</a>",
            found("<a href=\"3\">a b c</a>", "b"));
}

TEST(Find, GoesOnFromAPlaceAndThenFromTheTop) {
  const PageText text("<body>ab ab");
  const std::optional<Span> first = text.find("ab", 0);
  const std::optional<Span> second = text.find("ab", first.value().begin + 1);
  EXPECT_LT(first.value().begin, second.value().begin);
  EXPECT_EQ(first.value().begin, text.find("ab", second.value().begin + 1).value().begin);
}

TEST(Find, FindsNothingInNothing) {
  EXPECT_FALSE(PageText("").find("a", 0));
  EXPECT_FALSE(PageText("<body>a").find("", 0));
  EXPECT_FALSE(PageText("<body>a<b").find("b", 0));
  EXPECT_FALSE(PageText("<body>a").find("abcdefgh", 7));
}

TEST(Find, TakesAnything) {
  EXPECT_EQ("", found("%s%n $(x)", "\xFF"));
  EXPECT_EQ(mark + "%s%n</a> $(x)", found("%s%n $(x)", "%s%n"));
}

}  // namespace
