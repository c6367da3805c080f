#include <gtest/gtest.h>

#include "editors/list_kinds.h"

using namespace vqc;

namespace {

const Names predefined_pages{"display", "margins", "settings", "callbacks", "misc"};
const Names predefined_popups{"vq_colour_dialog_create", "vq_font_dialog_create", "vq_fsb_dialog_create",
                              "vq_pixmap_dialog_create", "vq_string_dialog_create"};

class FamilyTest : public EditedDocumentTest {};

TEST_F(FamilyTest, StartsWithThePredefinedPagesAndPopups) {
  Family* family = new_family("F");
  EXPECT_EQ(predefined_pages, names_in(family->pages));
  EXPECT_EQ(predefined_popups, names_in(family->popups));
  EXPECT_EQ(predefined_pages, list_kind<PagePool>()->walked());
  EXPECT_EQ(predefined_popups, list_kind<PopupPool>()->walked());
}

TEST_F(FamilyTest, StartsWithNothingElse) {
  Family* family = new_family("F");
  EXPECT_EQ("F", family->name);
  EXPECT_TRUE(family->widgets.empty());
  EXPECT_TRUE(family->enumerations.empty());
  EXPECT_TRUE(family->aliases.empty());
  EXPECT_TRUE(family->converters.empty());
  EXPECT_TRUE(family->code_headers.empty());
  EXPECT_TRUE(family->family_headers.empty());
  EXPECT_TRUE(family->config_headers.empty());
}

TEST_F(FamilyTest, StartsWithoutAnInitProcedure) {
  Family* family = new_family("F");
  EXPECT_EQ(Text(), family->family_init);
  EXPECT_FALSE(family->generate_family_init_vq);
  EXPECT_FALSE(family->generate_family_init_code);
  EXPECT_FALSE(family->generate_family_init_stub);
  EXPECT_FALSE(family->generate_family_init_pre_shell);
}

TEST_F(FamilyTest, KeepsItsOwnCopyOfItsName) {
  char name[] = "F";
  family_add(name);
  name[0] = 'G';
  EXPECT_NE(nullptr, family_ptr("F"));
}

TEST_F(FamilyTest, NeedsAName) {
  EXPECT_EQ(1, family_add(""));
  EXPECT_EQ(1, family_add(nullptr));
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, page_count());
  EXPECT_EQ(0, popup_count());
  EXPECT_FALSE(dirty);
}

TEST_F(FamilyTest, ASecondOneOfTheNameTouchesNothing) {
  new_family("F");
  popup_ptr("vq_font_dialog_create")->dialog_init = "mine";
  dirty = false;
  EXPECT_EQ(2, family_add("F"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("mine", popup_ptr("vq_font_dialog_create")->dialog_init);
}

TEST_F(FamilyTest, CurrentFamilyIsNoneOnceDeleted) {
  family_setcurrent(new_family("F"));
  EXPECT_EQ(0, family_delete("F"));
  EXPECT_EQ(nullptr, family_getcurrent());
}

TEST_F(FamilyTest, CurrentFamilyStaysWhenAnotherIsDeleted) {
  new_family("F");
  Family* current = new_family("G");
  family_setcurrent(current);
  family_delete("F");
  EXPECT_EQ(current, family_getcurrent());
}

TEST_F(FamilyTest, DeletingOneLeavesTheOthersAsTheyAre) {
  new_family("F");
  Family* other = new_family("G");
  widgetlist_add("W", family_ptr("F"));
  widgetlist_add("V", other);
  family_delete("F");
  EXPECT_EQ(Names{"G"}, list_kind<FamilyPool>()->walked());
  EXPECT_EQ(Names{"V"}, names_in(other->widgets));
  EXPECT_EQ(predefined_pages, names_in(other->pages));
  EXPECT_EQ(predefined_popups, names_in(other->popups));
}

TEST_F(FamilyTest, DeletingByItsOwnNameWorks) {
  Family* family = new_family("F");
  widgetlist_add("W", family);
  EXPECT_EQ(0, family_delete(family->name));
  EXPECT_EQ(0, family_count());
}

class FamilyDeleteAll : public EditedDocumentTest {};

TEST_F(FamilyDeleteAll, LeavesNoFamilyAndNoCursor) {
  new_family("F");
  family_setcurrent(new_family("G"));
  family_first();
  family_delete_all();
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(nullptr, family_next());
  EXPECT_EQ(nullptr, family_getcurrent());
}

TEST_F(FamilyDeleteAll, LeavesWhatNoFamilyUsed) {
  new_family("F");
  widget_add("W");
  enum_add("E");
  alias_add("A");
  converter_add("C");
  codeheader_add("a.h");
  family_delete_all();
  EXPECT_EQ(1, widget_count());
  EXPECT_EQ(1, enum_count());
  EXPECT_EQ(1, alias_count());
  EXPECT_EQ(1, converter_count());
  EXPECT_EQ(1, codeheader_count());
  EXPECT_EQ(5, page_count());
  EXPECT_EQ(5, popup_count());
}

TEST_F(FamilyDeleteAll, DoesNothingWithoutFamilies) {
  family_delete_all();
  EXPECT_EQ(0, family_count());
}

class ClearingTheDocument : public EditedDocumentTest {
 protected:
  static void fill() {
    Family* family = new_family("F");
    widgetlist_add("W", family);
    we_resource_add("r", widget_ptr("W"));
    enumlist_add("E", family);
    enumentry_add("e", enum_ptr("E"));
    aliaslist_add("A", family);
    converterlist_add("C", family);
    codeheader_add("a.h");
    familyheader_add("b.h");
    confheader_add("c.h");
    family_setcurrent(family);
  }
};

TEST_F(ClearingTheDocument, LeavesNoRecord) {
  fill();
  edited_document.clear();
  EXPECT_EQ(0, family_count());
  EXPECT_EQ(0, widget_count());
  EXPECT_EQ(0, enum_count());
  EXPECT_EQ(0, alias_count());
  EXPECT_EQ(0, converter_count());
  EXPECT_EQ(0, popup_count());
  EXPECT_EQ(0, page_count());
  EXPECT_EQ(0, codeheader_count());
  EXPECT_EQ(0, familyheader_count());
  EXPECT_EQ(0, confheader_count());
  EXPECT_EQ(nullptr, family_getcurrent());
}

TEST_F(ClearingTheDocument, LeavesNoNames) {
  for (auto option : all_name_options) (edited_document.names.*option).document = "mine";
  set_config_file("config.c");
  set_code_file("code.c");
  set_stubs_file("stubs.c");
  edited_document.excluded_classes = "XmFrame";
  edited_document.clear();
  for (auto option : all_name_options) EXPECT_EQ(Text(), (edited_document.names.*option).document);
  EXPECT_EQ(Text(), config_generate_name());
  EXPECT_EQ(Text(), code_generate_name());
  EXPECT_EQ(Text(), stubs_generate_name());
  EXPECT_EQ(Text(), edited_document.excluded_classes);
}

TEST_F(ClearingTheDocument, LeavesAModelThatCanBeFilledAgain) {
  fill();
  edited_document.clear();
  fill();
  EXPECT_EQ(Names{"W"}, names_in(family_ptr("F")->widgets));
  EXPECT_EQ(predefined_pages, names_in(family_ptr("F")->pages));
  EXPECT_EQ(predefined_popups, names_in(family_ptr("F")->popups));
}

}  // namespace
