#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// The upper half of the widget editor: the fields of the widget class itself.

namespace {

struct FieldRow {
  const char* field;
  const char* keyword;
};

// In the order of a saved document.
const FieldRow text_fields[] = {
    {"widgetedit_include_filename", "include_filename"},
    {"widgetedit_defined_name", "defined_name"},
    {"widgetedit_realise", "realise"},
    {"widgetedit_abstract", "abstract"},
    {"widgetedit_can_add_child", "can_add_child"},
    {"widgetedit_appropriate_parent", "appropriate_parent"},
    {"widgetedit_largeicon", "largeicon"},
    {"widgetedit_smallicon", "smallicon"},
    {"widgetedit_lrg_iconheader", "largeiconheader"},
    {"widgetedit_sml_iconheader", "smalliconheader"},
    {"widgetedit_pixmap_t", "pixmap_resource"},
    {"widgetedit_d_help_doc", "dialogue_doc"},
    {"widgetedit_d_help_tag", "dialogue_tag"},
    {"widgetedit_w_help_doc", "widget_doc"},
    {"widgetedit_w_help_tag", "widget_tag"},
};

struct ToggleRow {
  const char* toggle;
  const char* keyword;
  bool in_new_widget;
};

const ToggleRow toggles[] = {
    {"widgetedit_can_manage", "can_manage", true},
    {"widgetedit_can_edit_abstract", "can_edit_abstract", true},
    {"widgetedit_disablegoto", "disablegoto", false},
    {"widgetedit_disablefgswap", "disablefgswap", false},
    {"widgetedit_can_create", "can_create", true},
    {"widgetedit_default_is_dont_free", "default_is_dont_free", false},
    {"widgetedit_generate_initialise", "generate_initialise", false},
};

const char plain[] = "VQconfig\nwidget 'W' {\n}\nfamily 'F' {\nwidget='W'\n}\n";

class WidgetEditor : public Session {
 protected:
  void edit(std::string_view document) {
    open_document(document);
    edit_family("F");
    edit_widget("W");
    ASSERT_TRUE(is_shown("widgetedit_dialog"));
  }

  static std::string document_with_every_field() {
    std::string document = "VQconfig\nwidget 'W' {\n";
    for (const auto& [field, keyword] : text_fields) document += std::string(keyword) + "='value of " + keyword + "'\n";
    for (const auto& [toggle, keyword, on] : toggles) document += std::string(keyword) + (on ? "=False\n" : "=True\n");
    return document + "}\nfamily 'F' {\nwidget='W'\n}\n";
  }

