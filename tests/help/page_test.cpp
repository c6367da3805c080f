#include "help/viewer/page.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

using Strings = std::vector<std::string>;

/// What stands in the body of the page that the widget is given for such a body.
std::string body(const std::string& source) {
  const std::string html = read_page("<html><body>" + source).value().html;
  const std::string begin = "<html><head><title></title></head><body>";
  const std::string end = "</body></html>";
  EXPECT_TRUE(html.starts_with(begin) && html.ends_with(end)) << html;
  return html.substr(begin.size(), html.size() - begin.size() - end.size());
}

TEST(Page, HasATitle) {
  EXPECT_EQ("Gr\u00F6\u00DFe & Ort", read_page("<title>\n Gr&ouml;&szlig;e\n &amp;  Ort </title>").value().title);
  EXPECT_EQ("", read_page("<html>x").value().title);
}

TEST(Page, IsHtml) {
  for (const char* text : {"<!DOCTYPE html>x", "<HTML>", "<title>x</title>", "<!-- x --><body bgcolor=white>"}) {
    EXPECT_TRUE(read_page(text)) << text;
  }
  for (const std::string& text :
       {std::string(), std::string("words"), std::string("#include <stdio.h>\n"), std::string("<html>\0", 7),
        std::string("\x7F"
                    "ELF")}) {
    EXPECT_FALSE(read_page(text)) << text;
  }
}

TEST(Page, IsUtf8WithoutEntities) {
  EXPECT_EQ("\u00E4\u2014 &lt;b&gt; &amp;x; &amp;", body("&auml;&mdash; &lt;b&gt; &x; &"));
  EXPECT_EQ("\u00E4", body("\xE4"));
}

TEST(Page, KeepsWhatItNeedsOfTags) {
  EXPECT_EQ("<h1 align=\"center\">x</h1>", body("<H1 CLASS='big' ALIGN=center>x</H1>"));
  EXPECT_EQ("<table border=\"1\"><tr><td colspan=\"2\">x</td></tr></table>",
            body("<table border=1 onclick='x()'><tr><td colspan=2 rowspan=9999>x</td></tr></table>"));
}

TEST(Page, LeavesOutWhatTheWidgetDoesNotShow) {
  EXPECT_EQ("abc", body("a<!-- x --><span>b</span><script>if (a < b) x();</script><style>p {}</style><frame src=x>c"));
  EXPECT_EQ("", body("<form action=x><input name=y></form>"));
}

TEST(Page, HasWordsForPictures) { EXPECT_EQ("a &lt;x&gt;b", body("a <img src='$(x)' alt='&lt;x&gt;'><img src=y>b")); }

TEST(Page, NumbersLinksAndPlaces) {
  const Page page = read_page("<html><a name='b c'>x</a><a href='d.html#e'>y</a><a name=f href='?\"'>z</a>").value();
  EXPECT_NE(std::string::npos, page.html.find("<a name=\"0\">x</a><a href=\"0\">y</a><a name=\"1\" href=\"1\">z</a>"));
  EXPECT_EQ((Strings{"d.html#e", "?\""}), page.links);
  EXPECT_EQ((Strings{"b c", "f"}), page.places);
}

TEST(Page, ClosesWhatIsOpen) {
  EXPECT_EQ("<p>a <b>b <i>c</i></b></p>", body("<p>a <b>b <i>c"));
  EXPECT_EQ("<b>a <i>b</i></b> c", body("<b>a <i>b</b> c"));
  EXPECT_EQ("a", body("a</p></b></table>"));
}

TEST(Page, ClosesWhatEndsByItself) {
  EXPECT_EQ("<p>a</p><p>b</p><h1>c</h1><p></p><hr>d", body("<p>a<p>b<h1>c<hr>d"));
  EXPECT_EQ("<ul><li>a</li><li>b<ul><li>c</li></ul></li><li>d</li></ul>",
            body("<ul><li>a<li>b<ul><li>c</ul><li>d</ul>"));
  EXPECT_EQ("<dl><dt>a</dt><dd>b</dd><dt>c</dt><dd>d</dd></dl>", body("<dl><dt>a<dd>b<dt>c<dd>d</dl>"));
  EXPECT_EQ("<table><tr><td>a</td><td>b</td></tr><tr><th>c</th></tr></table>",
            body("<table><tr><td>a<td>b<tr><th>c</table>"));
  EXPECT_EQ("<a name=\"0\">a</a><a name=\"1\">b</a>", body("<a name=x>a<a name=y>b</a>"));
}

