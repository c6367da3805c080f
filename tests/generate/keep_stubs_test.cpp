#include "vqc/cmd/generate/keep_stubs.h"

#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"

using namespace vqc;

namespace {

/// A text with one thing in place of another that it has once.
std::string with(std::string text, std::string_view old, std::string_view replacement) {
  const std::size_t place = text.find(old);
  EXPECT_NE(std::string::npos, place) << "no " << old << " in:\n" << text;
  EXPECT_EQ(std::string::npos, text.find(old, place + 1)) << old << " is there twice in:\n" << text;
  if (place == std::string::npos) return text;
  return text.replace(place, old.size(), replacement);
}

std::string with_crlf(std::string_view text) {
  std::string result;
  for (char c : text) c == '\n' ? result += "\r\n" : result += c;
  return result;
}

std::string mark(const std::string& name) { return "/*\n** vqconfig generated stub: " + name + "\n*/\n\n"; }

const std::string kUntouched = "{\n\t/* FIXME */\n}\n";

/// The head of a popup's procedure, and of a child test.
std::string popup_head(const std::string& name) {
  return "#ifndef   _NO_PROTO\nvoid " + name + "(Widget parent)\n#else  /* _NO_PROTO */\nvoid " + name +
         "(parent)\n\tWidget parent ;\n#endif /* _NO_PROTO */\n";
}
std::string test_head(const std::string& name) {
  const std::string indent(9 + name.size(), ' ');
  return "#ifndef   _NO_PROTO\nBoolean " + name + "(XWidget_p   parent_xwidget,\n" + indent +
         "WidgetClass child_class)\n#else  /* _NO_PROTO */\nBoolean " + name +
         "(parent_xwidget, child_class)\n\tXWidget_p   parent_xwidget ;\n\tWidgetClass child_class ;\n"
         "#endif /* _NO_PROTO */\n";
}

std::string popup_stub(const std::string& name) { return mark(name) + popup_head(name) + kUntouched + "\n"; }

/// A retired function.
std::string retired(const std::string& name, const std::string& function) {
  return "#if 0\n/* vqconfig: the document no longer names " + name + " */\n" + function + "#endif\n";
}

class KeepStubs : public GenerateTest {
 protected:
  KeptStubs result_of(const std::string& old, Switches switches = {}) const {
    return keep_stubs(document, families(), switches, old);
  }

  /// The new file. Nothing blocks, and making it again changes nothing.
  std::string kept(const std::string& old, Switches switches = {}) {
    last = result_of(old, switches);
    EXPECT_TRUE(last.text) << words(last);
    if (!last.text) return "";
    const KeptStubs again = result_of(*last.text, switches);
    EXPECT_EQ(last.text, again.text) << words(again);
    EXPECT_EQ(0, again.new_stubs + again.retired + again.revived);
    return *last.text;
  }

  /// What blocks: line and words of the only such message.
  std::string block(const std::string& old) const {
    const KeptStubs result = result_of(old);
    EXPECT_FALSE(result.text);
    std::string blocks;
    for (const StubsMessage& message : result.messages) {
      if (message.blocks) blocks += std::to_string(message.line) + " " + message.words;
    }
    return blocks;
  }

  /// All messages, a line for each.
  static std::string words(const KeptStubs& result) {
    std::string words;
    for (const StubsMessage& message : result.messages) {
      words += std::to_string(message.line) + " " + message.words + (message.blocks ? " (blocks)\n" : "\n");
    }
    return words;
  }

  /// Makes the document one family with these popups and this widget.
  void describe_popups(std::initializer_list<const char*> popups, const std::string& widget = "") {
    std::string items = "widget 'W' { " + widget + " } family 'F' { widget='W' ";
    for (const char* popup : popups) items += std::string("popup='") + popup + "' ";
    document.clear();
    describe_bare(items + "}");
    for (const auto& popup : predefined_popups) document.builtins.add(popup.name, BUILTIN_POPUP);
  }

  /// The fresh file, with a body of a person's for a popup.
  std::string written(const std::string& name, const std::string& body) const {
    return with(file(STUBS_FILE), popup_head(name) + kUntouched, popup_head(name) + body);
  }

