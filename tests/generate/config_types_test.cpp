#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/config_file.h"

using namespace vqc;

namespace {

std::string banner(const std::string& marks, const char* family) { return marks + "|/* Family: " + family + " */\n"; }

std::string title(const std::string& marks, const char* text) {
  return marks + "|/*\n" + marks + "|** " + text + "\n" + marks + "|*/\n" + marks + "|\n";
}

class Enumerations : public GenerateTest {
 protected:
  static std::string definitions(const std::string& rows) {
    return "  |Enum_def_t enumerations[] = {\n" + rows + "  |\t{(char *) 0, (XrmQuark) 0, (Enum_p) 0}\n  |};\n  |\n";
  }
};

TEST_F(Enumerations, AreOnlyTheEndOfTheTableWithoutFamilies) {
  expect_each(title("c ", "Enumeration definitions") + definitions(""), write_enumerations);
}

TEST_F(Enumerations, EntriesKeepTheirOrder) {
  describe_bare(
      "enumeration 'E' { typename='XtRE' enumentry 'slow' { code_symbol='SLOW' resfile_symbol='s' }"
      "enumentry 'fast' { code_symbol='FAST' resfile_symbol='f' } } family 'F' { enumeration='E' }");
  expect_each(title("c ", "Enumeration definitions") + banner("c ", "F") +
                  "  |static Enum_t E_enum[] = {\n"
                  "  |\t{\"slow\", SLOW, \"SLOW\", \"s\"},\n"
                  "  |\t{\"fast\", FAST, \"FAST\", \"f\"},\n"
                  "  |\t{(char *) 0, 0, (char *) 0, (char *) 0}\n"
                  "  |};\n"
                  "  |\n"
                  "  |\n" +
                  definitions("  |\t{XtRE, (XrmQuark) 0, E_enum},\n"),
              write_enumerations);
}

TEST_F(Enumerations, SymbolsThatAreNotGivenAreNothing) {
  describe_bare("enumeration 'E' { enumentry 'e' { } } family 'F' { enumeration='E' }");
  EXPECT_EQ(
      "static Enum_t E_enum[] = {\n"
      "\t{\"e\", , \"\", \"\"},\n"
      "\t{(char *) 0, 0, (char *) 0, (char *) 0}\n"
      "};\n"
      "\n"
      "\n"
      "Enum_def_t enumerations[] = {\n"
      "\t{0, (XrmQuark) 0, E_enum},\n"
      "\t{(char *) 0, (XrmQuark) 0, (Enum_p) 0}\n"
      "};\n"
      "\n",
      written_by(write_enumerations));
}

TEST_F(Enumerations, RepeatIsCommentedOutAndItsBannerComesInTheFirstPassOnly) {
  describe_bare(
      "family 'F' { enumeration='E' } family 'G' { enumeration='E' enumeration='A' } family 'H' { enumeration='A' }");
  const std::string end = "\t{(char *) 0, 0, (char *) 0, (char *) 0}\n";
  const auto array = [&](const std::string& name) {
    return "  |static Enum_t " + name + "_enum[] = {\n  |" + end + "  |};\n  |\n";
  };
  const auto repeat = [&](const std::string& name) {
    return " v|/*\n v|static Enum_t " + name + "_enum[] = {\n v|" + end + " v|};\n v|\n v|*/\n";
  };
  expect_each(title("c ", "Enumeration definitions") + banner("c ", "F") + array("E") + banner("c ", "G") + array("A") +
                  repeat("E") + banner("cv", "H") + repeat("A") + "  |\n" +
                  definitions("  |\t{0, (XrmQuark) 0, E_enum},\n"
                              "  |\t{0, (XrmQuark) 0, A_enum},\n"
                              " v|/*\t{0, (XrmQuark) 0, E_enum},*/\n"
                              " v|/*\t{0, (XrmQuark) 0, A_enum},*/\n"),
              write_enumerations);
}

class Aliases : public GenerateTest {
 protected:
  static std::string table(const std::string& rows) {
    return title("c ", "Alias definitions") + "  |Type_alias_t aliases[] = {\n" + rows +
           "  |\t{(char *) 0, (XrmQuark) 0, (char *) 0, (XrmQuark) 0}\n  |};\n  |\n";
  }
};

TEST_F(Aliases, AreOnlyTheEndOfTheTableWithoutFamilies) { expect_each(table(""), write_aliases); }

TEST_F(Aliases, AreSortedRows) {
  describe_bare("alias 'b' { to_name='XtRInt' } alias 'a' { } family 'F' { alias='b' alias='a' } family 'G' { }");
  expect_each(table(banner("c ", "F") + "  |\t{a, (XrmQuark) 0,, (XrmQuark) 0 },\n"
                                        "  |\t{b, (XrmQuark) 0,XtRInt, (XrmQuark) 0 },\n"),
              write_aliases);
}

TEST_F(Aliases, RepeatIsCommentedOutAfterTheBanner) {
  describe_bare("alias 'a' { to_name='t' } family 'F' { alias='a' } family 'G' { alias='a' }");
  expect_each(table(banner("c ", "F") + "  |\t{a, (XrmQuark) 0,t, (XrmQuark) 0 },\n" + banner("cv", "G") +
                    " v|/*\t{a, (XrmQuark) 0,t, (XrmQuark) 0 },*/\n"),
              write_aliases);
}

class ConverterDeclarations : public GenerateTest {
 protected:
  static std::string heading(const std::string& marks, const char* family) {
    return title(marks, "Externally defined functions") + banner(marks, family);
  }
};

TEST_F(ConverterDeclarations, AreNothingWithoutFamilies) { expect_each("", write_converter_declarations); }

TEST_F(ConverterDeclarations, EmptyLineForEachFamilyWithoutConverters) {
  describe_bare("family 'F' { } family 'G' { }");
  expect_each("  |\n  |\n", write_converter_declarations);
}

TEST_F(ConverterDeclarations, AreForProceduresThatTheBuilderCalls) {
  describe_bare(
      "converter 'a' { proc_name='A' add_in_vq=True } converter 'b' { proc_name='B' add_in_code=True }"
      "converter 'c' { add_in_vq=True } converter 'd' { proc_name='D' add_in_vq=True add_in_code=True }"
      "family 'F' { converter='a' converter='b' converter='c' converter='d' }");
  expect_each(heading("c ", "F") +
                  "  |extern Boolean A();\n"
                  "  |extern Boolean D();\n"
                  "  |\n"
                  "  |\n",
              write_converter_declarations);
}

TEST_F(ConverterDeclarations, HeadingComesEvenIfNothingIsDeclared) {
  describe_bare("family 'F' { converter='a' } family 'G' { }");
  expect_each(heading("c ", "F") + "  |\n  |\n  |\n", write_converter_declarations);
}

TEST_F(ConverterDeclarations, RepeatThatDeclaresNothingLeavesOnlyTheHeading) {
  describe_bare("family 'F' { converter='a' } family 'G' { converter='a' }");
  expect_each(heading("c ", "F") + "  |\n" + heading("cv", "G") + "  |\n  |\n", write_converter_declarations);
}

TEST_F(ConverterDeclarations, RepeatIsCommentedOutAsABlock) {
  describe_bare(
      "converter 'a' { proc_name='A' add_in_vq=True } family 'F' { converter='a' } family 'G' { converter='a' }");
  expect_each(heading("c ", "F") + "  |extern Boolean A();\n  |\n" + heading("cv", "G") +
                  " v|/*\n v|extern Boolean A();\n v|*/\n  |\n  |\n",
              write_converter_declarations);
}

class Converters : public GenerateTest {
 protected:
  static std::string table(const std::string& rows) {
    return title("  ", "Converter definitions") + "  |Converter_t converters[] = {\n" + rows +
           "  |\t{(char *) 0, (XrmQuark) 0, (char *) 0, (Boolean (*)()) 0, (char *) 0, False, (Popup_p) 0}\n"
           "  |};\n  |\n";
  }

