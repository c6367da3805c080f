#include "vqc/cmd/editors/show_spot.h"

#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "vqc/cmd/savefile/fields.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Dial' { realise='make_dial'\n"
    "resource_definitions='value', , 'settings', True, 'limit', , 'mine', True; }\n"
    "widget 'Knob' { }\n"
    "widget 'Alone' { }\n"
    "enumeration 'Mode' { typename='XtRMode' enumentry 'fast'{ } enumentry 'slow'{ code_symbol='SLOW' } }\n"
    "alias 'Also' { to_name='XtRMode' }\n"
    "converter 'XtRMode' { proc_name='add_mode' dialog='mode_popup' }\n"
    "popup 'mode_popup' { dialog_init='mode_init' }\n"
    "popup 'lonely' { }\n"
    "family 'First' { widget='Dial' header='code.h' cheader='config.h' family_header='family.h' }\n"
    "family 'Second' { widget='Dial' widget='Knob' enumeration='Mode' alias='Also' converter='XtRMode'\n"
    "popup='mode_popup' page='mine' }\n";

class ShowSpot : public Session {
 protected:
  ShowSpot() { open_document(document); }

  static bool shows(const Spot& spot) {
    bool shown = false;
    act_for_user([&] { shown = show_spot(spot); });
    settle();
    return shown;
  }
  static std::string current_family() {
    return family_getcurrent() ? std::string(family_getcurrent()->name.view()) : "";
  }
};

TEST_F(ShowSpot, SelectsAFamilyInTheMainWindow) {
  EXPECT_TRUE(shows({Part::family, "Second"}));
  EXPECT_EQ(Items{"Second"}, selected("family_selection"));
  EXPECT_EQ("Second", text("family_selection"));
  EXPECT_EQ("Second", current_family());
  EXPECT_TRUE(has_keyboard(main_shell()));
}

TEST_F(ShowSpot, OpensAFamilyOnItsInitialisation) {
  EXPECT_TRUE(shows({Part::family, "Second", "", "generate_family_init_stub"}));
  ASSERT_TRUE(is_shown("entity_dialog"));
  EXPECT_TRUE(is_viewable(widget("familyinit_form")));
  EXPECT_TRUE(is_set("entity_opt_family_init_t"));
  EXPECT_FALSE(is_set("entity_opt_widgets_t"));
  EXPECT_EQ("familyinit_add_stub_t", focus("entity_dialog"));
}

TEST_F(ShowSpot, OpensAFamilyOnTheListThatItsWordNames) {
  EXPECT_TRUE(shows({Part::family, "Second", "", "cheader"}));
  ASSERT_TRUE(is_shown("entity_dialog"));
  EXPECT_TRUE(is_viewable(widget("confheaderlist_selection")));
  EXPECT_EQ("Second", current_family());
}

TEST_F(ShowSpot, OpensAWidgetInTheFirstFamilyThatHasIt) {
  EXPECT_TRUE(shows({Part::widget, "Dial", "", "realise"}));
  EXPECT_EQ("First", current_family());
  EXPECT_EQ(Items{"Dial"}, selected("widgetlist_selection"));
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("make_dial", text("widgetedit_realise"));
  EXPECT_EQ("widgetedit_realise", focus("widgetedit_dialog"));
}

