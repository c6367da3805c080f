#include <gtest/gtest.h>

#include <string>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The search field above each list.

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'AsciiText' {\nresource_definitions='XtNfont', , 'display', True;\n}\nwidget 'Label' {\n}\n"
    "enumeration 'Justify' {\nenumentry 'left' {\n}\nenumentry 'right' {\n}\n}\n"
    "family 'Athena' {\nwidget='AsciiText'\nwidget='Label'\nenumeration='Justify'\n}\n"
    "family 'Demo' {\n}\nfamily 'X Toolkit' {\n}\n";

class Search : public Session {
 protected:
  Search() { open_document(document); }

  static void search(const std::string& field, const std::string& text) {
    click(field);
    type(text);
    settle();
  }
  static bool is_list_shown() { return find_widget("dropdown_list") && is_viewable(widget("dropdown_list")); }
  /// The names that a field has found; none while there is no list.
  static Items hits() { return is_list_shown() ? items("dropdown_list") : Items(); }
};

TEST_F(Search, ShowsTheNamesThatMatchAndLeavesTheListWhole) {
  search("family_search", "t");
  EXPECT_EQ((Items{"X Toolkit", "Athena"}), hits());
  EXPECT_EQ((Items{"Athena", "Demo", "X Toolkit"}), items("family_selection"));
  type("he");
  settle();
  EXPECT_EQ(Items{"Athena"}, hits());
  key("BackSpace");
  key("BackSpace");
  key("BackSpace");
  settle();
  EXPECT_EQ(Items(), hits());
}

TEST_F(Search, IsNotWhereTheKeyboardBegins) {
  EXPECT_EQ("Text", focus("family_search"));
  edit_family("Athena");
  EXPECT_EQ("Text", focus("entity_search"));
  edit_widget("Label");
  EXPECT_EQ("widgetedit_include_filename", focus("we_resource_search"));
  press("widgetedit_page_b");
  EXPECT_EQ("Text", focus("pageedit_search"));
  press("widgetedit_popup_b");
  EXPECT_EQ("Text", focus("popupedit_search"));
  edit_enumeration("Justify");
  EXPECT_EQ("Text", focus("enumedit_search"));
}

TEST_F(Search, ReturnGoesToTheBestHit) {
  search("family_search", "x");
  key("Return");
  settle();
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ(Items{"X Toolkit"}, selected("family_selection"));
  EXPECT_EQ("X Toolkit", text("family_selection"));
  EXPECT_EQ(family_ptr("X Toolkit"), family_getcurrent());
  EXPECT_EQ("Text", focus("family_search"));
  EXPECT_FALSE(find_widget("entity_dialog"));  // Return has pressed no button
}

TEST_F(Search, ReturnTwiceOpensIt) {
  search("family_search", "dem");
  key("Return");
  key("Return");
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_EQ(filled("family_title", "Demo"), title("entity_dialog"));
}

TEST_F(Search, ArrowsChooseAmongTheHits) {
  search("family_search", "t");
  key("Down");
  EXPECT_EQ(Items{"Athena"}, selected("dropdown_list"));
  key("Down");
  EXPECT_EQ(Items{"Athena"}, selected("dropdown_list"));
  key("Up");
  EXPECT_EQ(Items{"X Toolkit"}, selected("dropdown_list"));
  key("Down");
  key("Return");
  settle();
  EXPECT_EQ(Items{"Athena"}, selected("family_selection"));
}

TEST_F(Search, AClickTakesAHit) {
  search("family_search", "t");
  click_item("dropdown_list", "Athena");
  settle();
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ(Items{"Athena"}, selected("family_selection"));
}

TEST_F(Search, EscapeClears) {
  search("family_search", "t");
  key("Escape");
  settle();
  EXPECT_EQ("", text("family_search"));
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ(Items(), selected("family_selection"));
}

