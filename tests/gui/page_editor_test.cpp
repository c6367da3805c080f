#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nwidget 'W' {\nresource_definitions="
    "'r',,'display',True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "page 'geometry'\npage 'unused'\nfamily 'F' {\nwidget='W'\npage='geometry'\n}\n";

const Items all_pages = {"geometry", "unused", "display", "margins", "settings", "callbacks", "misc"};
const Names pages_of_family = {"display", "margins", "settings", "callbacks", "misc", "geometry"};

class PageEditor : public Session {
 protected:
  PageEditor() {
    open_document(document);
    edit_family("F");
    edit_widget("W");
    select("we_resource_list", "r");
  }
  static void add(const std::string& name) {
    enter("pageedit_selection", name);
    press("pageedit_updateb");
  }
  static void remove(const std::string& name) {
    enter("pageedit_selection", name);
    press("pageedit_removeb");
  }
};

TEST_F(PageEditor, OpensOnThePageOfTheField) {
  click("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  EXPECT_EQ("display", text("pageedit_selection"));
  EXPECT_EQ(all_pages, items("pageedit_selection"));
}

TEST_F(PageEditor, TypingReplacesThePageThatItOpensOn) {
  for (const char* name : {"first", "second"}) {
    click("widgetedit_page_b");
    ASSERT_TRUE(has_keyboard("pageedit_dialog"));
    type(name);
    EXPECT_EQ(name, text("pageedit_selection"));
    click("pageedit_selection.Cancel");
    ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  }
}

TEST_F(PageEditor, OpensEmptyOnAnUnknownPage) {
  enter("widgetedit_page_t", "unknown");
  press("widgetedit_page_b");
  EXPECT_EQ("", text("pageedit_selection"));
  EXPECT_EQ("unknown", text("widgetedit_page_t"));
}

TEST_F(PageEditor, ApplyWritesTheNameBackAndStaysOpen) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  click_item("pageedit_selection", "margins");
  EXPECT_EQ("margins", text("pageedit_selection"));
  EXPECT_EQ("display", text("widgetedit_page_t"));
  click("pageedit_selection.Apply");
  EXPECT_EQ("margins", text("widgetedit_page_t"));
  EXPECT_TRUE(is_shown("pageedit_dialog"));
  EXPECT_TRUE(dirty);
}

TEST_F(PageEditor, ApplyArmsTheResourceWarning) {
  press("widgetedit_page_b");
  select("pageedit_selection", "margins");
  press_apply("pageedit_selection");
  press("widgetedit_closeb");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
}

TEST_F(PageEditor, CancelLeavesTheFieldAlone) {
  press("widgetedit_page_b");
  select("pageedit_selection", "margins");
  click("pageedit_selection.Cancel");
  EXPECT_FALSE(is_shown("pageedit_dialog"));
  EXPECT_EQ("display", text("widgetedit_page_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, AddAppendsAPageToTheFamily) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  click("pageedit_selection.Text");
  enter("pageedit_selection", "");
  type("extra");
  click("pageedit_updateb");
  Items expected = all_pages;
  expected.push_back("extra");
  EXPECT_EQ(expected, items("pageedit_selection"));
  EXPECT_TRUE(dirty);
  Names saved_expected = pages_of_family;
  saved_expected.push_back("extra");
  EXPECT_EQ(saved_expected, saved_names("F", "page"));
}

TEST_F(PageEditor, ANewPageComesLastAmongThoseOfAllFamilies) {
  press("widgetedit_page_b");
  add("extra");
  add_family("G");
  select("family_selection", "G");
  press("widgetedit_page_b");
  add("other");
  add("geometry");
  Items expected = all_pages;
  expected.insert(expected.end(), {"extra", "other"});
  EXPECT_EQ(expected, items("pageedit_selection"));
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc", "other", "geometry"}),
            saved_names("G", "page"));
}

TEST_F(PageEditor, ARemovedPageComesBackToItsPlace) {
  press("widgetedit_page_b");
  remove("geometry");
  add("geometry");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
}

TEST_F(PageEditor, AddOfAPageThatIsThereDoesNothing) {
  press("widgetedit_page_b");
  add("geometry");
  add("misc");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, AddOfAnotherFamilysPageIsShownOnce) {
  press("widgetedit_page_b");
  add("unused");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_TRUE(dirty);
  Names expected = pages_of_family;
  expected.push_back("unused");
  EXPECT_EQ(expected, saved_names("F", "page"));
}

TEST_F(PageEditor, AddWithoutANameDoesNothing) {
  press("widgetedit_page_b");
  add("");
  remove("");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, RemoveTakesAPageOutOfTheFamily) {
  press("widgetedit_page_b");
  remove("geometry");
  EXPECT_EQ((Items{"unused", "display", "margins", "settings", "callbacks", "misc"}), items("pageedit_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc"}), saved_names("F", "page"));
}

TEST_F(PageEditor, ARemovedPageIsStillKnownToTheProgram) {
  press("widgetedit_page_b");
  remove("geometry");
  press("widgetedit_page_b");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
}

