#include "help/viewer/read_page.h"

#include <gtest/gtest.h>

#include "support/files.h"

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
  EXPECT_NE(std::string::npos, result.find(">x<"));
}

TEST(Page, EndsWhereItIsNestedBeyondAllReason) {
  std::string source = "<p>a</p>";
  for (int i = 0; i < 100000; ++i) source += "<b>";
  for (int i = 0; i < 100000; ++i) source += "</i>";
  EXPECT_TRUE(body(source + "x").starts_with("<p>a</p><b><b>"));
}

TEST(Page, MayBeLong) {
  const std::string words(11000000, 'x');
  EXPECT_EQ("<p>" + words + "</p><p>b</p>", body("<p>" + words + "<p title=\"" + words + "\">b"));
}

TEST(Page, NeedsNoBody) {
  EXPECT_EQ("<html><head><title>a</title></head><body><b>b</b> c<p>d</p></body></html>",
            read_page("<title>a</title><b>b</b> c<p>d").value().html);
  EXPECT_EQ("abcd<i>e</i>", body("a</body></html>b</body>c</html>d<i>e"));
}

TEST(Page, ShowsTheWordsOfElementsThatItDoesNotKnow) {
  EXPECT_EQ("abcd", body("<foo>a<bar x=1>b</foo>c</bar>d"));
  EXPECT_EQ("words", body("<frameset><frame src=x><noframes>words</noframes></frameset>"));
}

TEST(Page, LeavesOutDeclarations) {
  EXPECT_EQ("abcdef", body("a<!doctype html>b<!foo>c<![CDATA[x]]>d<?php echo ?>e<? echo ?>f"));
  EXPECT_EQ("a", body("a<!foo"));
}

TEST(Page, LeavesOutComments) {
  EXPECT_EQ("abc", body("a<!-- <b> -- > -->b<!---->c"));
  EXPECT_EQ("a", body("a<!-- b"));
}

TEST(Page, MayHaveBracketsThatAreNoTags) {
  EXPECT_EQ("a &lt; b &lt;", body("a < b <"));
  EXPECT_EQ("<a>b</a>", body("<a title='>' x=\">\">b"));
}

TEST(Page, MayEndInTheMiddleOfATag) {
  EXPECT_EQ("a<b></b>", body("a<b"));
  EXPECT_EQ("a<p></p>", body("a<p title=\"x>b"));
}

TEST(Page, HasTheEncodingThatItIsIn) {
  EXPECT_EQ("\u00E4", body("<meta http-equiv=Content-Type content='text/html; charset=utf-16'>\u00E4"));
  EXPECT_EQ("\u00E4", body("<meta charset=utf-8>\xE4"));
  EXPECT_EQ("\u00E4", body("<?xml version='1.0' encoding='nonsense'?>\u00E4"));
}

TEST(Page, LoadsNothing) {
  const TemporaryFolder folder;
  const std::string declarations = folder.with("declarations", "<!ENTITY x 'loaded'>");
  const std::string html = read_page("<!DOCTYPE html SYSTEM \"" + declarations + "\"><body>&x;").value().html;
  EXPECT_NE(std::string::npos, html.find("<body>&amp;x;</body>")) << html;
}

TEST(Page, IsReadWithoutAWord) {
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  body("<p a='1' a='2'></b>&x &#0;<1></1 \x01<table><p title='x");
  EXPECT_EQ("", testing::internal::GetCapturedStdout());
  EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST(Attribute, IsFoundHoweverItIsWritten) {
  EXPECT_EQ((Strings{"b c", "b", "b", "a&b", "b>"}),
            read_page("<html><a x=\"1\" href=\"b c\"></a><a HREF = 'b'></a><a href=b x=1></a>"
                      "<a href='a&amp;b'></a><a href='b>'></a>")
                .value()
                .links);
}

TEST(Attribute, IsLeftOutWhereItHasNoValue) {
  EXPECT_EQ("<a name=\"0\">b</a><a>c</a><a>d</a><a>e</a>",
            body("<a name=href>b</a><a href>c</a><a title='href=x'>d</a><a = '>e"));
}

TEST(Entity, HasAName) {
  EXPECT_EQ("Gr\u00F6\u00DFe", body("Gr&ouml;&szlig;e"));
  EXPECT_EQ("\u00A0\u00FF", body("&nbsp;&yuml;"));
  EXPECT_EQ("a &lt; b &amp; \"c\" &gt; d", body("a &lt; b &amp; &quot;c&quot; &gt; d"));
  EXPECT_EQ("\u2026 \u2014 \u2192", body("&hellip; &mdash; &rarr;"));
}

TEST(Entity, HasANumber) {
  EXPECT_EQ("A\u00E4\u20AC", body("&#65;&#228;&#8364;"));
  EXPECT_EQ("A\u20AC", body("&#x41;&#X20ac;"));
}

TEST(Entity, NeedsNoSemicolonAtTheEndOfAWord) {
  EXPECT_EQ("\u00A9 1999", body("&copy 1999"));
  EXPECT_EQ("A, B", body("&#65, &#x42"));
}

TEST(Entity, OfNoCharacterIsReplaced) {
  EXPECT_EQ("\uFFFD\uFFFD\uFFFD\uFFFD", body("&#0;&#xD800;&#x110000;&#99999999999999;"));
}

TEST(Entity, ThatIsUnknownStandsForItself) {
  EXPECT_EQ("&amp;nothing; &amp;; &amp; &amp;#; &amp;#x; &amp;#1a; x&amp;y", body("&nothing; &; & &#; &#x; &#1a; x&y"));
}

TEST(Entity, IsReadInValuesToo) { EXPECT_EQ("\u00E4\uFFFDb&amp;c", body("<img alt='&auml;&#0;b&c'>")); }

TEST(Page, SaysASentence) {
  const Page page = make_notice("No <page>", "caf\xE9 & more");
  EXPECT_EQ("No <page>", page.title);
  EXPECT_NE(std::string::npos, page.html.find("<h1>No &lt;page&gt;</h1><p>caf\u00E9 &amp; more</p>"));
}

}  // namespace
