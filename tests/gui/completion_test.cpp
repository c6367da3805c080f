#include <gtest/gtest.h>

#include <string>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// Fields that can be completed from the document.

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Knob' {\ninclude_filename='Knob.h'\nrealise='make_knob'\nabstract='is_open'\n}\nwidget 'Lamp' {\n}\n"
    "header 'lamps.h'\n"
    "converter 'Gauge' {\nproc_name='add_gauge'\n}\n"
    "page 'lamps'\n"
    "family 'F' {\nwidget='Knob'\nwidget='Lamp'\nconverter='Gauge'\nheader='lamps.h'\npage='lamps'\n}\n";

class Completion : public Session {
 protected:
  Completion() {
    open_document(document);
    edit_family("F");
  }

  static void edit_lamp() { edit_widget("Lamp"); }
  static bool is_list_shown() { return find_widget("dropdown_list") && is_viewable(widget("dropdown_list")); }
  static Items offered() { return is_list_shown() ? items("dropdown_list") : Items(); }
  static void press_key(const std::string& name) {
    key(name);
    settle();
  }
};

TEST_F(Completion, TypesNothingForTheUser) {
  edit_lamp();
  click("widgetedit_page_t");
  type("la");
  settle();
  EXPECT_EQ("la", text("widgetedit_page_t"));
  EXPECT_FALSE(is_list_shown());
  press_key("Tab");
  EXPECT_EQ("la", text("widgetedit_page_t"));
  EXPECT_EQ("widgetedit_page_b", focus("widgetedit_page_t"));
}

TEST_F(Completion, DownOffersWhatMatchesAndReturnTakesIt) {
  edit_lamp();
  click("widgetedit_page_t");
  type("la");
  press_key("Down");
  EXPECT_EQ((Items{"lamps", "display"}), offered());
  EXPECT_EQ("la", text("widgetedit_page_t"));
  press_key("Return");
  EXPECT_EQ("lamps", text("widgetedit_page_t"));
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ(Items(), items("we_resource_list"));  // Return has not pressed Update
  EXPECT_EQ("widgetedit_page_t", focus("widgetedit_page_t"));
}

TEST_F(Completion, TabTakesWhatTheListHasSelected) {
  edit_lamp();
  click("widgetedit_page_t");
  press_key("Down");
  EXPECT_EQ((Items{"callbacks", "display", "lamps", "margins", "misc", "settings"}), offered());
  press_key("Down");
  press_key("Tab");
  EXPECT_EQ("display", text("widgetedit_page_t"));
  EXPECT_EQ("widgetedit_page_t", focus("widgetedit_page_t"));
}

TEST_F(Completion, AClickTakesAName) {
  edit_lamp();
  click("widgetedit_page_t");
  press_key("Down");
  click_item("dropdown_list", "margins");
  settle();
  EXPECT_EQ("margins", text("widgetedit_page_t"));
}

TEST_F(Completion, TypingNarrowsTheList) {
  edit_lamp();
  click("widgetedit_page_t");
  press_key("Down");
  type("m");
  settle();
  EXPECT_EQ((Items{"margins", "misc", "lamps"}), offered());
  type("i");
  settle();
  EXPECT_EQ(Items{"misc"}, offered());
}

TEST_F(Completion, EscapeClosesTheListAlone) {
  edit_lamp();
  click("widgetedit_page_t");
  type("la");
  press_key("Down");
  press_key("Escape");
  EXPECT_FALSE(is_list_shown());
  EXPECT_EQ("la", text("widgetedit_page_t"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(Completion, CanBeTakenBack) {
  edit_lamp();
  click("widgetedit_page_t");
  type("la");
  press_key("Down");
  press_key("Return");
  press_key("ctrl+z");
  EXPECT_EQ("la", text("widgetedit_page_t"));
}

TEST_F(Completion, ChangesAResourceLikeTyping) {
  edit_lamp();
  enter("we_resource_t", "XtNlight");
  press("we_resource_upd_b");
  click("widgetedit_popup_t");
  press_key("Down");
  press_key("Return");
  press("widgetedit_closeb");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
}

TEST_F(Completion, OffersOfProceduresAndHeadersThoseOfTheKind) {
  edit_lamp();
  const std::pair<const char*, Items> fields[] = {
      {"widgetedit_include_filename", {"Knob.h", "lamps.h"}},
      {"widgetedit_lrg_iconheader", {"Knob.h", "lamps.h"}},
      {"widgetedit_realise", {"make_knob"}},
      {"widgetedit_abstract", {"is_open"}},
      {"widgetedit_defined_name", {resource_text("no_match")}},
  };
  for (const auto& [field, names] : fields) {
    click(field);
    press_key("Down");
    EXPECT_EQ(names, offered()) << field;
    press_key("Escape");
  }
}

TEST_F(Completion, OffersNothingForWhatNamesNothing) {
  edit_lamp();
  click("widgetedit_w_help_tag");
  press_key("Down");
  EXPECT_FALSE(is_list_shown());
}

TEST_F(Completion, ServesThePagesOfAFamily) {
  choose_menu("entity_viewb", "entity_opt_converters_t");
  click("converter_proc");
  press_key("Down");
  EXPECT_EQ(Items{"add_gauge"}, offered());
  press_key("Return");
  EXPECT_EQ("add_gauge", text("converter_proc"));
  click("convert_popup_t");
  type("font");
  press_key("Down");
  EXPECT_EQ(Items{"vq_font_dialog_create"}, offered());
}

TEST_F(Completion, ServesThePopupEditor) {
  edit_lamp();
  press("widgetedit_popup_b");
  click("dialog_init");
  type("string");
  press_key("Down");
  EXPECT_EQ(Items{"vq_string_dialog_initialise"}, offered());
}

}  // namespace
