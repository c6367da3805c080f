#include <gtest/gtest.h>

#include <string>

#include "check/check_support.h"
#include "support/files.h"

namespace {

// The rules on icons and the headers that have them.

const std::string kFamily = " family F { widget=W widget=X }";

Sayings said_of_widgets(const std::string& w, const std::string& x, const CheckOptions& options = {}) {
  return said_at_marks("VQconfig widget W { " + w + " } widget X { " + x + " }" + kFamily, options);
}

TEST(Icons, NeedTheirHeaders) {
  EXPECT_EQ(
      (Sayings{"icon_without_header: the icon 'l' has no header", "icon_without_header: the icon 's' has no header"}),
      said_of_widgets("largeicon=<'l'> smallicon=<'s'>", ""));
  EXPECT_EQ((Sayings{"icon_without_header: the icon 's' has no header"}),
            said_of_widgets("largeicon='l' largeiconheader='l.xbm' smallicon=<'s'>", ""));
}

TEST(Icons, MayBothBeInOneHeaderThatIsNoBitmap) {
  EXPECT_EQ(Sayings{}, said_of_widgets("largeicon='l' largeiconheader='icons.h' smallicon='s'", ""));
}

TEST(Icons, MayComeWithAnotherWidget) {
  EXPECT_EQ(Sayings{}, said_of_widgets("smallicon='s'", "largeicon='s' largeiconheader='s.xbm'"));
}

TEST(Icons, MayComeWithTheHeadersOfAFamily) {
  EXPECT_EQ(Sayings{}, said_about("VQconfig widget W { largeicon='l' } family F { widget=W header='icons/l.xbm' }"));
}

TEST(IconHeaders, OfBitmapsAreFoundWhereTheyAreIncludedForTheSecondTime) {
  const MarkedText text(
      "VQconfig widget W { largeicon='i' largeiconheader=<'i.xbm'> smalliconheader=<'i.xbm'> } "
      "widget X { largeicon='i' largeiconheader='i.xbm' }" +
      kFamily);
  const Checked checked(text.text);
  ASSERT_EQ((Sayings{"icon_header_twice: 'i.xbm' is included twice"}), checked.said());
  EXPECT_EQ(text.ranges[1], checked.findings[0].range);
  EXPECT_EQ((std::vector{Note{text.ranges[0], "it is included here already"}}), checked.findings[0].notes);
}

TEST(IconHeaders, OfUnusedWidgetsAreNotIncluded) {
  EXPECT_EQ((Sayings{"unused_name: no family has the widget 'X'"}),
            said_about("VQconfig widget W { largeiconheader='i.xbm' } widget X { largeiconheader='i.xbm' } "
                       "family F { widget=W }"));
}

TEST(IconHeaders, MayBeIncludedTwiceIfTheyHaveAGuard) {
  const std::string icon = "largeicon='i' largeiconheader=";
  EXPECT_EQ(Sayings{}, said_of_widgets(icon + "'i.h'", icon + "'i.h'"));
  const TemporaryFolder folder;
  folder.with("guarded.xbm", "#ifndef i_width\n#define i_width 16\n#endif\n");
  folder.with("plain.h", "static char i_bits[] = {0};\n");
  const CheckOptions beside{{}, folder.path()};
  EXPECT_EQ(Sayings{}, said_of_widgets(icon + "'guarded.xbm'", icon + "'guarded.xbm'", beside));
  EXPECT_EQ((Sayings{"icon_header_twice: 'plain.h' is included twice"}),
            said_of_widgets(icon + "'plain.h'", icon + "<'plain.h'>", beside));
}

}  // namespace