TEST_F(ShowSpot, OpensAWidgetInTheFamilyThatIsNamed) {
  EXPECT_TRUE(shows({Part::widget, "Dial", "Second"}));
  EXPECT_EQ("Second", current_family());
  EXPECT_EQ(Items{"Dial"}, selected("widgetlist_selection"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(ShowSpot, FindsEachFieldOfAWidget) {
  std::set<std::string> found;
  for (const auto& field : widget_fields) {
    EXPECT_TRUE(shows({Part::widget, "Knob", "", std::string(keyword_text(field.word))}));
    found.insert(focus("widgetedit_dialog"));
  }
  EXPECT_EQ(std::size(widget_fields), found.size());
  EXPECT_TRUE(shows({Part::widget, "Knob", "", "dialogue_tag"}));
  EXPECT_EQ("widgetedit_d_help_tag", focus("widgetedit_dialog"));
  EXPECT_TRUE(shows({Part::widget, "Knob", "", "can_manage"}));
  EXPECT_EQ("widgetedit_can_manage", focus("widgetedit_dialog"));
}

TEST_F(ShowSpot, LeavesWhatHasBeenTypedIntoTheRecordThatIsShown) {
  EXPECT_TRUE(shows({Part::widget, "Dial"}));
  enter("widgetedit_defined_name", "typed");
  EXPECT_TRUE(shows({Part::widget, "Dial", "", "realise"}));
  EXPECT_EQ("typed", text("widgetedit_defined_name"));
}

TEST_F(ShowSpot, ShowsAnotherWidgetThanTheOneThatHasBeenOpenedByName) {
  edit_family("Second");
  click_item("widgetlist_selection", "Dial");
  enter("widgetlist_selection", "Knob");
  press_ok("widgetlist_selection");
  EXPECT_TRUE(shows({Part::widget, "Dial", "Second", "realise"}));
  EXPECT_EQ("make_dial", text("widgetedit_realise"));
}

TEST_F(ShowSpot, OpensAResourceInItsWidget) {
  EXPECT_TRUE(shows({Part::resource, "limit", "Dial", "page"}));
  EXPECT_EQ(Items{"limit"}, selected("we_resource_list"));
  EXPECT_EQ("limit", text("we_resource_t"));
  EXPECT_EQ("mine", text("widgetedit_page_t"));
  EXPECT_EQ("widgetedit_page_t", focus("widgetedit_dialog"));
}

TEST_F(ShowSpot, AsksAboutAChangedResourceFirst) {
  EXPECT_TRUE(shows({Part::resource, "limit", "Dial"}));
  enter("widgetedit_page_t", "other");
  EXPECT_TRUE(shows({Part::resource, "value", "Dial"}));
  ASSERT_TRUE(is_shown("resource_warn_dialog"));
  press_ok("resource_warn_msg");
  EXPECT_EQ("value", text("we_resource_t"));
  EXPECT_EQ("other", std::string(resource_ptr(widget_ptr("Dial"), "limit")->page.view()));
}

TEST_F(ShowSpot, OpensEnumerationsAndTheirEntries) {
  EXPECT_TRUE(shows({Part::enumeration, "Mode", "", "typename"}));
  EXPECT_EQ("enumedit_type", focus("enumedit_dialog"));
  EXPECT_EQ("XtRMode", text("enumedit_type"));
  EXPECT_TRUE(shows({Part::entry, "slow", "Mode", "code_symbol"}));
  EXPECT_EQ(Items{"slow"}, selected("enumedit_selection"));
  EXPECT_EQ("SLOW", text("enumedit_code_symbol"));
  EXPECT_EQ("enumedit_code_symbol", focus("enumedit_dialog"));
}

TEST_F(ShowSpot, OpensAliasesAndConvertersOnTheirPages) {
  EXPECT_TRUE(shows({Part::alias, "Also", "", "to_name"}));
  EXPECT_EQ("aliaslist_to_name", focus("entity_dialog"));
  EXPECT_EQ("XtRMode", text("aliaslist_to_name"));
  EXPECT_TRUE(shows({Part::converter, "XtRMode", "", "dialog"}));
  EXPECT_EQ("convert_popup_t", focus("entity_dialog"));
  EXPECT_EQ("mode_popup", text("convert_popup_t"));
  EXPECT_FALSE(is_viewable(widget("aliaslist_selection")));
}

TEST_F(ShowSpot, OpensHeadersOnTheirPages) {
  EXPECT_TRUE(shows({Part::code_header, "code.h"}));
  EXPECT_EQ(Items{"code.h"}, selected("codeheaderlist_selection"));
  EXPECT_TRUE(shows({Part::config_header, "config.h"}));
  EXPECT_EQ(Items{"config.h"}, selected("confheaderlist_selection"));
  EXPECT_TRUE(shows({Part::family_header, "family.h"}));
  EXPECT_EQ(Items{"family.h"}, selected("familyheaderlist_selection"));
  EXPECT_TRUE(is_viewable(widget("familyheaderlist_selection")));
}

TEST_F(ShowSpot, OpensPopupsAndPagesInTheirEditors) {
  EXPECT_TRUE(shows({Part::popup, "mode_popup", "", "dialog_update"}));
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  EXPECT_EQ("mode_popup", text("popupedit_selection"));
  EXPECT_EQ("mode_init", text("dialog_init"));
  EXPECT_EQ("dialog_update", focus("popupedit_dialog"));
  EXPECT_EQ("Second", current_family());
  press_apply("popupedit_selection");
  EXPECT_TRUE(shows({Part::page, "mine"}));
  ASSERT_TRUE(is_shown("pageedit_dialog"));
  EXPECT_EQ("mine", text("pageedit_selection"));
  EXPECT_EQ(Items{"mine"}, selected("pageedit_selection"));
  press_apply("pageedit_selection");
  EXPECT_FALSE(dirty) << "there was no field to write into";
}

TEST_F(ShowSpot, LetsAPickerGoOnForItsField) {
  EXPECT_TRUE(shows({Part::resource, "value", "Dial"}));
  press("widgetedit_page_b");
  EXPECT_TRUE(shows({Part::page, "mine"}));
  press_apply("pageedit_selection");
  EXPECT_EQ("mine", text("widgetedit_page_t"));
}

TEST_F(ShowSpot, ShowsAProcedureWhereItIsNamedFirst) {
  EXPECT_TRUE(shows({Part::procedure, "add_mode"}));
  EXPECT_EQ("converter_proc", focus("entity_dialog"));
  EXPECT_EQ("add_mode", text("converter_proc"));
  EXPECT_FALSE(shows({Part::procedure, "another"}));
}

TEST_F(ShowSpot, LeavesTheFamilyThatHasAPage) {
  edit_family("Second");
  EXPECT_TRUE(shows({Part::page, "display"}));
  EXPECT_EQ("Second", current_family());
}

TEST_F(ShowSpot, SaysWhyItShowsNothing) {
  EXPECT_FALSE(shows({Part::widget, "Alone"}));
  EXPECT_EQ("No family has Alone", label("status_said"));
  EXPECT_FALSE(shows({Part::family, "Third"}));
  EXPECT_EQ("Third is no longer there", label("status_said"));
  EXPECT_FALSE(shows({Part::resource, "gone", "Dial"}));
  EXPECT_EQ("gone is no longer there", label("status_said"));
  EXPECT_FALSE(shows({Part::popup, "gone"}));
  EXPECT_FALSE(shows({Part::output_names, "", "", "code_name"}));
  EXPECT_EQ("No window shows the names of the generated files", label("status_said"));
}

TEST_F(ShowSpot, OpensTheStopListAndTheMainWindow) {
  EXPECT_TRUE(shows({Part::stop_list}));
  EXPECT_TRUE(is_shown("stop_list_shell"));
  EXPECT_TRUE(shows({Part::families}));
  EXPECT_TRUE(has_keyboard(main_shell()));
}

TEST_F(ShowSpot, OpensTheNamesOfTablesWhereTheOptionsMenuIs) {
  EXPECT_FALSE(shows({Part::table_names, "", "", "generate_alias_string"}));
  EXPECT_EQ(resource_text("spot_without_options"), label("status_said"));
  application_resources.generate_options = true;
  EXPECT_TRUE(shows({Part::table_names, "", "", "generate_alias_string"}));
  ASSERT_TRUE(is_shown("options_shell"));
  EXPECT_EQ("alias_array_text", focus("options_shell"));
}

}  // namespace
