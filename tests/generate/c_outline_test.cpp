#include "vqc/cmd/generate/c_outline.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "vqc/cmd/generate/c_types.h"

using namespace vqc;

namespace {

using Texts = std::vector<std::string>;

/// What is found in a text when procedures f and g are sought.
struct Found {
  explicit Found(std::string_view text) : code(c::scan(text)), conditionals(c::find_conditionals(code)) {
    if (!conditionals.fault)
      outline = c::outline(code, conditionals,
                           {.is_procedure = [](std::string_view name) { return name == "f" || name == "g"; }});
  }

  std::string text_of(c::TokenRange range) const {
    const std::size_t begin = code.tokens[range.first].begin;
    return std::string(code.text.substr(begin, code.tokens[range.last].end - begin));
  }

  /// The functions, whole.
  Texts functions() const {
    Texts texts;
    for (const c::Function& function : outline.functions) texts.push_back(text_of(function.tokens));
    return texts;
  }

  Texts names() const {
    Texts names;
    for (const c::Function& function : outline.functions) names.emplace_back(code.of(function.name));
    return names;
  }

  Texts declarations() const {
    Texts texts;
    for (const c::Declaration& declaration : outline.declarations) texts.push_back(text_of(declaration.tokens));
    return texts;
  }

  /// The types of a function.
  std::string types(std::size_t number = 0) const {
    const c::Function& function = outline.functions.at(number);
    const c::TokenRange head{function.tokens.first, function.body - 1};
    return c::signature(code, c::followed_tokens(code, conditionals, head), function.name);
  }

  /// A function with all of the conditionals that it has a part of; "" if that is more than it.
  std::string whole(std::size_t number = 0) const {
    const auto range = c::with_whole_conditionals(code, conditionals, outline.functions.at(number).tokens);
    return range ? text_of(*range) : "";
  }

  /// What is wrong, with the place.
  std::string fault() const {
    const std::optional<c::Fault>& fault = conditionals.fault ? conditionals.fault : outline.fault;
    return fault ? std::to_string(fault->offset) + " " + std::string(fault->words) : "";
  }

