#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/config_file.h"
#include "vqc/cmd/model/options.h"

using namespace vqc;

namespace {

class FamilyNames : public GenerateTest {};

TEST_F(FamilyNames, AreCounted) {
  describe("family 'A' { } family 'B' { } family 'C' { }");
  leave_out("B");
  expect_each(
      "c |/*\nc |** Families\nc |*/\nc |\n"
      "  |char *xw_family_names[] = {\n"
      "  |\t\"A\",\n"
      "  |\t\"C\",\n"
      "  |\t(char *) 0\n"
      "  |};\n"
      "  |\n"
      "  |int xw_family_count = 2;\n"
      "  |\n",
      write_family_names);
}

TEST_F(FamilyNames, WithoutFamiliesAreNone) {
  expect_each(
      "c |/*\nc |** Families\nc |*/\nc |\n"
      "  |char *xw_family_names[] = {\n"
      "  |\t(char *) 0\n"
      "  |};\n"
      "  |\n"
      "  |int xw_family_count = 0;\n"
      "  |\n",
      write_family_names);
}

TEST_F(FamilyNames, KeepDoubledPerCentSigns) {
  describe("family '50%%' { }");
  EXPECT_NE(std::string::npos, written_by(write_family_names).find("\t\"50%%\",\n"));
}

class Families : public GenerateTest {
 protected:
  /// The two blocks of a family that has neither headers nor widgets.
  static std::string empty_blocks(const std::string& family, const std::string& base) {
    return "  |/*\n  |** Family " + family + " headers\n  |*/\n  |\n  |static XFamilyHeader_t " + base +
           "_headers[] = {\n"
           "  |\t{ (char *) 0 }\n"
           "  |} ;\n"
           "  |\n"
           "  |/*\n  |** Family " +
           family + " widgets\n  |*/\n  |\n  |static XWidgetClass_p " + base +
           "_widgets[] = {\n"
           "  |\t(XWidgetClass_p) 0\n"
           "  |} ;\n"
           "  |\n";
  }

  static std::string empty_row(const std::string& family) {
    return "  |\t{ \"" + family +
           "\", (XWidgetClass_p *) 0, (XFamilyHeader_p) 0, (char *) 0, (void (*)()) 0, False, False, False, False},\n";
  }

  void expect(const std::string& blocks, const std::string& rows) const {
    expect_each("c |/*\nc |** Family class records\nc |*/\nc |\n" + blocks + "  |XFamily_t xw_families[] = {\n" + rows +
                    "  |\t{ (char *) 0, (XWidgetClass_p *) 0, (XFamilyHeader_p) 0, (char *) 0, (void (*)()) 0, False, "
                    "False, False, False }\n"
                    "  |} ;\n"
                    "  |\n",
                write_families);
  }

