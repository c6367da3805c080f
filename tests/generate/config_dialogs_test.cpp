#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/config_file.h"

using namespace vqc;

namespace {

class StopListText : public GenerateTest {};

TEST_F(StopListText, IsAString) {
  describe("stop_list='XmFrame,XmLabel' family 'A' { }");
  expect_each("  |char vq_config_stop_list[] = \"XmFrame,XmLabel\";\n  |\n", write_stop_list);
}

TEST_F(StopListText, IsANullPointerWhenThereIsNone) {
  describe("generate_stop_list_string='leave_out' family 'A' { }");
  expect_each("  |char *leave_out = (char *) 0;\n  |\n", write_stop_list);
}

TEST_F(StopListText, IsWrittenAsItStands) {
  describe("stop_list='50%% \\\\n \"x\" %s'");
  EXPECT_EQ("char vq_config_stop_list[] = \"50%% \\n \"x\" %s\";\n\n", written_by(write_stop_list));
}

TEST_F(StopListText, KeepsTheDoubledPerCentSignsOfItsName) {
  describe("generate_stop_list_string='out%%' stop_list='XmList'");
  EXPECT_EQ("char out%%[] = \"XmList\";\n\n", written_by(write_stop_list));
}

TEST_F(StopListText, KeepsTheDoubledPerCentSignsOfItsNameWhenThereIsNone) {
  describe("generate_stop_list_string='100%%%'");
  EXPECT_EQ("char *100%%% = (char *) 0;\n\n", written_by(write_stop_list));
}

TEST_F(StopListText, IsSetWhenItIsEmpty) {
  document.excluded_classes = "";
  EXPECT_EQ("char vq_config_stop_list[] = \"\";\n\n", written_by(write_stop_list));
}

std::string declarations_heading(const std::string& marks, const char* family) {
  return marks + "|/*\n" + marks + "|** Externally defined functions\n" + marks + "|*/\n" + marks + "|\n" + marks +
         "|/* Family: " + family + " */\n";
}

class PopupDeclarations : public GenerateTest {};

TEST_F(PopupDeclarations, NameTheProceduresThatAreSet) {
  describe_bare(
      "popup 'a' { } popup 'b' { dialog_init='b_init' } popup 'c' { dialog_update='c_update' }"
      "popup 'd' { dialog_init='d_init' dialog_update='d_update' }"
      "family 'F' { popup='a' popup='b' popup='c' popup='d' }");
  expect_each(declarations_heading("c ", "F") +
                  "  |extern void a();\n"
                  "  |extern void b();\n"
                  "  |extern void b_init();\n"
                  "  |extern void c();\n"
                  "  |extern void c_update();\n"
                  "  |extern void d();\n"
                  "  |extern void d_init();\n"
                  "  |extern void d_update();\n"
                  "  |\n",
              write_popup_declarations);
}

TEST_F(PopupDeclarations, OfPredefinedPopupsAreWrittenToo) {
  describe("family 'F' { }");
  EXPECT_EQ(
      "extern void vq_colour_dialog_create();\n"
      "extern void vq_colour_dialog_initialise();\n"
      "extern void vq_font_dialog_create();\n"
      "extern void vq_font_dialog_initialise();\n"
      "extern void vq_fsb_dialog_create();\n"
      "extern void vq_fsb_dialog_initialise();\n"
      "extern void vq_pixmap_dialog_create();\n"
      "extern void vq_pixmap_dialog_initialise();\n"
      "extern void vq_string_dialog_create();\n"
      "extern void vq_string_dialog_initialise();\n"
      "\n",
      written_by(write_popup_declarations));
}

TEST_F(PopupDeclarations, RepeatIsCommentedOutAsABlock) {
  describe_bare(
      "popup 'a' { dialog_init='a_init' } family 'F' { popup='a' } family 'G' { popup='a' popup='b' }"
      "family 'H' { popup='b' }");
  expect_each(declarations_heading("c ", "F") +
                  "  |extern void a();\n"
                  "  |extern void a_init();\n" +
                  declarations_heading("c ", "G") +
                  " v|/*\n"
                  " v|extern void a();\n"
                  " v|extern void a_init();\n"
                  " v|*/\n"
                  "  |extern void b();\n" +
                  declarations_heading("cv", "H") +
                  " v|/*\n"
                  " v|extern void b();\n"
                  " v|*/\n"
                  "  |\n",
              write_popup_declarations);
}

TEST_F(PopupDeclarations, AreNothingAtAllWithoutPopups) {
  describe_bare("popup 'unused' { } family 'F' { }");
  expect_each("", write_popup_declarations);
}

/// The table between its head and its end.
std::string popup_table(const std::string& rows) {
  return "c |/*\nc |** Popup definitions\nc |*/\nc |\n  |Popup_t popups[] = {\n" + rows +
         "  |\t{(void (*)()) 0, (void (*)()) 0, (void (*)()) 0, False}\n  |};\n  |\n";
}

class Popups : public GenerateTest {};

TEST_F(Popups, AreOnlyTheEndOfTheTableWithoutFamilies) { expect_each(popup_table(""), write_popups); }

TEST_F(Popups, FamilyWithoutPopupsHasNoBanner) {
  describe_bare("family 'F' { }");
  expect_each(popup_table(""), write_popups);
}

TEST_F(Popups, ProcedureThatIsNotThereIsANullPointer) {
  describe_bare(
      "popup 'a' { dialog_init='init' dialog_update='update' } popup 'b' { dialog_init='init' }"
      "popup 'c' { dialog_update='update' } popup 'd' { } family 'F' { popup='a' popup='b' popup='c' popup='d' }");
  expect_each(popup_table("c |/* Family: F */\n"
                          "  |\t{a,init,update, False},\n"
                          "  |\t{b,init,(void (*)()) 0, False},\n"
                          "  |\t{c,(void (*)()) 0,update, False},\n"
                          "  |\t{d,(void (*)()) 0,(void (*)()) 0, False},\n"),
              write_popups);
}

TEST_F(Popups, SharedPopupIsWrittenOnceAndRepeatedCommentedOut) {
  describe_bare("popup 'a' { } family 'F' { popup='a' } family 'G' { popup='a' }");
  expect_each(popup_table("c |/* Family: F */\n"
                          "  |\t{a,(void (*)()) 0,(void (*)()) 0, False},\n"
                          "cv|/* Family: G */\n"
                          " v|/*\t{a,(void (*)()) 0,(void (*)()) 0, False},*/\n"),
              write_popups);
}

TEST_F(Popups, ArePlacedOverTheWholeFile) {
  describe_bare("family 'F' { popup='b' } family 'G' { popup='a' popup='b' popup='c' }");
  const Numbering popups = after(write_popups, {false, true}, [](const ::Run& run) { return run.popups; });
  EXPECT_EQ(0, popups.of("b"));
  EXPECT_EQ(1, popups.of("a"));
  EXPECT_EQ(2, popups.of("c"));
}

TEST_F(Popups, OfUnselectedFamiliesAreNotWritten) {
  describe_bare("family 'F' { popup='a' } family 'G' { popup='b' }");
  leave_out("F");
  expect_each(popup_table("c |/* Family: G */\n  |\t{b,(void (*)()) 0,(void (*)()) 0, False},\n"), write_popups);
  after(write_popups, {}, [](const ::Run& run) {
    for (const Text name : {Text("a"), Text("missing"), Text()}) EXPECT_EQ(-1, reference_to_popup(run, name).place);
    EXPECT_EQ(0, reference_to_popup(run, "b").place);
  });
}

std::string page_table(const std::string& rows) {
  return "c |/*\nc |** Page names\nc |*/\nc |\n  |char *xw_page_names[] = {\n" + rows + "  |\t(char *) 0\n  |};\n  |\n";
}

class PageNames : public GenerateTest {};

TEST_F(PageNames, AreOnlyTheEndOfTheTableWithoutFamilies) { expect_each(page_table(""), write_page_names); }

TEST_F(PageNames, OfAFamilyBeginWithThePredefinedOnes) {
  describe("family 'F' { page='extra' }");
  expect_each(page_table("- |\t\"display\",\n"
                         "- |\t\"margins\",\n"
                         "- |\t\"settings\",\n"
                         "- |\t\"callbacks\",\n"
                         "- |\t\"misc\",\n"
                         "- |\t\"extra\",\n"
                         "c |/* Family: F */\n"
                         "c |\t\"display\",\t/* Page 0 */\t\n"
                         "c |\t\"margins\",\t/* Page 1 */\t\n"
                         "c |\t\"settings\",\t/* Page 2 */\t\n"
                         "c |\t\"callbacks\",\t/* Page 3 */\t\n"
                         "c |\t\"misc\",\t/* Page 4 */\t\n"
                         "c |\t\"extra\",\t/* Page 5 */\t\n"),
              write_page_names);
}

TEST_F(PageNames, RepeatFollowsTheCommentSwitch) {
  describe_bare("family 'F' { page='a' } family 'G' { page='a' page='b' } family 'H' { page='b' }");
  expect_each(page_table("- |\t\"a\",\n"
                         "- |\t\"b\",\n"
                         "c |/* Family: F */\n"
                         "c |\t\"a\",\t/* Page 0 */\t\n"
                         "c |/* Family: G */\n"
                         "c |/*\t\"a\",\t(Page 0)\t*/\n"
                         "c |\t\"b\",\t/* Page 1 */\t\n"
                         "c |/* Family: H */\n"
                         "c |/*\t\"b\",\t(Page 1)\t*/\n"),
              write_page_names);
}

TEST_F(PageNames, HaveTheirPlacesFromTheTableAlone) {
  describe_bare("page 'unused' page 'b' family 'F' { page='a' } family 'G' { page='b' }");
  leave_out("F");
  const Numbering pages = after(write_page_names, {}, [](const ::Run& run) { return run.pages; });
  EXPECT_EQ(-1, pages.of("a"));
  EXPECT_EQ(0, pages.of("b"));
  EXPECT_EQ(-1, pages.of("unused"));
  EXPECT_EQ(-1, pages.of("missing"));
  EXPECT_EQ(-1, pages.of(nullptr));
}

}  // namespace
