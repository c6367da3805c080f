#include "vqc/cmd/table/tab_separated.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/document.h"

using namespace vqc;

namespace vqc {

void PrintTo(const TextProblem& problem, std::ostream* out) {
  *out << static_cast<int>(problem.error) << " in line " << problem.line << ": " << problem.subject;
}

}  // namespace vqc

namespace {

using Problems = std::vector<TextProblem>;

class TabSeparated : public DocumentTest {
 protected:
  TabSeparated() {
    read_document(
        "VQconfig\n"
        "widget 'Dial' {\nresource_definitions='face', , 'faces', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 1;\n}\nwidget 'Knob' {\n}\nfamily 'F' {\nwidget='Dial'\n}\n");
    document.dirty = false;
  }
  std::string text() { return as_text(resource_rows(document)); }
  /// Expects a text to be refused for these reasons, and the document to stay as it is.
  void expect_problems(const Problems& problems, std::string_view pasted) {
    const std::string before = text();
    EXPECT_EQ(problems, paste_text(document, pasted).problems);
    EXPECT_EQ(before, text());
    EXPECT_FALSE(document.dirty);
  }

  static constexpr char heading[] = "widget\tname\tpage\tpopup\tcounter\tvisible\tfree_get\tfree_set\taccess\n";
};

TEST_F(TabSeparated, HasALineForEachRowBelowTheNamesOfTheColumns) {
  EXPECT_EQ(heading + std::string("Dial\tface\tfaces\t\t\tTrue\tVQC_FREE_DEFAULT\tVQC_FREE_DEFAULT\tcreate\n"), text());
}

TEST_F(TabSeparated, QuotesWhatWouldBeTakenForTheEndOfACell) {
  set_cell(document, *resource_rows(document)[0].resource, Column::page, "a\tb \"c\"\nd");
  const std::string quoted = text();
  EXPECT_NE(std::string::npos, quoted.find("\tface\t\"a\tb \"\"c\"\"\nd\"\t"));
  document.dirty = false;
  const Pasted pasted = paste_text(document, quoted);
  EXPECT_EQ(Problems(), pasted.problems);
  EXPECT_EQ(0U, pasted.changed);
  EXPECT_FALSE(document.dirty);
}

TEST_F(TabSeparated, ChangesAndAddsResources) {
  const Pasted pasted = paste_text(document,
                                   "name\twidget\tpage\tvisible\r\nface\tDial\tother\tFalse\r\n"
                                   "knob\tKnob\tknobs\tTrue\r\n\r\n");
  EXPECT_EQ(Problems(), pasted.problems);
  EXPECT_EQ(1U, pasted.changed);
  EXPECT_EQ(1U, pasted.added);
  EXPECT_TRUE(document.dirty);
  EXPECT_EQ(heading + std::string("Dial\tface\tother\t\t\tFalse\tVQC_FREE_DEFAULT\tVQC_FREE_DEFAULT\tcreate\n"
                                  "Knob\tknob\tknobs\t\t\tTrue\tVQC_FREE_DEFAULT\tVQC_FREE_DEFAULT\t\n"),
            text());
}

TEST_F(TabSeparated, PutsPagesIntoTheFamiliesOfTheirWidgets) {
  paste_text(document, "widget\tname\tpage\nDial\tface\tnew\nKnob\tknob\tknobs\n");
  const Family& family = *document.families.find(Text("F"));
  EXPECT_TRUE(family.pages.find(Text("new")));
  EXPECT_FALSE(family.pages.find(Text("knobs"))) << "it has no Knob";
}

TEST_F(TabSeparated, ALastLineNeedsNoEnd) {
  EXPECT_EQ(1U, paste_text(document, "widget\tname\tpage\nDial\tface\tother").changed);
}

TEST_F(TabSeparated, SaysWhatIsWrongWithItsFirstLine) {
  expect_problems({{TextError::unknown_column, 1, "colour"}}, "widget\tname\tcolour\nDial\tface\tred\n");
  expect_problems({{TextError::doubled_column, 1, "name"}}, "widget\tname\tname\n");
  expect_problems({{TextError::missing_column, 1, "name"}}, "widget\tpage\nDial\tother\n");
  expect_problems({{TextError::unknown_column, 1, ""}}, "");
  expect_problems({{TextError::unclosed_quote, 1, ""}}, "widget\t\"name");
}

TEST_F(TabSeparated, SaysWhatIsWrongInEachLineAndChangesNothing) {
  expect_problems({{TextError::unknown_widget, 3, "Lamp"},
                   {TextError::no_name, 4, ""},
                   {TextError::no_value, 5, "maybe"},
                   {TextError::number_of_cells, 6, ""}},
                  "widget\tname\tvisible\nDial\tface\tFalse\nLamp\tlight\tTrue\nKnob\t\tTrue\nKnob\tx\tmaybe\nKnob\n");
}

TEST_F(TabSeparated, CountsLinesWithinCells) {
  expect_problems({{TextError::unknown_widget, 4, "Lamp"}},
                  "widget\tname\tpage\nDial\tface\t\"two\nlines\"\nLamp\tlight\tpage\n");
  expect_problems({{TextError::unclosed_quote, 2, ""}}, "widget\tname\tpage\nDial\tface\t\"two\nlines\n");
}

}  // namespace
