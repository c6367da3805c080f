#include "vqc/cmd/generate/stubs_file.h"

#include <gtest/gtest.h>

#include <string>

#include "generate/generate_support.h"
#include "vqc/cmd/generate/parse_stubs.h"

using namespace vqc;

namespace {

/// A stub: its name, its head in both styles, and its body between the braces.
std::string stub(const std::string& name, const std::string& head, const std::string& old_head,
                 const std::string& body = "\t/* FIXME */\n") {
  return "/*\n** vqconfig generated stub: " + name + "\n*/\n\n#ifndef   _NO_PROTO\n" + head +
         "#else  /* _NO_PROTO */\n" + old_head + "#endif /* _NO_PROTO */\n{\n" + body + "}\n\n";
}

std::string holds_stub(const std::string& name) {
  return stub(name,
              "Boolean " + name + "(XWidget_p   parent_xwidget,\n" + std::string(9 + name.size(), ' ') +
                  "WidgetClass child_class)\n",
              "Boolean " + name + "(parent_xwidget, child_class)\n\tXWidget_p   parent_xwidget ;\n" +
                  "\tWidgetClass child_class ;\n",
              "\t/* FIXME */\n\n\treturn False ;\n");
}

std::string popup_stub(const std::string& name) {
  return stub(name, "void " + name + "(Widget parent)\n", "void " + name + "(parent)\n\tWidget parent ;\n");
}

/// The text with every line in the margin's form.
std::string always(const std::string& text) {
  std::string marked = "  |";
  for (char c : text) marked += c == '\n' ? "\n  |" : std::string(1, c);
  return marked.substr(0, marked.size() - 3);
}

std::string heading(const char* title, const char* family) {
  return "c |/*\nc |** " + std::string(title) + "\nc |*/\nc |\nc |/* Family: " + family + " */\n";
}

class StubFunctions : public GenerateTest {
 protected:
  /// The stubs of the only family F with the only widget W, which has this field.
  std::string stubs_of(const std::string& field) {
    describe("widget 'W' { " + field + " } family 'F' { widget='W' }");
    return written_by(write_stub_functions);
  }
};

TEST_F(StubFunctions, WidgetWithoutProceduresWritesNothing) {
  describe("widget 'W' { } family 'F' { widget='W' }");
  expect_each("", write_stub_functions);
}

TEST_F(StubFunctions, OfTheName) {
  EXPECT_EQ(
      stub("n", "char *n(char *name)\n", "char *n(name)\n\tchar *name ;\n", "\t/* FIXME */\n\n\treturn (name) ;\n") +
          "\n",
      stubs_of("defined_name='n'"));
}

TEST_F(StubFunctions, OfTheCreation) {
  EXPECT_EQ(stub("make",
                 "Widget make(char       *name,\n"
                 "            WidgetClass widget_class,\n"
                 "            Widget      parent,\n"
                 "            ArgList     args,\n"
                 "            Cardinal    arg_count)\n",
                 "Widget make(name, widget_class, parent, args, arg_count)\n"
                 "\tchar       *name ;\n"
                 "\tWidgetClass widget_class ;\n"
                 "\tWidget      parent ;\n"
                 "\tArgList     args ;\n"
                 "\tCardinal    arg_count ;\n",
                 "\t/* FIXME */\n\n\treturn XtCreateWidget(name, widget_class, parent, args, arg_count) ;\n") +
                "\n",
            stubs_of("realise='make'"));
}

TEST_F(StubFunctions, OfTheAbstractionAreOneColumnFurtherToTheRight) {
  EXPECT_EQ(stub("edit",
                 "Boolean edit(XWidget_p xwidget,\n"
                 "              Widget    abstract_child,\n"
                 "              Boolean  *recurse,\n"
                 "              Boolean  *editable)\n",
                 "Boolean edit(xwidget, abstract_child, recurse, editable)\n"
                 "\tXWidget_p xwidget ;\n"
                 "\tWidget    abstract_child ;\n"
                 "\tBoolean  *recurse ;\n"
                 "\tBoolean  *editable ;\n",
                 "\t/* FIXME */\n\n\t*recurse  = True ;\n\t*editable = True ;\n\n\treturn True ;\n") +
                "\n",
            stubs_of("abstract='edit'"));
}

TEST_F(StubFunctions, OfTheChild) {
  EXPECT_EQ(stub("holds",
                 "Boolean holds(XWidget_p   parent_xwidget,\n"
                 "              WidgetClass child_class)\n",
                 "Boolean holds(parent_xwidget, child_class)\n"
                 "\tXWidget_p   parent_xwidget ;\n"
                 "\tWidgetClass child_class ;\n",
                 "\t/* FIXME */\n\n\treturn False ;\n") +
                "\n",
            stubs_of("can_add_child='holds'"));
}

TEST_F(StubFunctions, OfTheParent) {
  EXPECT_EQ(stub("fits",
                 "Boolean fits(Widget      parent,\n"
                 "             WidgetClass child_class)\n",
                 "Boolean fits(parent, child_class)\n"
                 "\tWidget      parent ;\n"
                 "\tWidgetClass child_class ;\n",
                 "\t/* FIXME */\n\n\treturn True ;\n") +
                "\n",
            stubs_of("appropriate_parent='fits'"));
}

TEST_F(StubFunctions, OfTheFamilyComeFirst) {
  describe(
      "widget 'W' { can_add_child='holds' }"
      "family 'F' { widget='W' family_init='start' generate_family_init_stub=True }");
  const std::string start = stub("start", "void start(Widget shell)\n", "void start(shell)\n\tWidget shell ;\n");
  expect_each(heading("Stub functions", "F") + always(start + holds_stub("holds") + "\n"), write_stub_functions);
}

TEST_F(StubFunctions, OfTheFamilyMustBeAskedFor) {
  describe("family 'F' { family_init='start' } family 'G' { generate_family_init_stub=True }");
  expect_each("", write_stub_functions);
}

TEST_F(StubFunctions, OfTheFamilyNeedAName) {
  describe("family 'F' { family_init='' generate_family_init_stub=True }");
  expect_each("", write_stub_functions);
}

TEST_F(StubFunctions, ProcedureOfTwoWidgetsHasOneStub) {
  describe(
      "widget 'V' { can_add_child='holds' } widget 'W' { can_add_child='holds' }"
      "family 'F' { widget='V' widget='W' }");
  expect_each(heading("Stub functions", "F") + always(holds_stub("holds") + "\n"), write_stub_functions);
}

TEST_F(StubFunctions, ProcedureOfTwoFamiliesHasOneStub) {
  describe(
      "widget 'V' { can_add_child='holds' } widget 'W' { can_add_child='other' }"
      "family 'F' { widget='V' family_init='start' generate_family_init_stub=True }"
      "family 'G' { widget='V' family_init='start' generate_family_init_stub=True }"
      "family 'H' { widget='V' widget='W' }");
  const std::string start = stub("start", "void start(Widget shell)\n", "void start(shell)\n\tWidget shell ;\n");
  expect_each(heading("Stub functions", "F") + always(start + holds_stub("holds")) + heading("Stub functions", "H") +
                  always(holds_stub("other") + "\n"),
              write_stub_functions);
}

TEST_F(StubFunctions, SameNameOfTwoKindsHasTwoStubs) {
  const std::string text = stubs_of("can_add_child='ask' appropriate_parent='ask'");
  EXPECT_EQ(0U, text.find(holds_stub("ask")));
  EXPECT_NE(std::string::npos, text.find("Boolean ask(Widget      parent,\n"));
}

TEST_F(StubFunctions, OfUnselectedFamiliesAreNotWritten) {
  describe("widget 'W' { can_add_child='holds' } family 'F' { widget='W' } family 'G' { widget='W' }");
  leave_out("F");
  expect_each(heading("Stub functions", "G") + always(holds_stub("holds") + "\n"), write_stub_functions);
}

TEST_F(StubFunctions, ThatWereCarriedOverAreNotWritten) {
  describe(
      "widget 'W' { can_add_child='holds' appropriate_parent='other' } family 'F' { widget='W' family_init='start'"
      "generate_family_init_stub=True }");
  const Section keep_two = [](::Run& run) {
    for (const char* name : {"start", "other"}) run.kept_stubs.add(name);
  };
  const Section keep_third = [](::Run& run) { run.kept_stubs.add("holds"); };
  expect_each(heading("Stub functions", "F") + always(holds_stub("holds") + "\n"), write_stub_functions, {keep_two});
  expect_each("", write_stub_functions, {keep_two, keep_third});
}

class PopupFunctions : public StubFunctions {
 protected:
  static constexpr const char* kTitle = "Resource dialog popup functions";
};

TEST_F(PopupFunctions, OfPredefinedPopupsAreNotWritten) {
  describe("family 'F' { }");
  expect_each("", write_popup_functions);
}

TEST_F(PopupFunctions, UpdateOfAPredefinedPopupIsWritten) {
  describe("popup 'vq_font_dialog_create' { dialog_update='refresh' } family 'F' { }");
  expect_each(heading(kTitle, "F") + always(stub("refresh", "void refresh(Widget current)\n",
                                                 "void refresh(current)\n\tWidget current ;\n") +
                                            "\n"),
              write_popup_functions);
}

TEST_F(PopupFunctions, OfAllThreeKinds) {
  describe("popup 'p' { dialog_init='begin' dialog_update='refresh' } family 'F' { popup='p' }");
  expect_each(heading(kTitle, "F") + always(popup_stub("p") +
                                            stub("begin",
                                                 "void begin(Widget      source_text,\n"
                                                 "           Widget      current,\n"
                                                 "           char       *resource_name)\n",
                                                 "void begin(source_text, current, resource_name)\n"
                                                 "\tWidget      source_text ;\n"
                                                 "\tWidget      current ;\n"
                                                 "\tchar       *resource_name ;\n") +
                                            stub("refresh", "void refresh(Widget current)\n",
                                                 "void refresh(current)\n\tWidget current ;\n") +
                                            "\n"),
              write_popup_functions);
}

TEST_F(PopupFunctions, PopupThatBeginsLikeAPredefinedOneHasItsOtherStubs) {
  describe("popup 'p' { dialog_init='vq_font_dialog_initialise' } family 'F' { popup='p' }");
  expect_each(heading(kTitle, "F") + always(popup_stub("p") + "\n"), write_popup_functions);
}

TEST_F(PopupFunctions, SharedPopupHasOneStub) {
  describe("family 'F' { popup='a' } family 'G' { popup='a' } family 'H' { popup='a' popup='b' }");
  expect_each(heading(kTitle, "F") + always(popup_stub("a")) + heading(kTitle, "H") + always(popup_stub("b") + "\n"),
              write_popup_functions);
}

TEST_F(PopupFunctions, ThatWereCarriedOverAreNotWritten) {
  describe("family 'F' { popup='a' popup='b' }");
  expect_each(heading(kTitle, "F") + always(popup_stub("b") + "\n"), write_popup_functions,
              {[](::Run& run) { run.kept_stubs.add("a"); }});
}

}  // namespace