TEST_F(Search, SaysThatNothingMatches) {
  search("family_search", "zzz");
  EXPECT_EQ(Items{resource_text("no_match")}, hits());
  key("Return");
  settle();
  EXPECT_EQ(Items(), selected("family_selection"));
  EXPECT_EQ((Items{"Athena", "Demo", "X Toolkit"}), items("family_selection"));
  EXPECT_EQ("zzz", text("family_search"));
}

TEST_F(Search, GoesAwayWhenTheFieldIsLeft) {
  search("family_search", "t");
  click("family_selection.Text");
  settle();
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ(Items(), selected("family_selection"));
}

TEST_F(Search, EscapeClearsBeforeItClosesAWindow) {
  edit_family("Athena");
  search("entity_search", "lab");
  key("Escape");
  settle();
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_EQ("", text("entity_search"));
  key("Escape");
  settle();
  EXPECT_FALSE(is_shown("entity_dialog"));
}

TEST_F(Search, OfAFamilyIsThatOfThePageWhichIsShown) {
  edit_family("Athena");
  search("entity_search", "l");
  EXPECT_EQ(Items{"Label"}, hits());
  key("Return");
  settle();
  EXPECT_EQ(Items{"Label"}, selected("widgetlist_selection"));
  choose_menu("entity_viewb", "entity_opt_enums_t");
  EXPECT_EQ("", text("entity_search"));
  search("entity_search", "just");
  key("Return");
  settle();
  EXPECT_EQ(Items{"Justify"}, selected("enumlist_selection"));
  choose_menu("entity_viewb", "entity_opt_family_init_t");
  EXPECT_FALSE(is_viewable(widget("entity_search")));
}

TEST_F(Search, FindsEntries) {
  edit_family("Athena");
  edit_enumeration("Justify");
  search("enumedit_search", "ri");
  key("Return");
  settle();
  EXPECT_EQ(Items{"right"}, selected("enumedit_selection"));
  EXPECT_EQ("right", text("enumedit_selection"));
}

TEST_F(Search, FindsPagesAndPopups) {
  edit_family("Athena");
  edit_widget("Label");
  press("widgetedit_page_b");
  search("pageedit_search", "marg");
  key("Return");
  settle();
  EXPECT_EQ(Items{"margins"}, selected("pageedit_selection"));
  EXPECT_EQ("margins", text("pageedit_selection"));
  close("pageedit_dialog");
  press("widgetedit_popup_b");
  search("popupedit_search", "font");
  key("Return");
  settle();
  EXPECT_EQ("vq_font_dialog_create", text("popupedit_selection"));
  EXPECT_EQ("vq_font_dialog_initialise", text("dialog_init"));
}

TEST_F(Search, FindsResources) {
  edit_family("Athena");
  edit_widget("AsciiText");
  search("we_resource_search", "font");
  EXPECT_EQ(Items{"XtNfont"}, hits());
  key("Return");
  settle();
  EXPECT_EQ(Items{"XtNfont"}, selected("we_resource_list"));
  EXPECT_EQ("XtNfont", text("we_resource_t"));
  EXPECT_EQ("display", text("widgetedit_page_t"));
  EXPECT_EQ("we_resource_t", focus("we_resource_search"));
}

TEST_F(Search, AsksFirstAboutAResourceThatHasBeenChanged) {
  edit_family("Athena");
  edit_widget("AsciiText");
  enter("we_resource_t", "XtNnew");
  search("we_resource_search", "font");
  key("Return");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
  EXPECT_EQ("XtNnew", text("we_resource_t"));
  press("resource_warn_ignoreb");
  EXPECT_EQ("XtNfont", text("we_resource_t"));
}

TEST_F(Search, ReturnInAnEmptyFieldDoesNothing) {
  edit_family("Athena");
  edit_widget("AsciiText");
  enter("we_resource_t", "XtNnew");
  click("we_resource_search");
  key("Return");
  settle();
  EXPECT_EQ(Items{"XtNfont"}, items("we_resource_list"));
}

}  // namespace