TEST_F(PageEditor, APredefinedPageIsNotRemoved) {
  press("widgetedit_page_b");
  for (const char* name : {"display", "margins", "settings", "callbacks", "misc"}) remove(name);
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_EQ("", error_shown());
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, RemoveOfAPageThatTheFamilyHasNotDoesNothing) {
  press("widgetedit_page_b");
  remove("unused");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, ArrowsMoveThePageInTheFamily) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  click_item("pageedit_selection", "margins");
  click("pageedit_up_arrow");
  EXPECT_FALSE(dirty);
  EXPECT_EQ(Items{"margins"}, selected("pageedit_selection"));
  EXPECT_EQ((Names{"margins", "display", "settings", "callbacks", "misc", "geometry"}), saved_names("F", "page"));
  press("pageedit_down_arrow");
  EXPECT_EQ(pages_of_family, saved_names("F", "page"));
}

TEST_F(PageEditor, APageThatTheFamilyHasNotDoesNotMove) {
  press("widgetedit_page_b");
  select("pageedit_selection", "unused");
  press("pageedit_up_arrow");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_EQ(pages_of_family, saved_names("F", "page"));
}

TEST_F(PageEditor, TheFirstPageOfTheFamilyDoesNotMoveUp) {
  press("widgetedit_page_b");
  select("pageedit_selection", "display");
  press("pageedit_up_arrow");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_EQ(pages_of_family, saved_names("F", "page"));
}

TEST_F(PageEditor, TheLastPageOfTheFamilyDoesNotMoveDown) {
  press("widgetedit_page_b");
  select("pageedit_selection", "geometry");
  press("pageedit_down_arrow");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_EQ(pages_of_family, saved_names("F", "page"));
}

TEST_F(PageEditor, WithNothingOrTwoPagesSelectedNothingMoves) {
  press("widgetedit_page_b");
  press("pageedit_up_arrow");
  press("pageedit_down_arrow");
  select_too("pageedit_selection", "margins");
  select_too("pageedit_selection", "settings");
  press("pageedit_up_arrow");
  press("pageedit_down_arrow");
  EXPECT_EQ(all_pages, items("pageedit_selection"));
  EXPECT_EQ(pages_of_family, saved_names("F", "page"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, AMovedPageStaysInView) {
  press("widgetedit_page_b");
  for (int i = 10; i < 40; ++i) add("p" + std::to_string(i));
  ASSERT_LT(rows("pageedit_selection"), 30);
  select("pageedit_selection", "misc");
  for (int i = 0; i < 30; ++i) {
    const int top = first_row("pageedit_selection");
    press("pageedit_down_arrow");
    EXPECT_TRUE(is_in_view("pageedit_selection", "misc"));
    EXPECT_LE(first_row("pageedit_selection"), top + 1);
  }
  EXPECT_LT(20, first_row("pageedit_selection"));
  for (int i = 0; i < 30; ++i) {
    press("pageedit_up_arrow");
    EXPECT_TRUE(is_in_view("pageedit_selection", "misc"));
  }
  EXPECT_EQ(Items{"misc"}, selected("pageedit_selection"));
}

TEST_F(PageEditor, ReturnAppliesNothing) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  click_item("pageedit_selection", "margins");
  key("Return");
  click("pageedit_selection.Text");
  key("Return");
  EXPECT_EQ("display", text("widgetedit_page_t"));
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(is_shown("pageedit_dialog"));
}

TEST_F(PageEditor, ApplyWithoutAWidgetChangesNothing) {
  press("widgetedit_page_b");
  select("pageedit_selection", "margins");
  select("family_selection", "F");
  enter("widgetlist_selection", "W");
  press_cancel("widgetlist_selection");
  EXPECT_EQ("", text("widgetedit_page_t"));
  saved();
  press_apply("pageedit_selection");
  EXPECT_EQ("", text("widgetedit_page_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(PageEditor, WhatIsTypedSurvivesAnotherFamilyAndRead) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  click("pageedit_selection.Text");
  key("ctrl+a");
  type("typed");
  add_family("G");
  EXPECT_EQ("typed", text("pageedit_selection"));
  read_into(folder.with("more.vqc", "VQconfig\npage 'of_file'\n"));
  EXPECT_EQ("typed", text("pageedit_selection"));
  Items expected = all_pages;
  expected.push_back("of_file");
  EXPECT_EQ(expected, items("pageedit_selection"));
}

TEST_F(PageEditor, OkWhichDoesNothingIsNotShown) {
  press("widgetedit_page_b");
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  EXPECT_FALSE(is_viewable(widget("pageedit_selection.OK")));
  EXPECT_TRUE(is_viewable(widget("pageedit_selection.Apply")));
}

TEST_F(PageEditor, ReopeningShowsTheFieldAgain) {
  press("widgetedit_page_b");
  select("pageedit_selection", "margins");
  press_cancel("pageedit_selection");
  press("widgetedit_page_b");
  EXPECT_EQ("display", text("pageedit_selection"));
}

TEST_F(PageEditor, APageThatAResourceBroughtIsListedAtTheNextOpening) {
  press("widgetedit_page_b");
  enter("widgetedit_page_t", "brought");
  press("we_resource_upd_b");
  press("widgetedit_page_b");
  Items expected = all_pages;
  expected.push_back("brought");
  EXPECT_EQ(expected, items("pageedit_selection"));
  EXPECT_EQ("brought", text("pageedit_selection"));
}

}  // namespace
