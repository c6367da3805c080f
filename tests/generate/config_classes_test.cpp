#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/config_file.h"

using namespace vqc;

namespace {

std::string heading(const char* family) {
  return "c |/*\nc |** XWidget class records\nc |*/\nc |\nc |/* Family: " + std::string(family) + " */\n";
}

class ClassDeclarations : public GenerateTest {};

TEST_F(ClassDeclarations, AreNothingWithoutFamilies) { expect_each("", write_class_declarations); }

TEST_F(ClassDeclarations, EmptyLineForEachFamilyAndOneAtTheEnd) {
  describe("family 'E' { } family 'F' { widget='W' widget='V' } family 'G' { }");
  expect_each("  |\n" + heading("F") +
                  "  |extern XWidgetClass_t xw_W;\n"
                  "  |extern XWidgetClass_t xw_V;\n"
                  "  |\n"
                  "  |\n"
                  "  |\n",
              write_class_declarations);
}

TEST_F(ClassDeclarations, NoLineAtTheEndWhereNothingIsDeclared) {
  describe("family 'E' { } family 'F' { }");
  expect_each("  |\n  |\n", write_class_declarations);
}

TEST_F(ClassDeclarations, SharedWidgetIsNeverRepeated) {
  describe("family 'F' { widget='V' } family 'G' { widget='V' widget='W' } family 'H' { widget='W' }");
  expect_each(heading("F") + "  |extern XWidgetClass_t xw_V;\n  |\n" + heading("G") +
                  "  |extern XWidgetClass_t xw_W;\n"
                  "  |\n"
                  "  |\n"
                  "  |\n",
              write_class_declarations);
}

std::string pointer_table(const std::string& rows) {
  return "c |/*\nc |** XWidget records\nc |*/\nc |\n  |XWidgetClass_p xwidgets[] = {\n" + rows +
         "  |\t(XWidgetClass_p) 0\n  |};\n  |\n";
}

class ClassPointers : public GenerateTest {};

TEST_F(ClassPointers, AreOnlyTheEndOfTheTableWithoutFamilies) { expect_each(pointer_table(""), write_class_pointers); }

TEST_F(ClassPointers, ListEveryWidgetOnceWithoutBanners) {
  describe("widget 'unused' { } family 'F' { widget='W' widget='V' } family 'G' { widget='V' widget='U' }");
  expect_each(pointer_table("  |\t&xw_W,\n  |\t&xw_V,\n  |\t&xw_U,\n"), write_class_pointers);
}

TEST_F(ClassPointers, LeaveOutUnselectedFamilies) {
  describe("family 'F' { widget='W' widget='V' } family 'G' { widget='V' }");
  leave_out("F");
  expect_each(pointer_table("  |\t&xw_V,\n"), write_class_pointers);
}

}  // namespace