  KeptStubs last;
};

TEST_F(KeepStubs, FileThatNobodyTouchedStaysTheSame) {
  describe_popups({"a", "b"}, "realise='make'");
  for (const Switches switches : all_switches)
    EXPECT_EQ(file(STUBS_FILE, switches), kept(file(STUBS_FILE, switches), switches));
  EXPECT_EQ(with_crlf(file(STUBS_FILE)), kept(with_crlf(file(STUBS_FILE))));
  EXPECT_EQ(3, last.bodies_kept);
}

TEST_F(KeepStubs, EmptyFileBecomesAFreshOne) {
  describe_popups({"a"});
  EXPECT_EQ(file(STUBS_FILE), kept(""));
  EXPECT_EQ(file(STUBS_FILE), kept(" \n"));
  EXPECT_EQ(1, last.new_stubs);
}

TEST_F(KeepStubs, WhatAPersonWroteStaysWhereItWas) {
  describe_popups({"a", "b"});
  std::string old = "/* mine */\n" + written("b", "{\n\tchar *s = \"}\"; /* { */\n\tif (c == '{') go();\n}\n");
  old = with(old, mark("b"),
             "#include \"mine.h\"\n\nstatic int helper(x) int x; { return x; }\n\n" + mark("b") + "int g;\n");
  EXPECT_EQ(old, kept(old));
  EXPECT_EQ("", words(last));
  EXPECT_EQ(2, last.bodies_kept);
}

TEST_F(KeepStubs, FunctionsMayHaveMoved) {
  describe_popups({"a", "b"});
  const std::string a = popup_stub("a");
  const std::string old = with(file(STUBS_FILE), a, "") + a;
  EXPECT_EQ(old, kept(old));
  const std::string apart = with(file(STUBS_FILE), popup_head("a") + kUntouched, "") + popup_head("a") + kUntouched;
  EXPECT_EQ(apart, kept(apart));
}

TEST_F(KeepStubs, NewStubsComeAtTheEndInTheirOrder) {
  describe_popups({"b"});
  const std::string old = written("b", "{ mine(); }\n") + "int last;\n";
  describe_popups({"a", "b", "c"}, "can_add_child='test'");
  EXPECT_EQ(old + "\n" + mark("test") + test_head("test") + "{\n\t/* FIXME */\n\n\treturn False ;\n}\n\n\n" +
                popup_stub("a") + popup_stub("c") + "\n",
            kept(old));
  EXPECT_EQ(3, last.new_stubs);
  EXPECT_EQ(1, last.bodies_kept);
}

TEST_F(KeepStubs, NewStubsHaveTheirHeadings) {
  describe_popups({"a"});
  const std::string old = file(STUBS_FILE, {.comment = true});
  describe_popups({"a", "b"});
  EXPECT_EQ(old + "/*\n** Resource dialog popup functions\n*/\n\n/* Family: F */\n" + popup_stub("b") + "\n",
            kept(old, {.comment = true}));
}

TEST_F(KeepStubs, NewStubsHaveTheLineEndsOfTheFile) {
  describe_popups({"a"});
  const std::string old = with_crlf(file(STUBS_FILE));
  describe_popups({"a", "b"});
  EXPECT_EQ(old + with_crlf(popup_stub("b") + "\n"), kept(old));
}

TEST_F(KeepStubs, NewStubsComeOnLinesOfTheirOwn) {
  describe_popups({"a"});
  const std::string old = file(STUBS_FILE);
  describe_popups({"a", "b"});
  const std::string stub = popup_stub("b") + "\n";
  EXPECT_EQ(old + "int x; // \\\n\n" + stub, kept(old + "int x; // \\\n"));
  EXPECT_EQ(old + "int x;\n\n" + stub, kept(old + "int x;"));
  EXPECT_EQ(with_crlf(old + "int x;\n\n" + stub), kept(with_crlf(old + "int x;")));
}

TEST_F(KeepStubs, FunctionWithoutMarkIsKnownByItsName) {
  describe_popups({"a"});
  for (const char* own :
       {"void a(Widget w) { }\n", "void a(w) Widget w; { }\n", "#ifdef X\nvoid a(Widget w) { }\n#endif\n"}) {
    EXPECT_EQ(own, kept(own)) << own;
  }
  EXPECT_EQ(std::string("int a_b; /* void a(Widget w) { } */\n\n") + popup_stub("a") + "\n",
            kept("int a_b; /* void a(Widget w) { } */\n"));
}

TEST_F(KeepStubs, MarkWithoutFunctionKeepsAStubAway) {
  describe_popups({"a"});
  const std::string old = mark("a") + "/* now in a.c */\n";
  EXPECT_EQ(old, kept(old));
  const std::string switched_off = "#if 0\n" + popup_stub("a") + "#endif\n";
  EXPECT_EQ(switched_off, kept(switched_off));
}

// Headers.

TEST_F(KeepStubs, IncludesAtTheTopGainWhatTheDocumentHasGained) {
  describe("family 'F' { header='one.h' popup='a' }");
  const std::string old =
      with(file(STUBS_FILE), "#include <one.h>\n", "#include <one.h>\n#include \"mine.h\"\n") + "#include \"late.h\"\n";
  document.clear();
  describe("family 'F' { header='zero.h' header='one.h' header='mine.h' header='late.h' header='two.h' popup='a' }");
  EXPECT_EQ(with(old, "#include \"mine.h\"\n", "#include \"mine.h\"\n#include <zero.h>\n#include <two.h>\n"),
            kept(old));
  const std::string crlf = with_crlf(old);
  EXPECT_EQ(with(crlf, "\"mine.h\"\r\n", "\"mine.h\"\r\n#include <zero.h>\r\n#include <two.h>\r\n"), kept(crlf));
}

TEST_F(KeepStubs, NoIncludeIsTakenAway) {
  describe("family 'F' { header='one.h' popup='a' }");
  const std::string old = file(STUBS_FILE);
  document.clear();
  describe("family 'F' { popup='a' }");
  EXPECT_EQ(old, kept(old));
}

TEST_F(KeepStubs, IncludeThatAPersonTookAwayAndNoFamilyHasStaysAway) {
  describe_popups({"a"});
  const std::string old = with(file(STUBS_FILE), "#include <X11/Xatom.h>\n", "");
  EXPECT_EQ(old, kept(old));
}

TEST_F(KeepStubs, IncludesFindTheirPlaceInAnyFile) {
  describe("family 'F' { header='one.h' }");
  EXPECT_EQ("#include <one.h>\nint x;\n", kept("int x;\n"));
  EXPECT_EQ("#include <a.h>\n#include <one.h>\n", kept("#include <a.h>"));
  EXPECT_EQ("#ifdef A\n#include <a.h>\n#endif\n#include <b.h> /* b\n*/\n#include <one.h>\nint x;\n",
            kept("#ifdef A\n#include <a.h>\n#endif\n#include <b.h> /* b\n*/\nint x;\n"));
  EXPECT_EQ("/* mine */\n#include <one.h>\n/* END of vqconfig Prelude */\n",
            kept("/* mine */\n/* END of vqconfig Prelude */\n"));
}

// Types that change.

TEST_F(KeepStubs, OtherTypesComeAboveTheOldBody) {
  describe_popups({"p"});
  const std::string body = "{\n\tmine();\n}\n";
  const std::string old = written("p", body) + "int last;\n";
  describe_popups({}, "can_add_child='p'");
  EXPECT_EQ(with(old, popup_head("p"), test_head("p")), kept(old));
  EXPECT_EQ(
      "18 'p' gets other types: Boolean(XWidget_p,WidgetClass); its body is the old one, and may have to follow\n",
      words(last));
}

TEST_F(KeepStubs, OtherTypesHaveTheLineEndsOfTheFile) {
  describe_popups({"p"});
  const std::string old = written("p", "{\n\tmine();\n}\n");
  describe_popups({}, "can_add_child='p'");
  EXPECT_EQ(with_crlf(with(old, popup_head("p"), test_head("p"))), kept(with_crlf(old)));
}

TEST_F(KeepStubs, BodyThatNobodyHasTouchedGoesWithItsTypes) {
  describe_popups({"p"});
  const std::string old = file(STUBS_FILE);
  describe_popups({}, "can_add_child='p'");
  const std::string expected =
      with(old, popup_head("p") + kUntouched, test_head("p") + "{\n\t/* FIXME */\n\n\treturn False ;\n}\n");
  EXPECT_EQ(expected, kept(old));
  EXPECT_EQ("18 'p' gets other types: Boolean(XWidget_p,WidgetClass)\n", words(last));
  EXPECT_EQ(with_crlf(expected), kept(with_crlf(old)));
}

TEST_F(KeepStubs, HeadThatSomebodyEditedStaysAbove) {
  describe_popups({}, "can_add_child='p'");
  const std::string head = "static void /* mine */\np(Widget w)\n";
  EXPECT_EQ(mark("p") + "#if 0\n" + head + "#endif\n" + test_head("p") + "  { mine(); }\n",
            kept(mark("p") + head + "  { mine(); }\n"));
  EXPECT_EQ(mark("p") + "#if 0\nvoid p(Widget w) { /* a\nb */ mine();\n#endif\n" + test_head("p") +
                "{ /* a\nb */ mine();\n}\n",
            kept(mark("p") + "void p(Widget w) { /* a\nb */ mine();\n}\n"));
  EXPECT_EQ(mark("p") + "#if 0\nvoid p(w) Widget w; { }\n#endif\n" + test_head("p") + "{ }\n",
            kept(mark("p") + "void p(w) Widget w; { }"
                             "\n"));
}

TEST_F(KeepStubs, TypesAreThoseOfTheKindWhateverNamesLayoutAndAttributes) {
  describe_popups({"p"});
  for (const char* head :
       {"void p(Widget w)", "static void\np(w)\n\tWidget w;", "EXPORT void p(register Widget my_own) UNUSED",
        "#ifdef _NO_PROTO\nvoid p(w) Widget w;\n#else\nvoid p(Widget w)\n#endif\n"}) {
    const std::string old = mark("p") + head + "{ }\n";
    EXPECT_EQ(old, kept(old));
    EXPECT_EQ("", words(last)) << head;
  }
}

TEST_F(KeepStubs, KindsOfTheSameTypesAreTheSame) {
  describe_popups({"p"});
  const std::string old = file(STUBS_FILE);
  document.clear();
  describe_bare("popup 'q' { dialog_update='p' } family 'F' { popup='q' }");
  EXPECT_EQ(old + popup_stub("q") + "\n", kept(old));
}

TEST_F(KeepStubs, TypesOfNoKindStayWithAWarning) {
  describe_popups({"p"});
  const std::string old = mark("p") + "int p(Special s) { }\n";
  EXPECT_EQ(old, kept(old));
  EXPECT_EQ("5 'p' has types that no stub has, and keeps them; the document asks for void(Widget)\n", words(last));
}

TEST_F(KeepStubs, HeadThatSharesWithOtherCodeStaysWithAWarning) {
  describe_popups({}, "can_add_child='p'");
  for (const char* function : {"int x; void p(Widget w) { }\n",
                               "#ifdef A\nint x;\nvoid p(Widget w)\n#else\nvoid p(w) Widget w;\n#endif\n{ }\n",
                               "#ifdef A\nvoid p(Widget w) {\n#else\nvoid p(w) Widget w; {\n#endif\n}\n"}) {
    EXPECT_EQ(mark("p") + function, kept(mark("p") + function));
    EXPECT_EQ(1U, last.messages.size());
  }
}

// Stubs that leave and come back.

TEST_F(KeepStubs, StubThatIsNoLongerNamedIsRetiredAlone) {
  describe_popups({"a", "b"});
  const std::string body = "{\n\tmine();\n} /* a */\n";
  const std::string old = with(written("a", body), mark("b"), "int between;\n" + mark("b"));
  describe_popups({"b"});
  EXPECT_EQ(with(old, popup_head("a") + body, retired("a", popup_head("a") + body)), kept(old));
  EXPECT_EQ(1, last.retired);
  EXPECT_EQ("", words(last));
}

TEST_F(KeepStubs, WhatBelongsToAHeadIsRetiredWithIt) {
  describe_popups({});
  for (const char* function : {"__attribute__((used))\nvoid a(Widget w) { }\n", "EXPORT(void)\na(Widget w) { }\n",
                               "EXPORT\nvoid a(Widget w) NONNULL(1)\n{ }\n"}) {
    EXPECT_EQ("int x;\n" + mark("a") + retired("a", function), kept("int x;\n" + mark("a") + function));
  }
  EXPECT_EQ(mark("a") + "MODULE(x)\n\n/* mine */\n" + retired("a", "void a(Widget w) { }\n"),
            kept(mark("a") + "MODULE(x)\n\n/* mine */\nvoid a(Widget w) { }\n"));
}

TEST_F(KeepStubs, RetiredStubComesBackAsItWas) {
  describe_popups({"a", "b"});
  const std::string body = "{\n#ifdef X\n\tmine();\n#endif\n}\n";
  for (std::string old : {written("a", body), with_crlf(written("a", body)), file(STUBS_FILE),
                          mark("b") + "void b(Widget w) { }\n" + mark("a") + "void a(Widget w) { }",
                          with_crlf(mark("b") + "void b(Widget w) { }\n" + mark("a") + "void a(Widget w) {\n}")}) {
    describe_popups({"b"});
    const std::string without = kept(old);
    EXPECT_NE(old, without);
    describe_popups({"a", "b"});
    EXPECT_EQ(old, kept(without));
    EXPECT_EQ(1, last.revived);
  }
}

TEST_F(KeepStubs, RetiredStubComesBackWithOtherTypesIfItHasTo) {
  describe_popups({"p"});
  const std::string old = written("p", "{ mine(); }\n");
  describe_popups({});
  const std::string without = kept(old);
  describe_popups({}, "can_add_child='p'");
  EXPECT_EQ(with(old, popup_head("p"), test_head("p")), kept(without));
}

TEST_F(KeepStubs, StubThatIsUsedStaysAliveWithAWarning) {
  describe_popups({"a", "b"});
  for (const char* use : {"void h(Widget w) { a(w); }\n", "void (*table[])() = { a };\n", "#define CALL(w) a(w)\n"}) {
    const std::string old = file(STUBS_FILE) + use;
    describe_popups({"b"});
    EXPECT_EQ(old, kept(old)) << use;
    EXPECT_EQ("18 the document no longer names 'a', which stays since other code of the file uses it\n", words(last));
    describe_popups({"a", "b"});
  }
}

TEST_F(KeepStubs, HeadThatIsReplacedUsesNothing) {
  describe_popups({}, "can_add_child='p'");
  const std::string head = "void __attribute__((alias(a))) p(Widget w)\n";
  EXPECT_EQ(mark("a") + retired("a", "void a(Widget w) { }\n") + mark("p") + "#if 0\n" + head + "#endif\n" +
                test_head("p") + "{ mine(); }\n",
            kept(mark("a") + "void a(Widget w) { }\n" + mark("p") + head + "{ mine(); }\n"));
}

TEST_F(KeepStubs, StubWhoseMacroIsUsedStaysAlive) {
  describe_popups({"a", "b"});
  const std::string old = written("a", "{\n#define MINE 1\n\tint x = MINE;\n}\n");
  describe_popups({"b"});
  EXPECT_EQ(old + "int y = MINE;\n", kept(old + "int y = MINE;\n"));
  kept(old);
  EXPECT_EQ(1, last.retired);
}

TEST_F(KeepStubs, StubIsNotUsedByItselfByADeclarationOrByWhatIsLeftOut) {
  describe_popups({"a", "b"});
  const std::string old =
      "extern void a(Widget);\n" + written("a", "{ a(parent); }\n") + "/* a() */\n#if 0\nint x = a();\n#endif\n";
  describe_popups({"b"});
  EXPECT_EQ(with(old, popup_head("a") + "{ a(parent); }\n", retired("a", popup_head("a") + "{ a(parent); }\n")),
            kept(old));
}

TEST_F(KeepStubs, StubsThatUseEachOtherLeaveAndComeBackTogether) {
  describe_popups({"a", "b", "c"});
  const std::string old =
      with(written("a", "{ b(parent); }\n"), popup_head("b") + kUntouched, popup_head("b") + "{ a(parent); }\n");
  describe_popups({"c"});
  const std::string without = kept(old);
  EXPECT_EQ(2, last.retired);
  describe_popups({"a", "c"});
  EXPECT_EQ(old, kept(without));
  EXPECT_EQ(2, last.revived);
  EXPECT_EQ("30 the document no longer names 'b', which stays since other code of the file uses it\n",
            words(result_of(old)));
}

TEST_F(KeepStubs, FunctionOfAPersonIsNotRetired) {
  describe_popups({"b"});
  const std::string old = file(STUBS_FILE) + "void a(Widget w) { }\n";
  EXPECT_EQ(old, kept(old));
}

TEST_F(KeepStubs, StubOfAFamilyThatTakesNoPartStays) {
  describe_bare("family 'F' { popup='a' } family 'G' { popup='b' }");
  const std::string old = file(STUBS_FILE);
  leave_out("F");
  EXPECT_EQ(old, kept(old));
  leave_out("G");
  EXPECT_EQ(old, kept(old));
}

TEST_F(KeepStubs, InitialisationThatIsNamedWithoutAStubStays) {
  describe_bare("family 'F' { family_init='start' generate_family_init_stub=True }");
  const std::string old = file(STUBS_FILE);
  document.clear();
  describe_bare("family 'F' { family_init='start' generate_family_init_code=True }");
  EXPECT_EQ(old, kept(old));
}

TEST_F(KeepStubs, StubThatSharesItsLinesStaysWithAWarning) {
  describe_popups({});
  for (const char* function :
       {"int x; void a(Widget w) { }\n", "void a(Widget w) { } int x;\n", "int x; \\\nvoid a(Widget w) { }\n",
        "#ifdef A\nint x;\nvoid a(Widget w)\n#else\nvoid a(w) Widget w;\n#endif\n{ }\n"}) {
    EXPECT_EQ(mark("a") + function, kept(mark("a") + function));
    EXPECT_EQ(1U, last.messages.size()) << function;
  }
}

// What blocks.

TEST_F(KeepStubs, ProcedureThatIsDefinedTwiceBlocksWhenItHasToChange) {
  describe_popups({"a"});
  const std::string old = mark("a") + "#if X\nvoid a(Widget w) { }\n#else\nvoid a(Widget w) { x(); }\n#endif\n";
  EXPECT_EQ(old, kept(old));
  describe_popups({});
  EXPECT_EQ("6 the document no longer names 'a', which is defined more than once: remove it, or its mark", block(old));
  describe_popups({}, "can_add_child='a'");
  const std::string words =
      " 'a' is defined more than once, and has to get other types; the document asks for Boolean(XWidget_p,WidgetClass)";
  EXPECT_EQ("6" + words + "8" + words, block(old));
}

TEST_F(KeepStubs, RetiredStubInWhatIsLeftOutStaysThere) {
  describe_popups({"a"});
  const std::string file = "#if 0\n" + retired("a", "void a(Widget w) { }\n") + "#endif\n\n";
  EXPECT_EQ(file + popup_stub("a") + "\n", kept(file));
}

TEST_F(KeepStubs, RetiredStubWithAnotherInItStaysRetired) {
  describe_popups({"a", "b"});
  const std::string file = retired("a", retired("b", "void b(Widget w) { }\n") + "void a(Widget w) { }\n") + "\n";
  EXPECT_EQ(file + popup_stub("a") + popup_stub("b") + "\n", kept(file));
}

TEST_F(KeepStubs, RetiredStubInAFunctionStaysThere) {
  describe_popups({"a"});
  const std::string stub = retired("a", "void a(Widget w) { }\n");
  for (const std::string& file : {"int f() {\n" + stub + "}\n\n", "int f(\n" + retired("a", "int a\n") + ") { }\n\n"}) {
    EXPECT_EQ(file + popup_stub("a") + "\n", kept(file)) << file;
  }
}

TEST_F(KeepStubs, ProcedureThatIsRetiredTwiceBlocksWhenItIsNamedAgain) {
  const std::string stub = retired("a", "void a(Widget w) { }\n");
  describe_popups({});
  EXPECT_EQ(stub + stub, kept(stub + stub));
  describe_popups({"a"});
  EXPECT_EQ("5 'a' is named again, but has been retired more than once: remove all but one", block(stub + stub));
  EXPECT_EQ(stub + stub + "void a(Widget w) { }\n", kept(stub + stub + "void a(Widget w) { }\n"));
}

TEST_F(KeepStubs, ConditionalAroundAStubGoesWithItAsWhatUsesAnother) {
  describe_popups({});
  const std::string a = "int a(void) { return 0; }\n";
  const std::string b = "#if a\nvoid b(Widget w)\n#endif\n{ }\n";
  EXPECT_EQ(mark("a") + retired("a", a) + mark("b") + retired("b", b), kept(mark("a") + a + mark("b") + b));
}

TEST_F(KeepStubs, MarkOfARetiredStubEndsWhatStandsBeforeIt) {
  describe_popups({"b"});
  const std::string file =
      "int a[] =\n" + retired("a", mark("a") + "void a(Widget w) { }\n") + "void b(Widget w) { }\n";
  EXPECT_EQ(file, kept(file));
}

TEST_F(KeepStubs, ProcedureWithoutMarkBlocksWhenItHasToChange) {
  describe_popups({}, "can_add_child='a'");
  EXPECT_EQ(
      "2 'a' has to get other types, but has lost the mark of what was generated; the document asks for "
      "Boolean(XWidget_p,WidgetClass)",
      block("\nvoid a(Widget w) { }\n"));
}

TEST_F(KeepStubs, DeclarationOfOtherTypesBlocks) {
  describe_popups({}, "can_add_child='a'");
  const std::string words =
      "1 'a' is declared here in another way; the document asks for Boolean(XWidget_p,WidgetClass)";
  EXPECT_EQ(words, block("extern void a(Widget);\n"));
  EXPECT_EQ(words, block("Widget a;\n"));
  EXPECT_EQ(words, block("extern void a(Widget);\n" + mark("a") + "void a(Widget w) { }\n"));
  for (const char* declaration : {"extern Boolean a(XWidget_p, WidgetClass);\n", "Boolean a();\n"}) {
    EXPECT_EQ(declaration + ("\n" + mark("a")) + test_head("a") + "{\n\t/* FIXME */\n\n\treturn False ;\n}\n\n\n",
              kept(declaration));
  }
}

TEST_F(KeepStubs, FileThatDoesNotCloseBlocks) {
  describe_popups({"a"});
  EXPECT_EQ("2 this bracket is never closed", block("\nint f() {\n"));
  EXPECT_EQ("1 no '{' stands before this", block("}\n"));
  EXPECT_EQ("3 this comment is never closed", block("\n\n/* mine\n"));
  EXPECT_EQ("2 this conditional is never closed: it has no #endif", block("\n#if 1\n"));
  EXPECT_EQ("1 no #if stands before this", block("#endif\n"));
}

TEST_F(KeepStubs, AnyNamesOfADocumentDoNoHarm) {
  describe_bare(
      "popup 'my proc' {} popup '100%%' {} popup '*/' {} popup ' ' {} popup 'größe' {} popup '1' {}\n"
      "family 'F' { header='a>b' header='//x' header='y%%' popup='my proc' popup='100%%' popup='*/' popup=' ' popup='größe' popup='1' }");
  EXPECT_EQ(file(STUBS_FILE), kept(file(STUBS_FILE)));
  kept("int mine[1];\n");
}

}  // namespace
