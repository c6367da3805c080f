#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nenumeration 'Mode' {\ntypename='unsigned char'\n"
    "enumentry 'slow' {\ncode_symbol='SLOW'\nresfile_symbol='slow_mode'\n}\n"
    "enumentry 'fast' {\ncode_symbol='FAST'\n}\n}\n"
    "enumeration 'Bare' {\ntypename='int'\n}\n"
    "family 'F' {\nenumeration='Mode'\nenumeration='Bare'\n}\nfamily 'Empty' {\n}\n";

class EnumEditor : public Session {
 protected:
  EnumEditor() {
    open_document(document);
    edit_family("F");
  }

  static void edit(const std::string& name) { edit_enumeration(name); }
  static void expect_fields(const char* type_field, const char* code, const char* resfile) {
    EXPECT_EQ(type_field, text("enumedit_type"));
    EXPECT_EQ(code, text("enumedit_code_symbol"));
    EXPECT_EQ(resfile, text("enumedit_resfile_symbol"));
  }
  static void expect_empty() {
    EXPECT_EQ(filled("enum_title", nullptr), title("enumedit_dialog"));
    EXPECT_EQ(Items(), items("enumedit_selection"));
    EXPECT_EQ("", text("enumedit_selection"));
    expect_fields("", "", "");
  }
};

