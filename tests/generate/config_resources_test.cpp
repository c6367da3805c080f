#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/config_file.h"

using namespace vqc;

namespace {

const std::string array_end =
    "  |\t{(char *) 0, (XrmQuark) 0, (Popup_p) 0, 0, False, vqc_free_default, vqc_free_default, 0, False, False, "
    "(char *) 0}\n"
    "  |};\n"
    "  |\n";

std::string heading(const std::string& marks, const char* family) {
  return marks + "|/*\n" + marks + "|** Resource arrays\n" + marks + "|*/\n" + marks + "|\n" + marks +
         "|/* Family: " + family + " */\n";
}

class Resources : public GenerateTest {
 protected:
  void expect(const std::string& marked) const {
    expect_each(marked, write_resources, {write_popups, write_page_names});
  }

  /// The row of the one resource of widget W, without its tab.
  std::string row() const {
    const std::string array = written_by(write_resources, {}, {write_popups, write_page_names});
    const std::string head = "Resource_t xr_W_resources[] = {\n\t";
    EXPECT_EQ(0U, array.find(head));
    return array.substr(head.size(), array.find('\n', head.size()) - head.size());
  }

  /// That of widget W with a resource that is given so.
  std::string row_of(const std::string& resource, const std::string& widget_fields = "") {
    describe_bare("widget 'W' { " + widget_fields + " resource_definitions=" + resource +
                  "; } family 'F' { widget='W' popup='edit' page='one' page='two' }");
    return row();
  }
};

TEST_F(Resources, OfNewResource) {
  EXPECT_EQ(
      "{XmNr, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, False, (char *) 0},",
      row_of("'XmNr', , , True"));
}

TEST_F(Resources, PageFollowsThePopupDirectly) {
  EXPECT_EQ(
      "{XmNr, (XrmQuark) 0, &(popups[0]),1, False, vqc_free_default, vqc_free_default, 6, False, False, XmNcount},",
      row_of("'XmNr', 'edit', 'two', False, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 6 counter 'XmNcount'"));
}

TEST_F(Resources, PopupAndPageAreCountedOverTheFile) {
  describe_bare(
      "widget 'W' { resource_definitions='r', 'd', 'c', True; }"
      "family 'F' { popup='a' popup='b' page='a' page='b' } family 'G' { widget='W' popup='c' popup='d' page='c' }");
  const std::string arrays = written_by(write_resources, {}, {write_popups, write_page_names});
  EXPECT_NE(std::string::npos, arrays.find("\t{r, (XrmQuark) 0, &(popups[3]),2, True, ")) << arrays;
}

TEST_F(Resources, PopupAndPageThatAreNotInTheTablesAreNone) {
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, False, (char *) 0},",
      row_of("'r', 'missing', 'missing', True"));
}

TEST_F(Resources, PopupAndPageOfAnUnselectedFamilyAreNone) {
  describe_bare(
      "widget 'W' { resource_definitions='r', 'a', 'a', True; }"
      "family 'F' { popup='a' page='a' } family 'G' { widget='W' }");
  leave_out("F");
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, False, (char *) 0},",
      row());
}

TEST_F(Resources, PopupAndPageNamedInADocumentsPoolsOnlyAreNone) {
  describe_bare(
      "popup 'pool' { } page 'pool' widget 'W' { resource_definitions='r', 'pool', 'pool', True; }"
      "family 'G' { widget='W' }");
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, False, (char *) 0},",
      row());
}

TEST_F(Resources, FreeModesAreWords) {
  const std::string begin = "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, ";
  const std::string end = ", -1, False, False, (char *) 0},";
  EXPECT_EQ(begin + "vqc_free, vqc_dont_free" + end, row_of("'r', , , True, VQC_FREE, VQC_DONT_FREE"));
  EXPECT_EQ(begin + "vqc_dont_free, vqc_free_default" + end, row_of("'r', , , True, VQC_DONT_FREE, VQC_FREE_DEFAULT"));
}

TEST_F(Resources, FreeModeByDefaultIsTheWidgets) {
  const std::string begin = "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, ";
  const std::string end = ", -1, False, False, (char *) 0},";
  EXPECT_EQ(begin + "vqc_dont_free, vqc_dont_free" + end, row_of("'r', , , True", "default_is_dont_free=True"));
  EXPECT_EQ(begin + "vqc_free, vqc_dont_free" + end,
            row_of("'r', , , True, VQC_FREE, VQC_FREE_DEFAULT", "default_is_dont_free=True"));
}

