#include "vqc/cmd/generate/code_file.h"

#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"

using namespace vqc;

namespace {

std::string banner(const std::string& marks, const char* family) { return marks + "|/* Family: " + family + " */\n"; }

std::string title(const std::string& marks, const char* text) {
  return marks + "|/*\n" + marks + "|** " + text + "\n" + marks + "|*/\n" + marks + "|\n";
}

class WidgetIncludes : public GenerateTest {};

TEST_F(WidgetIncludes, TitleStandsEvenWithoutAFamily) {
  expect_each(title("c ", "Widget class records"), write_widget_includes);
}

TEST_F(WidgetIncludes, NothingFollowsTheTitleWhereNothingIsIncluded) {
  describe("widget 'W' { } family 'F' { widget='W' }");
  expect_each(title("c ", "Widget class records"), write_widget_includes);
}

TEST_F(WidgetIncludes, EachFileOnce) {
  describe(
      "widget 'U' { include_filename='u.h' } widget 'V' { include_filename='shared.h' }"
      "widget 'W' { include_filename='shared.h' } widget 'X' { include_filename='x.h' }"
      "family 'F' { widget='U' widget='V' widget='W' } family 'G' { widget='U' } family 'H' { widget='W' widget='X' }");
  expect_each(title("c ", "Widget class records") + banner("c ", "F") +
                  "  |#include <u.h>\n"
                  "  |#include <shared.h>\n" +
                  banner("c ", "H") +
                  "  |#include <x.h>\n"
                  "  |\n",
              write_widget_includes);
}

/// The declaration in both styles; `arguments` with what follows them.
std::string declaration(const std::string& type_and_name, const std::string& arguments, const std::string& end) {
  return "  |#ifndef   _NO_PROTO\n  |extern " + type_and_name + "(" + arguments + ")" + end +
         "\n  |#else  /* _NO_PROTO */\n  |extern " + type_and_name + "()" + end + "\n  |#endif /* _NO_PROTO */\n";
}

class ProcedureDeclarations : public GenerateTest {
 protected:
  static std::string heading(const char* family) {
    return title("c ", "Externally defined functions") + banner("c ", family);
  }
};

TEST_F(ProcedureDeclarations, AreNothingWithoutProcedures) {
  describe("widget 'W' { } family 'F' { widget='W' }");
  expect_each("", write_procedure_declarations);
}

TEST_F(ProcedureDeclarations, OfEachKindHaveTheirOwnTypes) {
  describe(
      "widget 'W' { defined_name='a' realise='b' abstract='c' can_add_child='d' appropriate_parent='e' }"
      "family 'F' { widget='W' }");
  expect_each(heading("F") + declaration("char * a", "char *", " ;") +
                  declaration("Widget b", "char *, WidgetClass, Widget, ArgList, Cardinal", " ;") +
                  declaration("Boolean c", "XWidget_p, Widget, Boolean *, Boolean *", " ;") +
                  declaration("Boolean d", "XWidget_p, WidgetClass", " ;") +
                  declaration("Boolean e", "Widget, WidgetClass", " ; ") + "  |\n",
              write_procedure_declarations);
}

TEST_F(ProcedureDeclarations, NameIsDeclaredOnceForEachKind) {
  describe(
      "widget 'V' { realise='make' can_add_child='ask' } widget 'W' { realise='make' appropriate_parent='ask' }"
      "family 'F' { widget='V' widget='W' }");
  expect_each(heading("F") + declaration("Widget make", "char *, WidgetClass, Widget, ArgList, Cardinal", " ;") +
                  declaration("Boolean ask", "XWidget_p, WidgetClass", " ;") +
                  declaration("Boolean ask", "Widget, WidgetClass", " ; ") + "  |\n",
              write_procedure_declarations);
}

TEST_F(ProcedureDeclarations, OfASharedWidgetAreNeverRepeated) {
  describe(
      "widget 'V' { abstract='edit' } widget 'W' { abstract='other' }"
      "family 'F' { widget='V' } family 'G' { widget='V' } family 'H' { widget='V' widget='W' }");
  expect_each(heading("F") + declaration("Boolean edit", "XWidget_p, Widget, Boolean *, Boolean *", " ;") +
                  heading("H") + declaration("Boolean other", "XWidget_p, Widget, Boolean *, Boolean *", " ;") +
                  "  |\n",
              write_procedure_declarations);
}

/// What is the same in the record of every widget W of a document that says nothing about it.
std::string plain_record(const std::string& marks, const std::string& name, const std::string& family_index) {
  const std::string m = marks + "|";
  return m + "XWidgetClass_t xw_" + name + "={\n" + m + "\t&" + name + ", \"" + name + "\", 0, \n" + m + "\t" +
         family_index + ", (char * (*)()) 0, (int (*)()) 0, (int (*)()) 0,\n" + m +
         "\t(Widget (*)()) 0, (Boolean (*)()) 0, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0,\n" + m +
         "\t(Boolean (*)()) 0, (Boolean (*)()) 0, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (Dialog_p) 0, "
         "(Dialog_p) 0,\n" +
         m + "\tFalse, False, True, True, True, False, False, False, 0, \n" + m + "\t{0, (unsigned char *) 0, 0, 0,\n" +
         m + "\t (unsigned char *) 0, 0, 0, (char *) 0, 0, 0, 0, 0, False},\n" + m +
         "\t(Widget) 0, (Resource_p) 0, 0, (char *) 0, (char *) 0, (char *) 0, (char *) 0, False, 0};\n";
}

class ClassRecords : public GenerateTest {
 protected:
  static std::string heading(const std::string& marks, const char* family) {
    return title(marks, "Xwidget class records") + banner(marks, family) + marks + "|\n";
  }