TEST(Page, MovesAnAnchorAroundAHeadingBeforeIt) {
  EXPECT_EQ("<a name=\"0\"></a><h2>a</h2>", body("<a name=x><h2>a</h2></a>"));
}

TEST(Page, LeavesOutWhatStandsInTheWrongPlace) {
  EXPECT_EQ("abcd", body("<li>a<td>b<dd>c<tr>d"));
  EXPECT_EQ("<table><tr><td>b</td></tr></table>", body("<table>a<p><tr>c<td>b</table>"));
}

TEST(Page, HasNothingInAListButItems) {
  EXPECT_EQ("<ul><li>a</li><li>b</li></ul>", body("<ul>a<li>b</ul>"));
  EXPECT_EQ("<ol> <li><b>a</b></li></ol>", body("<ol> <b>a</b></ol>"));
  EXPECT_EQ("<dl><dd><p>a</p></dd><dt>b</dt></dl>", body("<dl><p>a<dt>b</dl>"));
}

TEST(Page, HasALineOfCodeForEachOfPreformattedText) {
  EXPECT_EQ("<p></p><div><code>a\u00A0&amp;</code></div><div><code>\u00A0\u00A0b</code></div><p></p>c",
            body("<pre>\na &amp;\r\n  b\n</pre>c"));
  EXPECT_EQ("<p></p><div><code>a</code></div><div><code>\u00A0</code></div><div><code>b</code></div><p></p>",
            body("<pre>a\n\nb\n\n</pre>"));
  EXPECT_EQ("<p></p><div><code></code></div><p></p>", body("<pre>\n</pre>"));
}

TEST(Page, HasSpacesForTabsInPreformattedText) {
  const std::string four = "\u00A0\u00A0\u00A0\u00A0";
  EXPECT_EQ("<p></p><div><code>\u00E4bcd" + four + "e" + four + "\u00A0\u00A0\u00A0f</code></div><div><code>" + four +
                four + "g</code></div><p></p>",
            body("<pre>\u00E4bcd\te\tf\n\tg</pre>"));
}

TEST(Page, BreaksLinesInMarkedPreformattedText) {
  EXPECT_EQ("<p></p><div><code>a</code></div><div><code><b>b<br>c</b></code></div><div><code>d</code></div><p></p>",
            body("<pre>a\n<b>b\nc</b>\nd</pre>"));
  EXPECT_EQ("<p></p><div><code>a</code></div><p></p><p>b  c</p>", body("<pre>a<p>b  c"));
}

TEST(Page, HasSpaceBeforeARule) { EXPECT_EQ("<ul><li>a</li></ul><p></p><hr>b", body("<ul><li>a</ul><hr>b")); }

TEST(Page, HasNoTableRowOrCellThatIsEmpty) {
  EXPECT_EQ("<table><tr><td>\u2003</td></tr></table>", body("<table></table>"));
  EXPECT_EQ("<table><tr><td>\u2003</td></tr></table>", body("<table><tr></table>"));
  EXPECT_EQ("<table><tr><td>\u2003</td><td>a</td></tr></table>", body("<table><tr><td> <ul></ul><td>a</table>"));
}

TEST(Page, HasOneCaptionAtTheHeadOfATable) {
  EXPECT_EQ("<table><caption>a</caption><tr><td>b</td></tr></table>",
            body("<table><caption>a</caption><caption>c</caption><tr><td>b</table>"));
}

TEST(Page, IsNotNestedWithoutEnd) {
  std::string source;
  for (int i = 0; i < 1000; ++i) source += "<blockquote>";
  const std::string result = body(source + "x");
  EXPECT_EQ(60, static_cast<int>((result.size() - 1) / std::string("<blockquote></blockquote>").size()));
}

TEST(Page, SaysASentence) {
  const Page page = make_notice("No <page>", "caf\xE9 & more");
  EXPECT_EQ("No <page>", page.title);
  EXPECT_NE(std::string::npos, page.html.find("<h1>No &lt;page&gt;</h1><p>caf\u00E9 &amp; more</p>"));
}

}  // namespace
