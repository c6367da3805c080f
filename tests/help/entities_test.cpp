#include "help/viewer/entities.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

TEST(Entities, HaveNames) {
  EXPECT_EQ("Gr\u00F6\u00DFe", decoded("Gr&ouml;&szlig;e"));
  EXPECT_EQ("\u00A0\u00FF", decoded("&nbsp;&yuml;"));
  EXPECT_EQ("a < b & \"c\" > d", decoded("a &lt; b &amp; &quot;c&quot; &gt; d"));
  EXPECT_EQ("\u2026 \u2014 \u2192", decoded("&hellip; &mdash; &rarr;"));
}

TEST(Entities, HaveNumbers) {
  EXPECT_EQ("A\u00E4\u20AC", decoded("&#65;&#228;&#8364;"));
  EXPECT_EQ("A\u20AC", decoded("&#x41;&#X20ac;"));
}

TEST(Entities, NeedNoSemicolonAtTheEndOfAWord) { EXPECT_EQ("\u00A9 1999", decoded("&copy 1999")); }

TEST(Entities, OfNoCharacterAreReplaced) {
  EXPECT_EQ("\uFFFD\uFFFD\uFFFD\uFFFD", decoded("&#0;&#xD800;&#x110000;&#99999999999999;"));
}

TEST(Entities, ThatAreUnknownStandForThemselves) {
  EXPECT_EQ("&nothing; &; & &#; &#x; &#1a; x&y", decoded("&nothing; &; & &#; &#x; &#1a; x&y"));
}

TEST(Entities, ProtectWhatMeansSomethingInAPage) { EXPECT_EQ("&lt;a&gt; &amp;amp; \"", escaped("<a> &amp; \"")); }

}  // namespace
