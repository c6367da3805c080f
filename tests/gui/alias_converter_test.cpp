#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nalias 'Angle' {\nto_name='Int'\n}\nalias 'Length' {\n}\n"
    "converter 'Colour' {\nproc_name='cvt_colour'\ndialog='colour_popup'\nadd_in_vq=True\nadd_in_code=False\n}\n"
    "converter 'Shape' {\nproc_name='cvt_shape'\nadd_in_code=True\n}\n"
    "family 'F' {\nalias='Angle'\nalias='Length'\nconverter='Colour'\nconverter='Shape'\n}\nfamily 'G' {\n}\n";

class AliasPage : public Session {
 protected:
  AliasPage() {
    open_document(document);
    edit_family("F");
  }
  static void fill(const std::string& name, const std::string& to_name) {
    enter("aliaslist_selection", name);
    enter("aliaslist_to_name", to_name);
  }
};

TEST_F(AliasPage, SelectingShowsTheTypeItStandsFor) {
  choose_menu("entity_viewb", "entity_opt_aliases_t");
  click_item("aliaslist_selection", "Angle");
  EXPECT_EQ("Int", text("aliaslist_to_name"));
  click_item("aliaslist_selection", "Length");
  EXPECT_EQ("", text("aliaslist_to_name"));
  EXPECT_FALSE(dirty);
}

TEST_F(AliasPage, OkOnANewNameAddsItWithItsType) {
  choose_menu("entity_viewb", "entity_opt_aliases_t");
  click("aliaslist_to_name");
  type("Float");
  click("aliaslist_selection.Text");
  type("Bound");
  key("Return");
  EXPECT_EQ((Items{"Angle", "Bound", "Length"}), items("aliaslist_selection"));
  EXPECT_EQ("alias 'Bound' {\n\tto_name='Float'\n}\n", saved_item("alias 'Bound'"));
}

TEST_F(AliasPage, OkOnAnExistingNameRewritesItForEveryFamily) {
  select("family_selection", "G");
  fill("Angle", "");
  press_apply("aliaslist_selection");
  select("family_selection", "F");
  fill("Angle", "Double");
  press_ok("aliaslist_selection");
  EXPECT_EQ((Items{"Angle", "Length"}), items("aliaslist_selection"));
  EXPECT_EQ("alias 'Angle' {\n\tto_name='Double'\n}\n", saved_item("alias 'Angle'"));
  select("family_selection", "G");
  select("aliaslist_selection", "Angle");
  EXPECT_EQ("Double", text("aliaslist_to_name"));
}

TEST_F(AliasPage, OkMarksTheDocumentChanged) {
  fill("Angle", "Int");
  press_ok("aliaslist_selection");
  EXPECT_TRUE(dirty);
}

TEST_F(AliasPage, OkWithAnEmptyTypeStoresNone) {
  fill("Angle", "");
  press_ok("aliaslist_selection");
  EXPECT_EQ("alias 'Angle' {\n}\n", saved_item("alias 'Angle'"));
}

TEST_F(AliasPage, AddOfAnotherFamilysAliasShowsItsType) {
  select("family_selection", "G");
  fill("Angle", "typed");
  press_apply("aliaslist_selection");
  EXPECT_EQ("Int", text("aliaslist_to_name"));
  EXPECT_EQ("alias 'Angle' {\n\tto_name='Int'\n}\n", saved_item("alias 'Angle'"));
}

TEST_F(AliasPage, AddOfAnotherFamilysAliasWithoutATypeGivesItOne) {
  select("family_selection", "G");
  fill("Length", "Short");
  press_apply("aliaslist_selection");
  EXPECT_EQ("alias 'Length' {\n\tto_name='Short'\n}\n", saved_item("alias 'Length'"));
}

TEST_F(AliasPage, AddOfANameThatIsThereLeavesItsTypeAlone) {
  fill("Angle", "typed");
  press_apply("aliaslist_selection");
  EXPECT_FALSE(dirty);
  EXPECT_EQ("alias 'Angle' {\n\tto_name='Int'\n}\n", saved_item("alias 'Angle'"));
}

TEST_F(AliasPage, DeletingTheShownAliasClearsItsFields) {
  select("aliaslist_selection", "Angle");
  press_cancel("aliaslist_selection");
  EXPECT_EQ("", text("aliaslist_selection"));
  EXPECT_EQ("", text("aliaslist_to_name"));
  EXPECT_EQ("", saved_item("alias 'Angle'"));
}

TEST_F(AliasPage, DeletingAnotherAliasLeavesTheFieldsAlone) {
  select("aliaslist_selection", "Angle");
  enter("aliaslist_selection", "Length");
  press_cancel("aliaslist_selection");
  EXPECT_EQ("Length", text("aliaslist_selection"));
  EXPECT_EQ("Int", text("aliaslist_to_name"));
}

TEST_F(AliasPage, AnotherFamilyClearsTheFieldsAndTheSameOneDoesNot) {
  select("aliaslist_selection", "Angle");
  select("family_selection", "F");
  EXPECT_EQ("Int", text("aliaslist_to_name"));
  EXPECT_EQ("", text("aliaslist_selection"));
  select("family_selection", "G");
  EXPECT_EQ("", text("aliaslist_to_name"));
}