  void expect_empty_fields() {
    for (const auto& [field, keyword] : text_fields) EXPECT_EQ("", text(field)) << field;
    for (const auto& [toggle, keyword, on] : toggles) EXPECT_EQ(on, is_set(toggle)) << toggle;
  }
};

TEST_F(WidgetEditor, ShowsEveryFieldOfTheWidget) {
  edit(document_with_every_field());
  for (const auto& [field, keyword] : text_fields) EXPECT_EQ(std::string("value of ") + keyword, text(field)) << field;
  for (const auto& [toggle, keyword, on] : toggles) EXPECT_EQ(!on, is_set(toggle)) << toggle;
  EXPECT_EQ(filled("widget_title", "W"), title("widgetedit_dialog"));
}

TEST_F(WidgetEditor, ANewWidgetShowsTheDefaults) {
  edit(plain);
  expect_empty_fields();
}

TEST_F(WidgetEditor, ApplyStoresEveryField) {
  edit(plain);
  std::string expected = "widget 'W' {\n";
  auto add_text = [&](const FieldRow& row) {
    enter(row.field, std::string("my ") + row.keyword);
    expected += std::string("\t") + row.keyword + "='my " + row.keyword + "'\n";
  };
  constexpr std::size_t before_toggles = 6;
  for (std::size_t i = 0; i < before_toggles; ++i) add_text(text_fields[i]);
  for (const auto& [name, keyword, on] : toggles) {
    toggle(name, !on);
    expected += std::string("\t") + keyword + (on ? "=False\n" : "=True\n");
  }
  for (std::size_t i = before_toggles; i < std::size(text_fields); ++i) add_text(text_fields[i]);
  EXPECT_FALSE(dirty);
  press("widgetedit_applyb");
  EXPECT_TRUE(dirty);
  EXPECT_EQ(expected + "}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, ApplyWithMouseAndKeyboard) {
  edit(plain);
  click("widgetedit_include_filename");
  type("Dial.h");
  click("widgetedit_can_manage");
  click("widgetedit_applyb");
  EXPECT_EQ("widget 'W' {\n\tinclude_filename='Dial.h'\n\tcan_manage=False\n}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, AClearedFieldIsStoredAsNone) {
  edit(document_with_every_field());
  for (const auto& [field, keyword] : text_fields) enter(field, "");
  for (const auto& [name, keyword, on] : toggles) toggle(name, on);
  press("widgetedit_applyb");
  EXPECT_EQ("widget 'W' {\n}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, NothingIsStoredWithoutApply) {
  edit(plain);
  enter("widgetedit_realise", "typed");
  EXPECT_FALSE(dirty);
  EXPECT_EQ("widget 'W' {\n}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, UndoBringsTheFieldsBack) {
  edit(document_with_every_field());
  for (const auto& [field, keyword] : text_fields) enter(field, "typed");
  for (const auto& [name, keyword, on] : toggles) toggle(name, on);
  click("widgetedit_undob");
  for (const auto& [field, keyword] : text_fields) EXPECT_EQ(std::string("value of ") + keyword, text(field)) << field;
  for (const auto& [name, keyword, on] : toggles) EXPECT_EQ(!on, is_set(name)) << name;
  EXPECT_FALSE(dirty);
}

TEST_F(WidgetEditor, CloseAsksNothingAndLosesTheFields) {
  edit(plain);
  enter("widgetedit_realise", "typed");
  click("widgetedit_closeb");
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
  EXPECT_FALSE(is_shown("resource_warn_dialog"));
  EXPECT_EQ("widget 'W' {\n}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, ItMirrorsTheCurrentWidgetWhileHidden) {
  edit(document_with_every_field());
  press("widgetedit_closeb");
  enter("widgetlist_selection", "W");
  press_cancel("widgetlist_selection");
  expect_empty_fields();
  EXPECT_EQ(filled("widget_title", nullptr), title("widgetedit_dialog"));
}

TEST_F(WidgetEditor, WithoutAWidgetItIsClearedAndCannotBeApplied) {
  edit(document_with_every_field());
  press("family_newb");
  expect_empty_fields();
  EXPECT_EQ(filled("widget_title", nullptr), title("widgetedit_dialog"));
  EXPECT_EQ(Items(), items("we_resource_list"));
  EXPECT_FALSE(is_sensitive("widgetedit_applyb"));
  EXPECT_FALSE(is_sensitive("widgetedit_undob"));
}

TEST_F(WidgetEditor, AWidgetThatTwoFamiliesShareChangesForBoth) {
  edit("VQconfig\nwidget 'W' {\n}\nfamily 'F' {\nwidget='W'\n}\nfamily 'G' {\nwidget='W'\n}\n");
  enter("widgetedit_realise", "once");
  press("widgetedit_applyb");
  select("family_selection", "G");
  select("widgetlist_selection", "W");
  EXPECT_EQ("once", text("widgetedit_realise"));
}

TEST_F(WidgetEditor, FreeTextNeedNotBeAscii) {
  edit(plain);
  enter("widgetedit_w_help_doc", "Größe – 大きさ");
  press("widgetedit_applyb");
  press("widgetedit_undob");
  EXPECT_EQ("Größe – 大きさ", text("widgetedit_w_help_doc"));
  EXPECT_EQ("widget 'W' {\n\twidget_doc='Größe – 大きさ'\n}\n", saved_item("widget 'W'"));
}

TEST_F(WidgetEditor, LongTextsAreNotCut) {
  edit(plain);
  const std::string text_of_5000(5000, 'x');
  enter("widgetedit_realise", text_of_5000);
  press("widgetedit_applyb");
  EXPECT_EQ("widget 'W' {\n\trealise='" + text_of_5000 + "'\n}\n", saved_item("widget 'W'"));
}

}  // namespace
