#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The frame of the family dialog, and its page of initialisation settings.

namespace {

const char document[] =
    "VQconfig\nfamily 'A' {\nfamily_init='a_init'\ngenerate_family_init_code=True\ngenerate_family_init_stub=False\n"
    "generate_family_init_vq=True\ngenerate_family_init_pre_shell=False\n"
    "widget='aw'\nenumeration='ae'\nheader='ah'\ncheader='ac'\nfamily_header='af'\nalias='aa'\nconverter='ak'\n}\n"
    "family 'B' {\nwidget='bw'\nenumeration='be'\nheader='bh'\ncheader='bc'\nfamily_header='bf'\nalias='ba'\n"
    "converter='bk'\n}\nfamily 'C' {\n}\n";

struct PageRow {
  const char* view;
  const char* page;
};

const PageRow pages[] = {
    {"entity_opt_aliases_t", "aliaslist_selection"},
    {"entity_opt_converters_t", "converter_selection"},
    {"entity_opt_enums_t", "enumlist_selection"},
    {"entity_opt_code_headers_t", "codeheaderlist_selection"},
    {"entity_opt_config_headers_t", "confheaderlist_selection"},
    {"entity_opt_family_headers_t", "familyheaderlist_selection"},
    {"entity_opt_family_init_t", "familyinit_form"},
    {"entity_opt_widgets_t", "widgetlist_selection"},
};

class FamilyDialog : public Session {
 protected:
  FamilyDialog() { open_document(document); }

  static void expect_only_page(const std::string& shown) {
    for (const auto& [view, page] : pages) {
      EXPECT_EQ(shown == page, is_viewable(widget(page))) << page;
      EXPECT_EQ(shown == page, is_set(view)) << view;
      EXPECT_TRUE(XtIsManaged(widget(page))) << page;
    }
  }
};

TEST_F(FamilyDialog, OpensOnTheWidgetsPage) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  expect_only_page("widgetlist_selection");
}

TEST_F(FamilyDialog, ViewShowsOnePageAtATime) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  for (const auto& [view, page] : pages) {
    choose_menu("entity_viewb", view);
    expect_only_page(page);
  }
}

TEST_F(FamilyDialog, TheShownPageChosenAgainStays) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  choose_menu("entity_viewb", "entity_opt_widgets_t");
  expect_only_page("widgetlist_selection");
}

TEST_F(FamilyDialog, ViewItemsStandInTheirOrder) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  click("entity_viewb");
  Names expected;
  for (const auto& row : pages) expected.push_back(row.view);
  EXPECT_EQ(expected, top_to_bottom({expected.rbegin(), expected.rend()}));
  key("Escape");
}

TEST_F(FamilyDialog, ReopensOnThePageThatWasLeft) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  choose_menu("entity_viewb", "entity_opt_aliases_t");
  click("aliaslist_quitb");
  EXPECT_FALSE(is_shown("entity_dialog"));
  edit_family("B");
  ASSERT_TRUE(is_shown("entity_dialog"));
  expect_only_page("aliaslist_selection");
}

TEST_F(FamilyDialog, ShowsTheFamilyThatWasCurrentBeforeItExisted) {
  select("family_selection", "B");
  edit_family("B");
  EXPECT_EQ(Items{"bw"}, items("widgetlist_selection"));
}

TEST_F(FamilyDialog, AnotherFamilyRefillsEveryPage) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  move_aside("entity_dialog");
  click_item("family_selection", "B");
  EXPECT_EQ(filled("family_title", "B"), title("entity_dialog"));
  EXPECT_EQ(Items{"bw"}, items("widgetlist_selection"));
  EXPECT_EQ(Items{"be"}, items("enumlist_selection"));
  EXPECT_EQ(Items{"bh"}, items("codeheaderlist_selection"));
  EXPECT_EQ(Items{"bc"}, items("confheaderlist_selection"));
  EXPECT_EQ(Items{"bf"}, items("familyheaderlist_selection"));
  EXPECT_EQ(Items{"ba"}, items("aliaslist_selection"));
  EXPECT_EQ(Items{"bk"}, items("converter_selection"));
  EXPECT_EQ("", text("familyinit_init_text"));
  EXPECT_FALSE(is_set("familyinit_add_vq_t"));
  EXPECT_FALSE(dirty);
}