  /// The records of the only family F with the only widget W, which has these fields.
  std::string record(const std::string& fields) {
    describe("widget 'W' { " + fields + " } family 'F' { widget='W' }");
    return written_by(write_class_records);
  }

  /// Whether the record of such a widget has that line.
  bool has_line(const std::string& fields, const std::string& line) {
    return record(fields).find("\n" + line + "\n") != std::string::npos;
  }

  /// The page count of widget W, in a family F that has nothing else.
  std::string page_count() const {
    const std::string before = "\t(Widget) 0, xr_W_resources, ";
    const std::string text = written_by(write_class_records);
    const std::size_t at = text.find(before);
    EXPECT_NE(std::string::npos, at);
    return text.substr(at + before.size(), text.find(',', at + before.size()) - at - before.size());
  }
};

TEST_F(ClassRecords, AreNothingWithoutFamilies) { expect_each("", write_class_records); }

TEST_F(ClassRecords, WidgetThatNothingIsKnownOf) {
  describe("family 'F' { widget='W' }");
  expect_each(heading("c ", "F") + plain_record("  ", "W", "0") + "  |\n  |\n  |\n", write_class_records);
}

TEST_F(ClassRecords, EmptyLineForEachFamily) {
  describe("family 'F' { } family 'G' { }");
  expect_each("  |\n  |\n", write_class_records);
}

TEST_F(ClassRecords, FamiliesAreCounted) {
  describe("family 'F' { } family 'Off' { widget='X' } family 'G' { widget='W' }");
  leave_out("Off");
  expect_each("  |\n" + heading("c ", "G") + plain_record("  ", "W", "1") + "  |\n  |\n  |\n", write_class_records);
}

TEST_F(ClassRecords, ExtraLineWhereAnotherWidgetFollowsInTheFamily) {
  describe("family 'F' { widget='V' widget='W' } family 'G' { widget='X' widget='V' }");
  expect_each(heading("c ", "F") + plain_record("  ", "V", "0") + "  |\n  |\n" + plain_record("  ", "W", "0") +
                  "  |\n  |\n" + heading("c ", "G") + plain_record("  ", "X", "1") + "  |\n  |\n" + " v|/*\n" +
                  plain_record(" v", "V", "1") + " v|*/\n v|\n" + "  |\n  |\n",
              write_class_records);
}

TEST_F(ClassRecords, RepeatIsCommentedOutAfterTheHeading) {
  describe("family 'F' { widget='W' } family 'G' { widget='W' }");
  expect_each(heading("c ", "F") + plain_record("  ", "W", "0") + "  |\n  |\n" + heading("cv", "G") + " v|/*\n" +
                  plain_record(" v", "W", "1") + " v|*/\n v|\n" + "  |\n  |\n",
              write_class_records);
}

TEST_F(ClassRecords, ProceduresReplaceTheirNulls) {
  EXPECT_TRUE(has_line("defined_name='name'", "\t0, name, (int (*)()) 0, (int (*)()) 0,"));
  EXPECT_TRUE(has_line("realise='make' abstract='edit'",
                       "\tmake, edit, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0,"));
  EXPECT_TRUE(has_line("can_add_child='holds' appropriate_parent='fits'",
                       "\tholds, fits, (int (*)()) 0, (int (*)()) 0, (int (*)()) 0, (Dialog_p) 0, (Dialog_p) 0,"));
}

TEST_F(ClassRecords, FlagsStandInTheirOrder) {
  EXPECT_TRUE(has_line("disablegoto=True", "\tTrue, False, True, True, True, False, False, False, 0, "));
  EXPECT_TRUE(has_line("disablefgswap=True", "\tFalse, True, True, True, True, False, False, False, 0, "));
  EXPECT_TRUE(has_line("can_create=False", "\tFalse, False, False, True, True, False, False, False, 0, "));
  EXPECT_TRUE(has_line("can_manage=False", "\tFalse, False, True, False, True, False, False, False, 0, "));
  EXPECT_TRUE(has_line("can_edit_abstract=False", "\tFalse, False, True, True, False, False, False, False, 0, "));
  EXPECT_TRUE(has_line("generate_initialise=True", "\tFalse, False, True, True, True, True, False, False, 0, "));
}

TEST_F(ClassRecords, IncludeIsQuoted) {
  EXPECT_TRUE(has_line("include_filename='X11/W.h'", "\t&W, \"W\", \"X11/W.h\", "));
}

TEST_F(ClassRecords, IconsHaveBitsWidthAndHeight) {
  EXPECT_TRUE(has_line("largeicon='big'", "\t{0, (unsigned char *) big_bits, big_width, big_height,"));
  EXPECT_TRUE(has_line("smallicon='small'",
                       "\t (unsigned char *) small_bits, small_width, small_height, (char *) 0, 0, 0, 0, 0, False},"));
  EXPECT_TRUE(has_line("pixmap_resource='XmNlabelPixmap'",
                       "\t (unsigned char *) 0, 0, 0, \"XmNlabelPixmap\", 0, 0, 0, 0, False},"));
}

TEST_F(ClassRecords, IconHeadersStandBeforeTheRecord) {
  EXPECT_EQ(0U, record("largeiconheader='l.xbm'").find("#include <l.xbm>\n\nXWidgetClass_t xw_W={\n"));
  EXPECT_EQ(0U, record("smalliconheader='s.xbm'").find("#include <s.xbm>\n\nXWidgetClass_t xw_W={\n"));
  EXPECT_EQ(0U, record("smalliconheader='s.xbm' largeiconheader='l.xbm' resource_definitions='r', , , True;")
                    .find("#include <l.xbm>\n#include <s.xbm>\n\nextern Resource_t xr_W_resources[];\n\n"
                          "XWidgetClass_t xw_W={\n"));
}

TEST_F(ClassRecords, DocumentsAreQuotedInTheirOrder) {
  EXPECT_TRUE(has_line("dialogue_doc='dd' dialogue_tag='dt' widget_doc='wd' widget_tag='wt'",
                       "\t(Widget) 0, (Resource_p) 0, 0, \"wd\", \"wt\", \"dd\", \"dt\", False, 0};"));
}

TEST_F(ClassRecords, ResourcesAreDeclaredBeforeTheRecord) {
  const std::string text = record("resource_definitions='r', , , True;");
  EXPECT_EQ(0U, text.find("extern Resource_t xr_W_resources[];\n\nXWidgetClass_t xw_W={\n"));
  EXPECT_NE(std::string::npos,
            text.find("\t(Widget) 0, xr_W_resources, 0, (char *) 0, (char *) 0, (char *) 0, (char *) 0, False, 0};\n"));
}

TEST_F(ClassRecords, PredefinedPagesAreNotCounted) {
  describe(
      "widget 'W' { resource_definitions='a', , 'display', True, 'b', , 'margins', True, 'c', , 'settings', True,"
      "'d', , 'callbacks', True, 'e', , 'misc', True, 'f', , 'missing', True, 'g', , , True; }"
      "family 'F' { widget='W' }");
  EXPECT_EQ("0", page_count());
}

TEST_F(ClassRecords, EachOtherPageCountsOnce) {
  describe(
      "widget 'W' { resource_definitions='a', , 'sixth', True, 'b', , 'sixth', True; }"
      "family 'F' { widget='W' page='sixth' page='seventh' }");
  EXPECT_EQ("1", page_count());
}

TEST_F(ClassRecords, PagesCountByTheirPlaceInTheDocument) {
  describe(
      "page 'early' widget 'W' { resource_definitions='a', , 'early', True, 'b', , 'misc', True, 'c', , 'late', True; }"
      "family 'F' { widget='W' page='late' }");
  EXPECT_EQ("2", page_count());
}

TEST_F(ClassRecords, PagesOfAnUnselectedFamilyCountToo) {
  describe(
      "widget 'W' { resource_definitions='a', , 'other', True; }"
      "family 'F' { widget='W' } family 'G' { page='other' }");
  leave_out("G");
  EXPECT_EQ("1", page_count());
}

}  // namespace