TEST_F(Resources, FreeModeOutOfRangeIsDontFree) {
  row_of("'r', , , True");
  document.widgets.find("W")->resource_definitions.head()->free_get = static_cast<FreeMode>(9);
  EXPECT_EQ("{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_dont_free, vqc_free_default, -1, False, False, (char *) 0},",
            row());
}

TEST_F(Resources, CompatibilityIsThatOfTheMoment) {
  document.compatibility.mfc = true;
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, True, False, (char *) 0},",
      row_of("'r', , , True"));
  document.compatibility.mfc = false;
  document.compatibility.java = true;
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, True, (char *) 0},",
      row_of("'r', , , True"));
}

TEST_F(Resources, AccessIsAnyNumber) {
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, 0, False, False, (char *) 0},",
      row_of("'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 0"));
  EXPECT_EQ(
      "{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -2147483648, False, False, "
      "(char *) 0},",
      row_of("'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access -2147483648"));
}

TEST_F(Resources, WithoutANameHaveNoRow) {
  row_of("'r', , , True");
  document.widgets.find("W")->resource_definitions.head()->name = nullptr;
  EXPECT_EQ(
      "{(char *) 0, (XrmQuark) 0, (Popup_p) 0, 0, False, vqc_free_default, vqc_free_default, 0, False, False, "
      "(char *) 0}",
      row());
}

const std::string row_of_r =
    "|\t{r, (XrmQuark) 0, (Popup_p) 0, -1, True, vqc_free_default, vqc_free_default, -1, False, False, (char *) 0},\n";

TEST_F(Resources, FollowedByAnEmptyLineForEachFamily) {
  describe_bare(
      "widget 'W' { resource_definitions='r', , , True; } family 'F' { } family 'G' { widget='W' } family 'H' { }");
  expect("  |\n" + heading("c ", "G") + "  |Resource_t xr_W_resources[] = {\n  " + row_of_r + array_end +
         "  |\n"
         "  |\n"
         "  |\n");
}

TEST_F(Resources, EmptyLinesOnlyWhereNoWidgetHasResources) {
  describe_bare("widget 'W' { } family 'F' { widget='W' } family 'G' { }");
  expect("  |\n  |\n");
}

TEST_F(Resources, NothingWithoutFamilies) { expect(""); }

TEST_F(Resources, TitleIsWrittenForEveryFamilyThatHasAnArray) {
  describe_bare(
      "widget 'V' { resource_definitions='r', , , True; } widget 'W' { resource_definitions='r', , , True; }"
      "family 'F' { widget='V' } family 'G' { widget='W' widget='V' } family 'H' { widget='V' }");
  expect(heading("c ", "F") + "  |Resource_t xr_V_resources[] = {\n  " + row_of_r + array_end + "  |\n" +
         heading("c ", "G") + "  |Resource_t xr_W_resources[] = {\n  " + row_of_r + array_end +
         " v|/*\n v|Resource_t xr_V_resources[] = {\n v" + row_of_r +
         " v|\t{(char *) 0, (XrmQuark) 0, (Popup_p) 0, 0, False, vqc_free_default, vqc_free_default, 0, False, False, "
         "(char *) 0}\n"
         " v|};\n v|\n v|*/\n"
         "  |\n" +
         heading("cv", "H") + " v|/*\n v|Resource_t xr_V_resources[] = {\n v" + row_of_r +
         " v|\t{(char *) 0, (XrmQuark) 0, (Popup_p) 0, 0, False, vqc_free_default, vqc_free_default, 0, False, False, "
         "(char *) 0}\n"
         " v|};\n v|\n v|*/\n"
         "  |\n"
         "  |\n");
}

TEST_F(Resources, SharedWidgetWithoutAnyHasNoHeadingEvenAsARepeat) {
  describe_bare("widget 'W' { } family 'F' { widget='W' } family 'G' { widget='W' }");
  expect("  |\n  |\n");
}

TEST_F(Resources, BothFamiliesReferToTheFirstPlaceOfASharedPopup) {
  describe_bare(
      "widget 'V' { resource_definitions='r', 'z', , True; } widget 'W' { resource_definitions='r', 'z', , True; }"
      "family 'F' { widget='V' popup='z' } family 'G' { widget='W' popup='a' popup='z' }");
  const std::string begin = "  |\t{r, (XrmQuark) 0, &(popups[0]),-1, True, vqc_free_default, vqc_free_default, -1, ";
  const std::string row_of_z = begin + "False, False, (char *) 0},\n";
  expect(heading("c ", "F") + "  |Resource_t xr_V_resources[] = {\n" + row_of_z + array_end + "  |\n" +
         heading("c ", "G") + "  |Resource_t xr_W_resources[] = {\n" + row_of_z + array_end + "  |\n  |\n");
}

}  // namespace
