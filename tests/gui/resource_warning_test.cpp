#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The warning before changes to a resource are lost.

namespace {

class ResourceWarning : public Session {
 protected:
  ResourceWarning() {
    open_document(
        "VQconfig\nwidget 'W' {\nresource_definitions="
        "'first',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT,"
        "'second','p','misc',True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
        "family 'F' {\nwidget='W'\n}\n");
    edit_family("F");
    edit_widget("W");
  }

  static Items resources() { return items("we_resource_list"); }
};

TEST_F(ResourceWarning, OkCreatesTheResourceAndCloses) {
  click("we_resource_t");
  type("typed");
  click("widgetedit_closeb");
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
  click("resource_warn_msg.OK");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
  EXPECT_EQ((Items{"first", "second", "typed"}), resources());
  EXPECT_TRUE(dirty);
}

TEST_F(ResourceWarning, IgnoreClosesWithoutCreatingIt) {
  click("we_resource_t");
  type("typed");
  click("widgetedit_closeb");
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  click("resource_warn_ignoreb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
  EXPECT_EQ((Items{"first", "second"}), resources());
  EXPECT_FALSE(dirty);
}

TEST_F(ResourceWarning, CancelLeavesTheEditorOpenAndTheWarningArmed) {
  enter("we_resource_t", "typed");
  press("widgetedit_closeb");
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  click("resource_warn_msg.Cancel");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
  EXPECT_EQ("typed", text("we_resource_t"));
  press("widgetedit_closeb");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceWarning, SelectingAnotherResourceAsksFirst) {
  select("we_resource_list", "first");
  enter("widgetedit_page_t", "display");
  click_item("we_resource_list", "second");
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  EXPECT_EQ("first", text("we_resource_t"));
  press_ok("resource_warn_msg");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
  EXPECT_EQ("second", text("we_resource_t"));
  EXPECT_EQ("misc", text("widgetedit_page_t"));
  EXPECT_NE(std::string::npos, saved_item("widget 'W'").find("'first', , 'display', True"));
}

TEST_F(ResourceWarning, IgnoreShowsTheOtherResourceAndStoresNothing) {
  select("we_resource_list", "first");
  enter("widgetedit_page_t", "display");
  select("we_resource_list", "second");
  press("resource_warn_ignoreb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_EQ("second", text("we_resource_t"));
  EXPECT_EQ("p", text("widgetedit_popup_t"));
  EXPECT_FALSE(dirty);
  press("widgetedit_closeb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceWarning, CancelOfASelectionKeepsTheFields) {
  select("we_resource_list", "first");
  enter("widgetedit_page_t", "display");
  select("we_resource_list", "second");
  press_cancel("resource_warn_msg");
  EXPECT_EQ("first", text("we_resource_t"));
  EXPECT_EQ("display", text("widgetedit_page_t"));
}

TEST_F(ResourceWarning, UpdateDisarmsIt) {
  enter("we_resource_t", "typed");
  press("we_resource_upd_b");
  press("widgetedit_closeb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceWarning, LoadingAWidgetDisarmsIt) {
  enter("we_resource_t", "typed");
  select("widgetlist_selection", "W");
  press("widgetedit_closeb");
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
}

TEST_F(ResourceWarning, ClosingByTheWindowManagerAsksToo) {
  enter("we_resource_t", "typed");
  close("widgetedit_dialog");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(ResourceWarning, ItHasToBeAnsweredFirst) {
  enter("we_resource_t", "typed");
  press("widgetedit_closeb");
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  move_aside("resource_warn_dialog");
  click_in_vain("widgetedit_undob");
  EXPECT_EQ("typed", text("we_resource_t"));
}

struct Change {
  const char* name;
  void (*make)();
  bool arms;
};
void PrintTo(const Change& change, std::ostream* stream) { *stream << change.name; }

const Change changes[] = {
    {"the_name", [] { enter("we_resource_t", "x"); }, true},
    {"visible", [] { toggle("widgetedit_visible_tog", !is_set("widgetedit_visible_tog")); }, true},
    {"the_popup", [] { enter("widgetedit_popup_t", "x"); }, true},
    {"the_page", [] { enter("widgetedit_page_t", "x"); }, true},
    {"free_on_get", [] { choose_option("widgetedit_free_get_opt", "widgetedit_get_free_b"); }, true},
    {"free_on_set", [] { choose_option("widgetedit_free_set_opt", "widgetedit_set_dont_b"); }, true},
    {"the_counter", [] { enter("widgetedit_counter_t", "x"); }, false},
    {"create", [] { toggle("widgetedit_create_t", !is_set("widgetedit_create_t")); }, false},
    {"get", [] { toggle("widgetedit_get_t", !is_set("widgetedit_get_t")); }, false},
    {"set", [] { toggle("widgetedit_set_t", !is_set("widgetedit_set_t")); }, false},
};

class WarningAfter : public ResourceWarning, public testing::WithParamInterface<Change> {};

TEST_P(WarningAfter, AChangeOf) {
  select("we_resource_list", "first");
  GetParam().make();
  press("widgetedit_closeb");
  EXPECT_EQ(GetParam().arms, is_shown("resource_warn_dialog"));
}

INSTANTIATE_TEST_SUITE_P(Of, WarningAfter, testing::ValuesIn(changes),
                         [](const testing::TestParamInfo<Change>& row) { return std::string(row.param.name); });

}  // namespace
