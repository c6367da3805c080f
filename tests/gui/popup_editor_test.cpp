#include <algorithm>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nwidget 'W' {\nresource_definitions="
    "'r','mine',,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "converter 'C' {\ndialog='mine'\n}\n"
    "popup 'mine' {\ndialog_init='mine_init'\ndialog_update='mine_update'\n}\n"
    "popup 'unused' {\n}\nfamily 'F' {\nwidget='W'\nconverter='C'\npopup='mine'\n}\n";

const Items all_popups = {"mine",
                          "unused",
                          "vq_colour_dialog_create",
                          "vq_font_dialog_create",
                          "vq_fsb_dialog_create",
                          "vq_pixmap_dialog_create",
                          "vq_string_dialog_create"};
const Names popups_of_family = {"mine",
                                "vq_colour_dialog_create",
                                "vq_font_dialog_create",
                                "vq_fsb_dialog_create",
                                "vq_pixmap_dialog_create",
                                "vq_string_dialog_create"};

class PopupEditor : public Session {
 protected:
  PopupEditor() {
    open_document(document);
    edit_family("F");
    edit_widget("W");
    select("we_resource_list", "r");
  }
  static void expect_fields(const char* name, const char* init, const char* update) {
    EXPECT_EQ(name, text("popupedit_selection"));
    EXPECT_EQ(init, text("dialog_init"));
    EXPECT_EQ(update, text("dialog_update"));
  }
  static void fill(const std::string& name, const std::string& init, const std::string& update) {
    enter("popupedit_selection", name);
    enter("dialog_init", init);
    enter("dialog_update", update);
  }
};

