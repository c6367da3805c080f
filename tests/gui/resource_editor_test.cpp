#include <gtest/gtest.h>

#include <Xm/List.h>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The lower half of the widget editor: the resources of the widget class, one at a time.

namespace {

const char three_resources[] =
    "VQconfig\nwidget 'W' {\nresource_definitions="
    "'all','vq_font_dialog_create','display',False,VQC_FREE,VQC_DONT_FREE access 3 counter 'count',"
    "'bare',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT,"
    "'get',,'misc',True,VQC_DONT_FREE,VQC_FREE access 2;\n}\n"
    "widget 'Other' {\nresource_definitions='other',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "family 'F' {\nwidget='W'\nwidget='Other'\n}\n";

class ResourceEditor : public Session {
 protected:
  void edit(std::string_view document = three_resources) {
    open_document(document);
    edit_family("F");
    edit_widget("W");
    ASSERT_TRUE(is_shown("widgetedit_dialog"));
  }
  void edit_empty_widget() { edit("VQconfig\nwidget 'W' {\n}\nfamily 'F' {\nwidget='W'\n}\n"); }

  static std::vector<bool> access() {
    return {is_set("widgetedit_create_t"), is_set("widgetedit_get_t"), is_set("widgetedit_set_t")};
  }
  static void expect_texts(const char* name, const char* counter, const char* popup, const char* page) {
    EXPECT_EQ(name, text("we_resource_t"));
    EXPECT_EQ(counter, text("widgetedit_counter_t"));
    EXPECT_EQ(popup, text("widgetedit_popup_t"));
    EXPECT_EQ(page, text("widgetedit_page_t"));
  }
  static void expect_free(const char* get_button, const char* set_button) {
    EXPECT_EQ(label(get_button), chosen("widgetedit_free_get_opt"));
    EXPECT_EQ(label(set_button), chosen("widgetedit_free_set_opt"));
  }
  static std::string saved_resource(const std::string& name) {
    const std::string item = saved_item("widget 'W'");
    const std::size_t begin = item.find("'" + name + "', ");
    return begin == std::string::npos ? "" : item.substr(begin, item.find('\n', begin) - begin);
  }
};

const std::vector<bool> every_access = {true, true, true};

TEST_F(ResourceEditor, ListsTheResourcesInOrder) {
  edit();
  EXPECT_EQ((Items{"all", "bare", "get"}), items("we_resource_list"));
  expect_texts("", "", "", "");
}

TEST_F(ResourceEditor, SelectingShowsTheResource) {
  edit();
  click_item("we_resource_list", "all");
  expect_texts("all", "count", "vq_font_dialog_create", "display");
  EXPECT_FALSE(is_set("widgetedit_visible_tog"));
  expect_free("widgetedit_get_free_b", "widgetedit_set_dont_b");
  EXPECT_EQ((std::vector<bool>{true, true, false}), access());
  EXPECT_FALSE(dirty);
}

TEST_F(ResourceEditor, SelectingAnotherShowsThatOneOnly) {
  edit();
  select("we_resource_list", "all");
  select("we_resource_list", "bare");
  expect_texts("bare", "", "", "");
  EXPECT_TRUE(is_set("widgetedit_visible_tog"));
  expect_free("widgetedit_get_default_b", "widgetedit_set_default_b");
  EXPECT_EQ(every_access, access());
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceEditor, ANameThatTheWidgetLacksShowsWhatANewResourceHas) {
  edit();
  select("we_resource_list", "all");
  XmString lacking = XmStringCreateLocalized(const_cast<char*>("lacking"));
  XmListAddItem(widget("we_resource_list"), lacking, 0);
  XmStringFree(lacking);
  click_item("we_resource_list", "lacking");
  expect_texts("lacking", "", "", "");
  EXPECT_TRUE(is_set("widgetedit_visible_tog"));
  expect_free("widgetedit_get_default_b", "widgetedit_set_default_b");
  EXPECT_EQ(every_access, access());
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceEditor, AccessIsShownByItsBits) {
  edit();
  select("we_resource_list", "get");
  EXPECT_EQ((std::vector<bool>{false, true, false}), access());
  expect_free("widgetedit_get_dont_b", "widgetedit_set_free_b");
}

TEST_F(ResourceEditor, UpdateAddsAResourceWithMouseAndKeyboard) {
  edit_empty_widget();
  click("we_resource_t");
  type("borderWidth");
  click("widgetedit_page_t");
  type("margins");
  choose_option("widgetedit_free_set_opt", "widgetedit_set_free_b");
  click("we_resource_upd_b");
  EXPECT_EQ(Items{"borderWidth"}, items("we_resource_list"));
  EXPECT_TRUE(dirty);
  select("we_resource_list", "borderWidth");
  expect_texts("borderWidth", "", "", "margins");
  expect_free("widgetedit_get_default_b", "widgetedit_set_free_b");
}

TEST_F(ResourceEditor, UpdateStoresEveryField) {
  edit_empty_widget();
  enter("we_resource_t", "labelString");
  enter("widgetedit_counter_t", "n");
  enter("widgetedit_popup_t", "unknown_popup");
  enter("widgetedit_page_t", "settings");
  toggle("widgetedit_visible_tog", false);
  choose_option("widgetedit_free_get_opt", "widgetedit_get_dont_b");
  choose_option("widgetedit_free_set_opt", "widgetedit_set_free_b");
  toggle("widgetedit_create_t", true);
  toggle("widgetedit_get_t", false);
  toggle("widgetedit_set_t", true);
  press("we_resource_upd_b");
  EXPECT_EQ("'labelString', 'unknown_popup', 'settings', False, VQC_DONT_FREE, VQC_FREE access 5 counter 'n';",
            saved_resource("labelString"));
  EXPECT_EQ("", saved_item("popup 'unknown_popup'"));
}

TEST_F(ResourceEditor, NewResourcesGoToTheirSortedPlace) {
  edit();
  enter("we_resource_t", "b");
  press("we_resource_upd_b");
  EXPECT_EQ((Items{"all", "b", "bare", "get"}), items("we_resource_list"));
  enter("we_resource_t", "zoom");
  press("we_resource_upd_b");
  enter("we_resource_t", "Above");
  press("we_resource_upd_b");
  EXPECT_EQ((Items{"Above", "all", "b", "bare", "get", "zoom"}), items("we_resource_list"));
}

TEST_F(ResourceEditor, UpdateRewritesAResourceThatIsThere) {
  edit();
  select("we_resource_list", "all");
  enter("widgetedit_popup_t", "");
  enter("widgetedit_counter_t", "");
  toggle("widgetedit_set_t", true);
  press("we_resource_upd_b");
  EXPECT_EQ((Items{"all", "bare", "get"}), items("we_resource_list"));
  EXPECT_EQ("'all', , 'display', False, VQC_FREE, VQC_DONT_FREE access 7,", saved_resource("all"));
}

TEST_F(ResourceEditor, NoAccessIsStoredAsTheDefaultAndShownAsAll) {
  edit();
  select("we_resource_list", "get");
  toggle("widgetedit_get_t", false);
  press("we_resource_upd_b");
  EXPECT_EQ("'get', , 'misc', True, VQC_DONT_FREE, VQC_FREE;", saved_resource("get"));
  select("we_resource_list", "bare");
  select("we_resource_list", "get");
  EXPECT_EQ(every_access, access());
}

TEST_F(ResourceEditor, UpdateWithoutANameDoesNothing) {
  edit();
  enter("widgetedit_page_t", "new page");
  press("we_resource_upd_b");
  EXPECT_EQ((Items{"all", "bare", "get"}), items("we_resource_list"));
  EXPECT_FALSE(dirty);
}

TEST_F(ResourceEditor, AnUnknownPageBecomesOneOfTheFamily) {
  edit_empty_widget();
  enter("we_resource_t", "r");
  enter("widgetedit_page_t", "geometry");
  press("we_resource_upd_b");
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc", "geometry"}), saved_names("F", "page"));
}

TEST_F(ResourceEditor, DeleteTakesTheResourceOut) {
  edit();
  click_item("we_resource_list", "all");
  click("we_resource_del_b");
  EXPECT_EQ((Items{"bare", "get"}), items("we_resource_list"));
  expect_texts("", "", "", "");
  EXPECT_TRUE(is_set("widgetedit_visible_tog"));
  expect_free("widgetedit_get_default_b", "widgetedit_set_default_b");
  EXPECT_EQ((std::vector<bool>{true, true, false}), access());  // they keep what they showed
  EXPECT_TRUE(dirty);
  EXPECT_EQ("", saved_resource("all"));
}

TEST_F(ResourceEditor, DeleteOfAnUnknownNameChangesNothing) {
  edit();
  select("we_resource_list", "all");
  enter("we_resource_t", "unknown");
  press("we_resource_del_b");
  EXPECT_EQ((Items{"all", "bare", "get"}), items("we_resource_list"));
  expect_texts("unknown", "count", "vq_font_dialog_create", "display");
  EXPECT_FALSE(dirty);
}

TEST_F(ResourceEditor, AfterADeleteCloseAsksNothing) {
  edit();
  select("we_resource_list", "all");
  press("we_resource_del_b");
  press("widgetedit_closeb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
}

TEST_F(ResourceEditor, ApplyDoesNotTouchTheResource) {
  edit();
  select("we_resource_list", "bare");
  enter("widgetedit_counter_t", "n");
  press("widgetedit_applyb");
  EXPECT_EQ("'bare', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT,", saved_resource("bare"));
}

TEST_F(ResourceEditor, UndoClearsTheResourceFields) {
  edit();
  select("we_resource_list", "all");
  enter("widgetedit_page_t", "typed");
  press("widgetedit_undob");
  expect_texts("", "", "", "");
  expect_free("widgetedit_get_default_b", "widgetedit_set_default_b");
  EXPECT_EQ((Items{"all", "bare", "get"}), items("we_resource_list"));
  press("widgetedit_closeb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceEditor, AnotherWidgetShowsItsOwnResources) {
  edit();
  select("we_resource_list", "all");
  select("widgetlist_selection", "Other");
  EXPECT_EQ(Items{"other"}, items("we_resource_list"));
  expect_texts("", "", "", "");
  expect_free("widgetedit_get_default_b", "widgetedit_set_default_b");
  EXPECT_FALSE(is_set("widgetedit_visible_tog"));  // the toggles keep what they showed
  EXPECT_EQ((std::vector<bool>{true, true, false}), access());
}

TEST_F(ResourceEditor, WithoutAWidgetNothingIsStored) {
  edit();
  press("family_newb");
  enter("we_resource_t", "r");
  enter("widgetedit_page_t", "p");
  if (is_sensitive("we_resource_upd_b")) press("we_resource_upd_b");
  if (is_sensitive("we_resource_del_b")) press("we_resource_del_b");
  EXPECT_EQ(Items(), items("we_resource_list"));
  EXPECT_FALSE(dirty);
  EXPECT_EQ("VQconfig\n", saved());
}

}  // namespace