  /// Whether the tables of the only family begin with `base`.
  bool base_of(const std::string& family, const std::string& base) {
    describe("family '" + family + "' { }");
    const std::string text = written_by(write_families);
    return text.find("static XFamilyHeader_t " + base + "_headers[] = {\n") != std::string::npos &&
           text.find("static XWidgetClass_p " + base + "_widgets[] = {\n") != std::string::npos;
  }
};

TEST_F(Families, WithoutFamiliesOnlyTheEndOfTheTable) { expect("", ""); }

TEST_F(Families, TableIsNamedByTheResourceUnlessThatIsEmpty) {
  document.names.family_table.resource = "from_resource";
  EXPECT_NE(std::string::npos, written_by(write_families).find("XFamily_t from_resource[] = {\n"));
  document.names.family_table.resource = "";
  EXPECT_NE(std::string::npos, written_by(write_families).find("XFamily_t xw_families[] = {\n"));
}

TEST_F(Families, EmptyFamilyHasBlocksButNoTablesInItsRow) {
  describe("family 'Demo' { }");
  expect(empty_blocks("Demo", "Demo"), empty_row("Demo"));
}

TEST_F(Families, IdentifierIsCutAtTheFirstCharacterThatIsNoLetter) {
  EXPECT_TRUE(base_of("Motif", "Motif"));
  EXPECT_TRUE(base_of("My_set_", "My_set_"));
  EXPECT_TRUE(base_of("_", "_"));
  EXPECT_TRUE(base_of("Xm2", "Xm_0"));
  EXPECT_TRUE(base_of("My Widgets", "My_0"));
  EXPECT_TRUE(base_of("A-B", "A_0"));
  EXPECT_TRUE(base_of("2", "_0"));
  EXPECT_TRUE(
      base_of("Gr\xc3\xb6\xc3\x9f"
              "e",
              "Gr_0"));
}

TEST_F(Families, IdentifierCountsTheSelectedFamilies) {
  describe("family 'One' { } family 'Off' { } family 'Two' { } family 'My Widgets' { }");
  leave_out("Off");
  expect(empty_blocks("One", "One") + empty_blocks("Two", "Two") + empty_blocks("My Widgets", "My_2"),
         empty_row("One") + empty_row("Two") + empty_row("My Widgets"));
}

TEST_F(Families, HeadersAndWidgetsAreListedInOrder) {
  describe(
      "family 'A' { family_header='z.h' family_header='a.h' widget='W' widget='V' }"
      "family 'B' { family_header='a.h' widget='V' }");
  expect(
      "  |/*\n  |** Family A headers\n  |*/\n  |\n"
      "  |static XFamilyHeader_t A_headers[] = {\n"
      "  |\t{ \"z.h\" },\n"
      "  |\t{ \"a.h\" },\n"
      "  |\t{ (char *) 0 }\n"
      "  |} ;\n"
      "  |\n"
      "  |/*\n  |** Family A widgets\n  |*/\n  |\n"
      "  |static XWidgetClass_p A_widgets[] = {\n"
      "  |\t&xw_W,\n"
      "  |\t&xw_V,\n"
      "  |\t(XWidgetClass_p) 0\n"
      "  |} ;\n"
      "  |\n"
      "  |/*\n  |** Family B headers\n  |*/\n  |\n"
      "  |static XFamilyHeader_t B_headers[] = {\n"
      "  |\t{ \"a.h\" },\n"
      "  |\t{ (char *) 0 }\n"
      "  |} ;\n"
      "  |\n"
      "  |/*\n  |** Family B widgets\n  |*/\n  |\n"
      "  |static XWidgetClass_p B_widgets[] = {\n"
      "  |\t&xw_V,\n"
      "  |\t(XWidgetClass_p) 0\n"
      "  |} ;\n"
      "  |\n",
      "  |\t{ \"A\", A_widgets, A_headers, (char *) 0, (void (*)()) 0, False, False, False, False},\n"
      "  |\t{ \"B\", B_widgets, B_headers, (char *) 0, (void (*)()) 0, False, False, False, False},\n");
}

TEST_F(Families, InitialisationIsDeclaredBeforeTheBlocks) {
  describe("family 'A' { family_init='init_a' generate_family_init_vq=True generate_family_init_pre_shell=True }");
  expect(
      "  |/*\n  |** Family A external functions\n  |*/\n  |\n"
      "  |#ifndef   _NO_PROTO\n"
      "  |extern void init_a(Widget shell) ;\n"
      "  |#else  /* _NO_PROTO */\n"
      "  |extern void init_a() ;\n"
      "  |#endif /* _NO_PROTO */\n" +
          empty_blocks("A", "A"),
      "  |\t{ \"A\", (XWidgetClass_p *) 0, (XFamilyHeader_p) 0, \"init_a\", init_a, True, False, False, True},\n");
}

TEST_F(Families, FlagsAreWrittenEvenWithoutAProcedure) {
  describe("family 'A' { generate_family_init_code=True generate_family_init_stub=True }");
  expect(empty_blocks("A", "A"),
         "  |\t{ \"A\", (XWidgetClass_p *) 0, (XFamilyHeader_p) 0, (char *) 0, (void (*)()) 0, False, True, False, "
         "False},\n");
}

TEST_F(Families, EmptyInitialisationCountsAsSet) {
  describe("family 'A' { family_init='' }");
  EXPECT_NE(std::string::npos, written_by(write_families).find("extern void (Widget shell) ;\n"));
  EXPECT_NE(std::string::npos, written_by(write_families).find("(XFamilyHeader_p) 0, \"\", , False,"));
}

}  // namespace