class ConverterPage : public Session {
 protected:
  ConverterPage() {
    open_document(document);
    edit_family("F");
  }
  static void fill(const std::string& name, const char* procedure, const char* popup, bool in_vq, bool in_code) {
    enter("converter_selection", name);
    enter("converter_proc", procedure);
    enter("convert_popup_t", popup);
    toggle("converter_vq_tog", in_vq);
    toggle("converter_code_tog", in_code);
  }
  static void expect_fields(const char* procedure, const char* popup, bool in_vq, bool in_code) {
    EXPECT_EQ(procedure, text("converter_proc"));
    EXPECT_EQ(popup, text("convert_popup_t"));
    EXPECT_EQ(in_vq, is_set("converter_vq_tog"));
    EXPECT_EQ(in_code, is_set("converter_code_tog"));
  }
};

TEST_F(ConverterPage, SelectingShowsTheConverter) {
  choose_menu("entity_viewb", "entity_opt_converters_t");
  click_item("converter_selection", "Colour");
  expect_fields("cvt_colour", "colour_popup", true, false);
  click_item("converter_selection", "Shape");
  expect_fields("cvt_shape", "", false, true);
  EXPECT_FALSE(dirty);
}

TEST_F(ConverterPage, AddStoresEveryField) {
  choose_menu("entity_viewb", "entity_opt_converters_t");
  click("converter_proc");
  type("cvt_gap");
  click("convert_popup_t");
  type("gap_popup");
  click("converter_vq_tog");
  click("converter_code_tog");
  click("converter_selection.Text");
  type("Gap");
  click("converter_selection.Apply");
  EXPECT_EQ((Items{"Colour", "Gap", "Shape"}), items("converter_selection"));
  expect_fields("cvt_gap", "gap_popup", true, true);
  EXPECT_EQ("converter 'Gap' {\n\tproc_name='cvt_gap'\n\tdialog='gap_popup'\n\tadd_in_vq=True\n\tadd_in_code=True\n}\n",
            saved_item("converter 'Gap'"));
}

TEST_F(ConverterPage, OkRewritesEveryField) {
  fill("Colour", "cvt_new", "", false, true);
  press_ok("converter_selection");
  EXPECT_TRUE(dirty);
  EXPECT_EQ((Items{"Colour", "Shape"}), items("converter_selection"));
  EXPECT_EQ("converter 'Colour' {\n\tproc_name='cvt_new'\n\tadd_in_code=True\n}\n", saved_item("converter 'Colour'"));
}

TEST_F(ConverterPage, OkOnANewNameAddsIt) {
  fill("Z", "cvt_z", "", false, false);
  press_ok("converter_selection");
  EXPECT_EQ((Items{"Colour", "Shape", "Z"}), items("converter_selection"));
  EXPECT_EQ("converter 'Z' {\n\tproc_name='cvt_z'\n}\n", saved_item("converter 'Z'"));
}

TEST_F(ConverterPage, AddOfAnotherFamilysConverterShowsItsFields) {
  select("family_selection", "G");
  fill("Colour", "typed", "typed", false, true);
  press_apply("converter_selection");
  expect_fields("cvt_colour", "colour_popup", true, false);
  EXPECT_TRUE(saved_item("converter 'Colour'").starts_with("converter 'Colour' {\n\tproc_name='cvt_colour'\n"));
}

TEST_F(ConverterPage, AConverterWithoutAProcedureTakesTheFieldsOfTheNextAdd) {
  fill("Colour", "", "kept", true, false);
  press_ok("converter_selection");
  select("family_selection", "G");
  fill("Colour", "cvt_g", "g_popup", false, true);
  press_apply("converter_selection");
  EXPECT_EQ("converter 'Colour' {\n\tproc_name='cvt_g'\n\tdialog='g_popup'\n\tadd_in_code=True\n}\n",
            saved_item("converter 'Colour'"));
}

TEST_F(ConverterPage, DeletingTheShownConverterClearsItsFields) {
  select("converter_selection", "Colour");
  press_cancel("converter_selection");
  EXPECT_EQ("", text("converter_selection"));
  expect_fields("", "", false, false);
  EXPECT_EQ("", saved_item("converter 'Colour'"));
}

TEST_F(ConverterPage, AnAddedConverterIsNotMadeCurrent) {
  fill("Gap", "cvt_gap", "", false, false);
  press_apply("converter_selection");
  press_cancel("converter_selection");
  EXPECT_EQ("Gap", text("converter_selection"));
  expect_fields("cvt_gap", "", false, false);
}

TEST_F(ConverterPage, AnotherFamilyClearsTheFields) {
  select("converter_selection", "Colour");
  select("family_selection", "G");
  expect_fields("", "", false, false);
}

TEST_F(ConverterPage, TheSameFamilyKeepsTheFields) {
  select("converter_selection", "Colour");
  enter("converter_proc", "typed");
  select("family_selection", "F");
  expect_fields("typed", "colour_popup", true, false);
}

TEST_F(ConverterPage, ANewNameFallsIntoAnOrderMadeByHand) {
  for (const char* name : {"A", "B"}) {
    fill(name, "p", "", false, false);
    press_apply("converter_selection");
  }
  select("converter_selection", "A");  // A B Colour Shape
  press("converter_downarrow");
  press("converter_downarrow");
  EXPECT_EQ((Items{"B", "Colour", "A", "Shape"}), items("converter_selection"));
  fill("Box", "p", "", false, false);
  press_apply("converter_selection");
  EXPECT_EQ((Items{"B", "Box", "Colour", "A", "Shape"}), items("converter_selection"));
  EXPECT_EQ((Names{"B", "Box", "Colour", "A", "Shape"}), saved_names("F", "converter"));
}

}  // namespace