TEST_F(FamilyDialog, FollowsTheFamilyWhileItIsHidden) {
  edit_family("A");
  press("widgetlist_quitb");
  select("family_selection", "B");
  EXPECT_EQ(Items{"ba"}, items("aliaslist_selection"));
  EXPECT_EQ(filled("family_title", "B"), title("entity_dialog"));
}

TEST_F(FamilyDialog, ClosingByTheWindowManagerHidesIt) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  close("entity_dialog");
  EXPECT_FALSE(is_shown("entity_dialog"));
  EXPECT_FALSE(exit_status);
  edit_family("B");
  EXPECT_TRUE(is_shown("entity_dialog"));
}

class FamilyInit : public FamilyDialog {
 protected:
  static std::vector<bool> flags() {
    return {is_set("familyinit_add_vq_t"), is_set("familyinit_add_code_t"), is_set("familyinit_add_stub_t"),
            is_set("familyinit_pre_shell_t")};
  }
};

TEST_F(FamilyInit, ShowsTheSettingsOfTheFamily) {
  edit_family("A");
  EXPECT_EQ("a_init", text("familyinit_init_text"));
  EXPECT_EQ((std::vector<bool>{true, true, false, false}), flags());
}

TEST_F(FamilyInit, ApplyStoresAndLeavesTheDocumentClean) {
  edit_family("C");
  ASSERT_TRUE(is_shown("entity_dialog"));
  choose_menu("entity_viewb", "entity_opt_family_init_t");
  click("familyinit_init_text");
  type("c_init");
  click("familyinit_add_stub_t");
  click("familyinit_pre_shell_t");
  click("familyinit_applyb");
  EXPECT_FALSE(dirty);
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_TRUE(saved_item("family 'C'")
                  .starts_with("family 'C' {\n\tfamily_init='c_init'\n\tgenerate_family_init_code=False\n"
                               "\tgenerate_family_init_stub=True\n"
                               "\tgenerate_family_init_vq=False\n\tgenerate_family_init_pre_shell=True\n"));
}

TEST_F(FamilyInit, AChangedDocumentStaysChanged) {
  add_family("D");
  edit_family("A");
  press("familyinit_applyb");
  EXPECT_TRUE(dirty);
}

TEST_F(FamilyInit, AnEmptyProcedureIsStoredAsAnEmptyString) {
  edit_family("A");
  enter("familyinit_init_text", "");
  press("familyinit_applyb");
  EXPECT_TRUE(
      saved_item("family 'A'").starts_with("family 'A' {\n\tfamily_init=''\n\tgenerate_family_init_code=True\n"));
}

TEST_F(FamilyInit, ASettingThatIsNotAppliedIsLost) {
  edit_family("A");
  enter("familyinit_init_text", "typed");
  toggle("familyinit_pre_shell_t", true);
  select("family_selection", "B");
  select("family_selection", "A");
  EXPECT_EQ("a_init", text("familyinit_init_text"));
  EXPECT_FALSE(is_set("familyinit_pre_shell_t"));
}

TEST_F(FamilyInit, WithoutAFamilyItIsEmptyAndApplyDoesNothing) {
  edit_family("A");
  press("family_newb");
  EXPECT_EQ("", text("familyinit_init_text"));
  EXPECT_EQ((std::vector<bool>{false, false, false, false}), flags());
  enter("familyinit_init_text", "typed");
  ASSERT_TRUE(is_sensitive("familyinit_applyb"));
  press("familyinit_applyb");
  EXPECT_EQ("VQconfig\n", saved());
}

TEST_F(FamilyInit, CancelHidesTheDialogAndDiscardsNothing) {
  edit_family("A");
  ASSERT_TRUE(is_shown("entity_dialog"));
  choose_menu("entity_viewb", "entity_opt_family_init_t");
  enter("familyinit_init_text", "typed");
  click("familyinit_cancelb");
  EXPECT_FALSE(is_shown("entity_dialog"));
  EXPECT_EQ("typed", text("familyinit_init_text"));
  EXPECT_FALSE(dirty);
}

}  // namespace