  void expect(const std::string& marked) const { expect_each(marked, write_converters, {write_popups}); }
};

TEST_F(Converters, TitleComesWhateverTheSwitchesSay) { expect(table("")); }

TEST_F(Converters, ProcedureIsForTheBuilderForTheCodeForBothOrNeither) {
  describe_bare(
      "converter 'a' { proc_name='A' add_in_vq=True } converter 'b' { proc_name='B' add_in_code=True }"
      "converter 'c' { proc_name='C' } converter 'd' { proc_name='D' add_in_vq=True add_in_code=True }"
      "converter 'e' { add_in_vq=True add_in_code=True }"
      "family 'F' { converter='a' converter='b' converter='c' converter='d' converter='e' }");
  expect(table(banner("c ", "F") +
               "  |\t{a, (XrmQuark) 0, \"a\", A,(char *) 0, False, (Popup_p) 0},\n"
               "  |\t{b, (XrmQuark) 0, \"b\", (Boolean (*)()) 0,\"B\", False, (Popup_p) 0},\n"
               "  |\t{c, (XrmQuark) 0, \"c\", (Boolean (*)()) 0,(char *) 0, False, (Popup_p) 0},\n"
               "  |\t{d, (XrmQuark) 0, \"d\", D,\"D\", False, (Popup_p) 0},\n"
               "  |\t{e, (XrmQuark) 0, \"e\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},\n"));
}

TEST_F(Converters, PopupIsTheOneInTheTable) {
  describe_bare(
      "converter 'a' { dialog='q' } popup 'unused' { }"
      "family 'F' { popup='p' converter='a' converter='b' converter='c' }"
      "converter 'b' { dialog='missing' } converter 'c' { dialog='unused' }");
  expect(table(banner("c ", "F") +
               "  |\t{a, (XrmQuark) 0, \"a\", (Boolean (*)()) 0, (char *) 0 , False, &(popups[1])},\n"
               "  |\t{b, (XrmQuark) 0, \"b\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},\n"
               "  |\t{c, (XrmQuark) 0, \"c\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},\n"));
}

TEST_F(Converters, RepeatIsCommentedOutAfterTheBanner) {
  describe_bare("family 'F' { converter='a' } family 'G' { converter='a' converter='b' }");
  expect(table(banner("c ", "F") +
               "  |\t{a, (XrmQuark) 0, \"a\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},\n" +
               banner("c ", "G") +
               " v|/*\t{a, (XrmQuark) 0, \"a\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},*/\n"
               "  |\t{b, (XrmQuark) 0, \"b\", (Boolean (*)()) 0, (char *) 0 , False, (Popup_p) 0},\n"));
}

}  // namespace