TEST_F(PopupEditor, OpensOnThePopupOfTheField) {
  click("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  expect_fields("mine", "mine_init", "mine_update");
}

TEST_F(PopupEditor, TypingReplacesThePopupThatItOpensOn) {
  for (const char* name : {"first", "second"}) {
    click("widgetedit_popup_b");
    ASSERT_TRUE(has_keyboard("popupedit_dialog"));
    type(name);
    EXPECT_EQ(name, text("popupedit_selection"));
    click("popupedit_selection.Cancel");
    ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  }
}

TEST_F(PopupEditor, OpensEmptyOnAnUnknownPopup) {
  press("widgetedit_popup_b");
  enter("widgetedit_popup_t", "unknown");
  press("widgetedit_popup_b");
  expect_fields("", "", "");
}

TEST_F(PopupEditor, SelectingShowsThePopup) {
  press("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  click_item("popupedit_selection", "vq_font_dialog_create");
  expect_fields("vq_font_dialog_create", "vq_font_dialog_initialise", "");
  EXPECT_FALSE(dirty);
}

TEST_F(PopupEditor, ApplyWritesTheNameBackToTheWidgetEditor) {
  press("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  select("popupedit_selection", "vq_font_dialog_create");
  click("popupedit_selection.Apply");
  EXPECT_EQ("vq_font_dialog_create", text("widgetedit_popup_t"));
  EXPECT_TRUE(dirty);
  press("widgetedit_closeb");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
}

TEST_F(PopupEditor, ApplyWritesTheNameBackToTheConverterPage) {
  press("widgetedit_closeb");
  choose_menu("entity_viewb", "entity_opt_converters_t");
  select("converter_selection", "C");
  click("convert_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  expect_fields("mine", "mine_init", "mine_update");
  select("popupedit_selection", "unused");
  press_apply("popupedit_selection");
  EXPECT_EQ("unused", text("convert_popup_t"));
  EXPECT_EQ("mine", text("widgetedit_popup_t"));
}

TEST_F(PopupEditor, CancelLeavesTheFieldAlone) {
  press("widgetedit_popup_b");
  select("popupedit_selection", "unused");
  click("popupedit_selection.Cancel");
  EXPECT_FALSE(is_shown("popupedit_dialog"));
  EXPECT_EQ("mine", text("widgetedit_popup_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(PopupEditor, AddPutsAPopupAtItsSortedPlace) {
  press("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  fill("new", "new_init", "");
  click("popupedit_applytb");
  Items expected = all_popups;
  expected.insert(expected.begin() + 1, "new");
  EXPECT_EQ(expected, items("popupedit_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ("popup 'new' {\n\tdialog_init='new_init'\n}\n", saved_item("popup 'new'"));
  Names saved_expected = popups_of_family;
  saved_expected.insert(saved_expected.begin() + 1, "new");
  EXPECT_EQ(saved_expected, saved_names("F", "popup"));
}

TEST_F(PopupEditor, ANewPopupIsSortedAmongThoseOfAllFamilies) {
  press("widgetedit_popup_b");
  fill("nearly", "", "");
  press("popupedit_applytb");
  add_family("G");
  select("family_selection", "G");
  press("widgetedit_popup_b");
  for (const char* name : {"zebra", "new", "unused", "aa"}) {
    fill(name, "", "");
    press("popupedit_applytb");
  }
  Items expected = all_popups;
  expected.insert(expected.end(), {"nearly", "zebra", "new", "aa"});
  std::ranges::sort(expected);
  EXPECT_EQ(expected, items("popupedit_selection"));
}

TEST_F(PopupEditor, ADeletedPopupComesBackToItsPlace) {
  press("widgetedit_popup_b");
  enter("popupedit_selection", "mine");
  press("popupedit_deletetb");
  press("popupedit_applytb");
  EXPECT_EQ(all_popups, items("popupedit_selection"));
}

TEST_F(PopupEditor, ReturnAppliesNothing) {
  press("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  click_item("popupedit_selection", "unused");
  for (const char* field : {"popupedit_selection.Text", "dialog_init", "dialog_update"}) {
    click(field);
    key("Return");
    EXPECT_EQ("mine", text("widgetedit_popup_t")) << field;
  }
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(is_shown("popupedit_dialog"));
}

TEST_F(PopupEditor, ApplyWithoutAWidgetChangesNothing) {
  press("widgetedit_popup_b");
  select("popupedit_selection", "unused");
  enter("widgetlist_selection", "W");
  press_cancel("widgetlist_selection");
  saved();
  press_apply("popupedit_selection");
  EXPECT_EQ("", text("widgetedit_popup_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(PopupEditor, AConverterNeedsNoWidgetForApply) {
  enter("widgetlist_selection", "W");
  press_cancel("widgetlist_selection");
  press("convert_popup_b");
  select("popupedit_selection", "unused");
  press_apply("popupedit_selection");
  EXPECT_EQ("unused", text("convert_popup_t"));
}

TEST_F(PopupEditor, WithoutAFamilyApplyLeavesTheConverterPageAlone) {
  press("convert_popup_b");
  select("popupedit_selection", "unused");
  enter("family_selection", "F");
  press_cancel("family_selection");
  saved();
  press_apply("popupedit_selection");
  EXPECT_EQ("", text("convert_popup_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(PopupEditor, WhatIsTypedSurvivesAnotherFamilyAndRead) {
  press("widgetedit_popup_b");
  fill("typed", "typed_init", "typed_update");
  add_family("G");
  expect_fields("typed", "typed_init", "typed_update");
  read_into(folder.with("more.vqc", "VQconfig\npopup 'of_file' {\n}\n"));
  expect_fields("typed", "typed_init", "typed_update");
  Items expected = all_popups;
  expected.insert(expected.begin() + 1, "of_file");
  EXPECT_EQ(expected, items("popupedit_selection"));
}

TEST_F(PopupEditor, UpdateChangesThePopupAndLeavesTheDocumentClean) {
  press("widgetedit_popup_b");
  fill("mine", "other_init", "");
  press("popupedit_applytb");
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("popup 'mine' {\n\tdialog_init='other_init'\n}\n", saved_item("popup 'mine'"));
}

TEST_F(PopupEditor, AddOfAnotherFamilysPopupIsShownOnce) {
  press("widgetedit_popup_b");
  fill("unused", "u_init", "u_update");
  press("popupedit_applytb");
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ("popup 'unused' {\n\tdialog_init='u_init'\n\tdialog_update='u_update'\n}\n", saved_item("popup 'unused'"));
  Names expected = popups_of_family;
  expected.insert(expected.begin() + 1, "unused");
  EXPECT_EQ(expected, saved_names("F", "popup"));
}

TEST_F(PopupEditor, APredefinedPopupIsShownAgainInstead) {
  press("widgetedit_popup_b");
  fill("vq_font_dialog_create", "typed", "typed");
  press("popupedit_applytb");
  expect_fields("vq_font_dialog_create", "vq_font_dialog_initialise", "");
  EXPECT_FALSE(dirty);
  EXPECT_EQ("popup 'vq_font_dialog_create' {\n\tdialog_init='vq_font_dialog_initialise'\n}\n",
            saved_item("popup 'vq_font_dialog_create'"));
}

TEST_F(PopupEditor, APredefinedPopupIsNotDeleted) {
  press("widgetedit_popup_b");
  for (const std::string& name : all_popups) {
    if (!name.starts_with("vq_")) continue;
    enter("popupedit_selection", name);
    press("popupedit_deletetb");
  }
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("", error_shown());
}

TEST_F(PopupEditor, DeleteTakesAPopupOutOfTheFamily) {
  press("widgetedit_popup_b");
  enter("popupedit_selection", "mine");
  press("popupedit_deletetb");
  EXPECT_TRUE(dirty);
  EXPECT_EQ(0, std::ranges::count(saved_names("F", "popup"), "mine"));
  EXPECT_EQ(popups_of_family.size() - 1, saved_names("F", "popup").size());
}

TEST_F(PopupEditor, DeleteOfAPopupThatTheFamilyHasNotDoesNothing) {
  press("widgetedit_popup_b");
  enter("popupedit_selection", "unused");
  press("popupedit_deletetb");
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(PopupEditor, WithoutANameNothingHappens) {
  press("widgetedit_popup_b");
  fill("", "typed", "typed");
  press("popupedit_applytb");
  press("popupedit_deletetb");
  EXPECT_EQ(all_popups, items("popupedit_selection"));
  EXPECT_FALSE(dirty);
}

}  // namespace