  c::Code code;
  c::Conditionals conditionals;
  c::Outline outline = {};
};

TEST(COutline, FindsFunctionsOfBothStyles) {
  const Found found("int x; Widget f(Widget w) { g(); }\nint h(a, b) int a; char *b; { }");
  EXPECT_EQ((Texts{"Widget f(Widget w) { g(); }", "int h(a, b) int a; char *b; { }"}), found.functions());
  EXPECT_EQ((Texts{"f", "h"}), found.names());
  EXPECT_EQ("", found.fault());
}

TEST(COutline, TakesNoOtherBracesForBodies) {
  const Found found(
      "struct s { int a; } x; int a[] = { 1 }; enum { A } e; struct s f(Widget w) { }\n"
      "typedef struct { int f; } t; int (*p)(void) = g;");
  EXPECT_EQ(Texts{"struct s f(Widget w) { }"}, found.functions());
  EXPECT_EQ(Texts{}, found.declarations());
}

TEST(COutline, LooksIntoLinkageBlocks) {
  const Found found(
      "#ifdef __cplusplus\nextern \"C\" {\n#endif\nvoid f(Widget w) { }\n#ifdef __cplusplus\n}\n#endif\n");
  EXPECT_EQ(Texts{"void f(Widget w) { }"}, found.functions());
  EXPECT_EQ("", found.fault());
}

TEST(COutline, FindsDeclarationsOfProcedures) {
  const Found found("extern Widget f(Widget); int h(int); Widget g; int a = f; void k(void) { f(); }");
  EXPECT_EQ((Texts{"extern Widget f(Widget);", "Widget g;"}), found.declarations());
}

TEST(COutline, NameIsThatOfAProcedureWhereMacrosHaveParenthesesToo) {
  EXPECT_EQ(Texts{"f"}, Found("EXPORT(Widget) f(Widget w) NONNULL(1) __attribute__((used)) { }").names());
}

TEST(COutline, MacroBeforeAFunctionIsNoPartOfIt) {
  EXPECT_EQ(Texts{"Widget f(Widget w) { }"}, Found("MODULE(x)\n\nWidget f(Widget w) { }").functions());
  EXPECT_FALSE(Found("MODULE(x)\nWidget f(Widget w) { }").outline.functions.at(0).is_apart);
  EXPECT_TRUE(Found("__attribute__((used))\nWidget f(Widget w) { }").outline.functions.at(0).is_apart);
  EXPECT_EQ(Texts{"Widget f(Widget w) { }"}, Found("MODULE\n\nWidget f(Widget w) { }").functions());
  EXPECT_EQ(Texts{"EXPORT(Widget)\nf(Widget w) { }"}, Found("EXPORT(Widget)\nf(Widget w) { }").functions());
  EXPECT_EQ(Texts{"EXPORT\nWidget f(Widget w) { }"}, Found("EXPORT\nWidget f(Widget w) { }").functions());
}

TEST(COutline, BranchesShareWhatStandsAroundThem) {
  const Found found("#ifdef A\nWidget f(Widget w)\n{\n#else\nWidget f(w) Widget w;\n{\n#endif\n}\nint h() { }\n");
  EXPECT_EQ((Texts{"f", "h"}), found.names());
  EXPECT_EQ("#ifdef A\nWidget f(Widget w)\n{\n#else\nWidget f(w) Widget w;\n{\n#endif\n}", found.whole());
  const Found ends("int f() {\n#ifdef A\n}\n#else\nx(); }\n#endif\nint h() { }\n");
  EXPECT_EQ((Texts{"f", "h"}), ends.names());
  EXPECT_EQ("int f() {\n#ifdef A\n}\n#else\nx(); }\n#endif", ends.whole());
}

TEST(COutline, FunctionInEachBranchIsFoundTwice) {
  EXPECT_EQ((Texts{"f", "f"}), Found("#if A\nint f() { }\n#else\nint f() { return 1; }\n#endif\n").names());
}

TEST(COutline, WhatABranchOpensAnotherConditionalMayClose) {
  EXPECT_EQ("", Found("int f() {\n#if A\nif (a) {\n#endif\nb();\n#if A\n}\n#endif\n}\n").fault());
  EXPECT_EQ("", Found("int f() {\n#ifndef A\nif (a) {\n#endif\nb();\n#ifdef A\n#else\n}\n#endif\n}\n").fault());
}

TEST(COutline, WhatIsNeverCompiledDoesNotCount) {
  const Found found("#if 0\nint f() { don't { \n#else\nint g() { }\n#endif\nint h() { }\n");
  EXPECT_EQ((Texts{"g", "h"}), found.names());
  ASSERT_EQ(1U, found.outline.dead.size());
  EXPECT_EQ("", found.fault());
}

TEST(COutline, FunctionWithPartOfAConditionalThatHasMoreIsNotWhole) {
  EXPECT_EQ("", Found("#if A\nint x;\nint f(Widget a)\n#else\nint f(a)\n#endif\n{ }").whole());
  EXPECT_EQ("int f() { }", Found("#if A\nint f() { }\nint x;\n#endif\n").whole());
}

TEST(COutline, TellsWhatDoesNotClose) {
  EXPECT_EQ("8 this bracket is never closed", Found("int f() { { }").fault());
  EXPECT_EQ("5 this bracket is never closed", Found("int h(").fault());
  EXPECT_EQ("12 no '{' stands before this", Found("int f() { } }").fault());
  EXPECT_EQ("7 this conditional is never closed: it has no #endif", Found("int a;\n#if 1\n#if 2\n#endif\n").fault());
  EXPECT_EQ("0 no #if stands before this", Found("#else\n").fault());
  EXPECT_EQ("7 no #if stands before this", Found("int a;\n#endif\n").fault());
}

TEST(CTypes, AreTheSameInBothStyles) {
  const std::string types = "Boolean(XWidget_p,Widget,Boolean*,Boolean*)";
  EXPECT_EQ(types, Found("Boolean f(XWidget_p x, Widget a, Boolean *r, Boolean *e) { }").types());
  EXPECT_EQ(types, Found("Boolean f(x, a, r, e) XWidget_p x; Boolean *e, *r; Widget a; { }").types());
  EXPECT_EQ(types, Found("#ifdef A\nBoolean f(x, a, r, e)\nXWidget_p x; Widget a; Boolean *r, *e;\n#else\n"
                         "int f(int i)\n#endif\n{ }")
                       .types());
}

TEST(CTypes, AreFreeOfNamesLayoutAndAttributes) {
  for (const char* head : {"static EXPORT char*f(char * n)", "__attribute__((used)) char *f(register char *const n)",
                           "String f(String n) UNUSED", "extern char * /* c */\nf(\nchar n[])",
                           "[[maybe_unused]] char *f([[maybe_unused]] char *n)", "char *f(UNUSED(1) char *)"}) {
    EXPECT_EQ("char*(char*)", Found(std::string(head) + " { }").types()) << head;
  }
  EXPECT_EQ("Widget(ArgList,Cardinal)", Found("Widget f(Arg *a, unsigned int n) { }").types());
}

TEST(CTypes, ThatDifferAreTold) {
  EXPECT_EQ("const char*(char*)", Found("const char *f(char *n) { }").types());
  EXPECT_EQ("void(?)", Found("void f(Special s) { }").types());
  EXPECT_EQ("void(Widget,. . .)", Found("void f(Widget w, ...) { }").types());
  EXPECT_EQ("void()", Found("void f() { }").types());
  EXPECT_EQ("void(void)", Found("void f(void) { }").types());
  EXPECT_EQ("(?)", Found("f(w) { }").types());
  EXPECT_NE("void(Widget)", Found("void f(Widget (*w)()) { }").types());
  EXPECT_EQ(Texts{}, Found("void (*f(Widget w))() { }").names());
}

}  // namespace