TEST_F(EnumEditor, EditOpensItOnTheEnumeration) {
  choose_menu("entity_viewb", "entity_opt_enums_t");
  click_item("enumlist_selection", "Mode");
  click("enumlist_selection.OK");
  ASSERT_TRUE(is_shown("enumedit_dialog"));
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
  EXPECT_EQ((Items{"slow", "fast"}), items("enumedit_selection"));
  EXPECT_EQ("", text("enumedit_selection"));
  expect_fields("unsigned char", "", "");
  EXPECT_EQ((std::vector<bool>{true, true, true}), buttons_sensitive("enumedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(EnumEditor, ANewEnumerationIsAddedAndNotOpened) {
  edit("New");
  EXPECT_EQ((Items{"Bare", "Mode", "New"}), items("enumlist_selection"));
  EXPECT_FALSE(is_shown("enumedit_dialog"));
}

TEST_F(EnumEditor, TheFirstEnumerationBecomesCurrentAndLaterOnesDoNot) {
  edit("Mode");
  select("family_selection", "Empty");
  expect_empty();
  enter("enumlist_selection", "Mode");
  press_apply("enumlist_selection");
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
  enter("enumlist_selection", "Z");
  press_apply("enumlist_selection");
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
}

TEST_F(EnumEditor, SelectingAnEnumerationLoadsIt) {
  edit("Bare");
  select("enumlist_selection", "Mode");
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
}

TEST_F(EnumEditor, DeletingTheShownEnumerationEmptiesIt) {
  edit("Mode");
  enter("enumlist_selection", "Mode");
  press_cancel("enumlist_selection");
  expect_empty();
  EXPECT_EQ("", text("enumlist_selection"));
  EXPECT_EQ("", saved_item("enumeration 'Mode'"));
}

TEST_F(EnumEditor, DeletingAnotherEnumerationLeavesItAlone) {
  edit("Mode");
  enter("enumlist_selection", "Bare");
  press_cancel("enumlist_selection");
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
  EXPECT_EQ((Items{"slow", "fast"}), items("enumedit_selection"));
}

TEST_F(EnumEditor, AnotherFamilyEmptiesItAndTheSameOneDoesNot) {
  edit("Mode");
  select("family_selection", "F");
  EXPECT_EQ(filled("enum_title", "Mode"), title("enumedit_dialog"));
  select("family_selection", "Empty");
  expect_empty();
}

TEST_F(EnumEditor, AnEnumerationWithoutEntriesIsShownAsEmpty) {
  edit("Mode");
  edit("Bare");
  expect_empty();
}

TEST_F(EnumEditor, TypeAndFirstEntryAreStoredTogether) {
  edit("New");
  edit("New");
  ASSERT_TRUE(is_shown("enumedit_dialog"));
  expect_empty();
  click("enumedit_type");
  type("short");
  click("enumedit_code_symbol");
  type("ONE");
  click("enumedit_selection.Text");
  type("one");
  key("Return");
  EXPECT_EQ(Items{"one"}, items("enumedit_selection"));
  EXPECT_EQ("enumeration 'New' {\n\ttypename='short'\n\tenumentry 'one'{\n\t\tcode_symbol='ONE'\n\t}\n}\n",
            saved_item("enumeration 'New'"));
}

TEST_F(EnumEditor, OkWithoutANameStoresTheType) {
  edit("Mode");
  enter("enumedit_type", "char");
  click("enumedit_selection.OK");
  EXPECT_TRUE(dirty);
  EXPECT_TRUE(saved_item("enumeration 'Mode'").starts_with("enumeration 'Mode' {\n\ttypename='char'\n"));
}

TEST_F(EnumEditor, OkWithAnEmptyTypeStoresNone) {
  edit("Mode");
  enter("enumedit_type", "");
  press_ok("enumedit_selection");
  EXPECT_TRUE(saved_item("enumeration 'Mode'").starts_with("enumeration 'Mode' {\n\tenumentry 'slow'{\n"));
}

TEST_F(EnumEditor, OkRewritesTheNamedEntry) {
  edit("Mode");
  click_item("enumedit_selection", "slow");
  expect_fields("unsigned char", "SLOW", "slow_mode");
  enter("enumedit_code_symbol", "SLUGGISH");
  enter("enumedit_resfile_symbol", "");
  click("enumedit_selection.OK");
  EXPECT_EQ((Items{"slow", "fast"}), items("enumedit_selection"));
  EXPECT_EQ(
      "enumeration 'Mode' {\n\ttypename='unsigned char'\n\tenumentry 'slow'{\n\t\tcode_symbol='SLUGGISH'\n\t}\n"
      "\tenumentry 'fast'{\n\t\tcode_symbol='FAST'\n\t}\n}\n",
      saved_item("enumeration 'Mode'"));
}

TEST_F(EnumEditor, AddAppendsTheEntryAndLeavesTheTypeAlone) {
  edit("Mode");
  enter("enumedit_type", "typed");
  enter("enumedit_code_symbol", "A");
  enter("enumedit_resfile_symbol", "a_mode");
  enter("enumedit_selection", "a");
  press_apply("enumedit_selection");
  EXPECT_EQ((Items{"slow", "fast", "a"}), items("enumedit_selection"));
  EXPECT_TRUE(dirty);
  const std::string item = saved_item("enumeration 'Mode'");
  EXPECT_TRUE(item.starts_with("enumeration 'Mode' {\n\ttypename='unsigned char'\n"));
  EXPECT_TRUE(item.ends_with("\tenumentry 'a'{\n\t\tcode_symbol='A'\n\t\tresfile_symbol='a_mode'\n\t}\n}\n"));
}

TEST_F(EnumEditor, AddOfAnEntryThatIsThereDoesNothing) {
  edit("Mode");
  enter("enumedit_code_symbol", "typed");
  enter("enumedit_selection", "slow");
  press_apply("enumedit_selection");
  EXPECT_EQ((Items{"slow", "fast"}), items("enumedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(EnumEditor, DeleteTakesTheEntryOut) {
  edit("Mode");
  click_item("enumedit_selection", "slow");
  click("enumedit_selection.Cancel");
  EXPECT_EQ(Items{"fast"}, items("enumedit_selection"));
  EXPECT_EQ("", text("enumedit_selection"));
  expect_fields("unsigned char", "", "");
  EXPECT_TRUE(dirty);
  EXPECT_EQ(std::string::npos, saved_item("enumeration 'Mode'").find("slow"));
}

TEST_F(EnumEditor, DeleteOfAnUnknownEntryDoesNothing) {
  edit("Mode");
  enter("enumedit_selection", "unknown");
  enter("enumedit_code_symbol", "typed");
  press_cancel("enumedit_selection");
  EXPECT_EQ((Items{"slow", "fast"}), items("enumedit_selection"));
  expect_fields("unsigned char", "typed", "");
  EXPECT_FALSE(dirty);
}

TEST_F(EnumEditor, SelectingAnEntryRefreshesTheType) {
  edit("Mode");
  enter("enumedit_type", "typed");
  select("enumedit_selection", "fast");
  expect_fields("unsigned char", "FAST", "");
}

TEST_F(EnumEditor, CloseHidesIt) {
  edit("Mode");
  click("enumedit_quitb");
  EXPECT_FALSE(is_shown("enumedit_dialog"));
  EXPECT_TRUE(is_shown("entity_dialog"));
}

TEST_F(EnumEditor, WithoutAnEnumerationNothingHappens) {
  edit("Mode");
  press("family_newb");
  enter("enumedit_type", "typed");
  enter("enumedit_selection", "entry");
  for (const char* button : {"enumedit_selection.OK", "enumedit_selection.Apply", "enumedit_selection.Cancel"}) {
    if (is_sensitive(button)) press(button);
  }
  EXPECT_EQ(Items(), items("enumedit_selection"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(EnumEditor, AnEnumerationThatTwoFamiliesShareChangesForBoth) {
  select("family_selection", "Empty");
  enter("enumlist_selection", "Mode");
  press_apply("enumlist_selection");
  edit("Mode");
  enter("enumedit_selection", "slow");
  press_cancel("enumedit_selection");
  select("family_selection", "F");
  edit("Mode");
  EXPECT_EQ(Items{"fast"}, items("enumedit_selection"));
}

}  // namespace
