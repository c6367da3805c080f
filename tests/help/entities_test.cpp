#include "help/viewer/entities.h"

#include <gtest/gtest.h>

using namespace help;

namespace {

TEST(Entities, ProtectWhatMeansSomethingInAPage) { EXPECT_EQ("&lt;a&gt; &amp;amp; \"", escape("<a> &amp; \"")); }

TEST(Entities, AreReadOneByOne) {
  EXPECT_EQ(U'&', read_escaped("&amp;amp;").character);
  EXPECT_EQ(5U, read_escaped("&amp;amp;").size);
  EXPECT_EQ(U'\u00E4', read_escaped("\u00E4<").character);
  EXPECT_EQ(2U, read_escaped("\u00E4<").size);
}

TEST(Entities, AreWrittenAsNumbers) {
  EXPECT_EQ("a&#228;&#169; &#38;x;", number_entities("a&auml;&copy &x;"));
  EXPECT_EQ("&#38;#38;&#65;&#66;", number_entities("&amp;#38;&#65;&#x42"));
}

}  // namespace
