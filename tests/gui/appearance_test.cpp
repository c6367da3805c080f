#include <gtest/gtest.h>

#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/ToggleB.h>

#include <algorithm>
#include <map>
#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/pixels.h"
#include "gui/session.h"
#include "gui/widget_tables.h"

using namespace vqc;

// How the windows look, as it can be measured on the screen.

namespace {

using Names = std::vector<std::string>;

const char athena[] =
    "VQconfig\nwidget 'Label' {\nresource_definitions='r',,,True,VQC_FREE_DEFAULT,VQC_FREE_DEFAULT;\n}\n"
    "family 'Athena' {\nwidget='Label'\n}\n";

const Names pages = {"aliases",        "converters",     "enums",       "code_headers",
                     "config_headers", "family_headers", "family_init", "widgets"};

void show_page(const std::string& page) { toggle("entity_opt_" + page + "_t", true); }

class Appearance : public Session {
 protected:
  Appearance() { open_document(athena); }

  static void open_widget_editor() {
    edit_family("Athena");
    edit_widget("Label");
    ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  }
};

class Menus : public EveryDialog {
 protected:
  Menus() { open_every_dialog(); }
};

TEST_F(Menus, HaveRowsOfOneHeight) {
  std::set<int> heights;
  for (const char* item : {"family_newb", "family_exitb", "family_stop_b", "family_generate_options_b",
                           "family_genconfigb", "family_helpaboutb", "family_helpgenb", "entity_opt_aliases_t",
                           "entity_opt_widgets_t", "widgetedit_get_default_b", "widgetedit_set_dont_b"}) {
    heights.insert(area_of(item).height);
  }
  EXPECT_EQ(1u, heights.size());
}

/// How much darker than the background the pixels of letters are on average.
double blackness(const Picture& letters) {
  const double ground = letters.background();
  double sum = 0;
  int count = 0;
  for (int y = 0; y < letters.height(); ++y) {
    for (int x = 0; x < letters.width(); ++x) {
      if (letters.at(x, y) >= ground) continue;
      sum += ground - letters.at(x, y);
      ++count;
    }
  }
  return sum / count;
}

TEST_F(Appearance, ShortcutsAreNotBolderThanTheirItems) {
  click("family_file_cascade");
  ASSERT_TRUE(wait_for([] { return is_viewable(widget("family_openb")); }));
  settle();
  Area left = area_of("family_openb");
  left.top += 4;
  left.height -= 12;  // without the line below the letter of the mnemonic
  left.left += 4;
  left.width = left.width / 2 - 8;
  Area right = left;
  right.left += left.width + 8;
  EXPECT_LE(blackness(Picture(right)), blackness(Picture(left)));
}

TEST_F(Appearance, CheckMarksStandOutOfTheirBoxes) {
  open_widget_editor();
  ASSERT_TRUE(is_set("widgetedit_can_create"));
  Dimension size = 0;
  XtVaGetValues(widget("widgetedit_can_create"), XmNindicatorSize, &size, nullptr);
  const Area toggle = area_of("widgetedit_can_create");
  const Area box{toggle.left + 3, toggle.top + (toggle.height - size) / 2, size, size};
  const Picture mark = Picture(box).inside(2);
  EXPECT_GE(contrast(mark.background(), mark.darkest()), 4.5);
}

/// Whether nothing can be seen in a field.
bool is_blank(const std::string& field) {
  const Picture inside = Picture(field).inside(3);
  return inside.darkest() >= inside.background();
}

/// Whether a blinking text cursor can be seen in an empty field.
bool shows_cursor(const std::string& field) {
  return wait_for([&] { return !is_blank(field); }, 1.5);
}

TEST_F(Appearance, TheTextCursorShowsInTheFieldWithTheKeyboardAlone) {
  open_widget_editor();
  ASSERT_EQ("widgetedit_include_filename", focus("widgetedit_dialog"));
  EXPECT_TRUE(shows_cursor("widgetedit_include_filename"));
  for (const char* field : {"widgetedit_defined_name", "widgetedit_largeicon", "we_resource_t", "widgetedit_popup_t"}) {
    EXPECT_TRUE(is_blank(field)) << field;
  }
  key("Tab");
  EXPECT_TRUE(is_blank("widgetedit_include_filename"));
  EXPECT_TRUE(shows_cursor("widgetedit_defined_name"));
}

TEST_F(Appearance, NameFieldsShowTheTextCursorWithTheKeyboardToo) {
  ASSERT_TRUE(has_keyboard(main_shell()));
  EXPECT_TRUE(shows_cursor("family_selection.Text"));
  key("Tab");
  EXPECT_TRUE(is_blank("family_selection.Text"));
  key("shift+Tab");
  EXPECT_TRUE(shows_cursor("family_selection.Text"));
}

TEST_F(Appearance, OptionMenusAreAsHighAsTheFieldsBesideThem) {
  open_widget_editor();
  const int field = area_of("widgetedit_page_t").height;
  EXPECT_EQ(field, area_of(XmOptionButtonGadget(widget("widgetedit_free_get_opt"))).height);
  EXPECT_EQ(field, area_of(XmOptionButtonGadget(widget("widgetedit_free_set_opt"))).height);
}

/// The same rows from the bottom up, without those at both ends that have no ink.
std::vector<int> turned(std::vector<int> rows) {
  std::ranges::reverse(rows);
  return rows;
}

std::vector<int> arrow_shape(const std::string& arrow) {
  std::vector<int> rows = Picture(arrow).inside(1).ink_in_rows();
  std::erase(rows, 0);
  return rows;
}

TEST_F(Appearance, BothArrowsAreWhole) {
  const std::vector<int> up = arrow_shape("family_uparrow");
  EXPECT_GT(up.size(), 9u);
  EXPECT_LE(up.front(), 2);
  EXPECT_EQ(up, turned(arrow_shape("family_downarrow")));
}

/// The buttons at the bottom of a page, from left to right.
Names button_row(const std::string& page) {
  if (page == "family_init") return left_to_right({"familyinit_applyb", "familyinit_cancelb", "familyinit_helpb"});
  const std::map<std::string, std::string> boxes = {
      {"aliases", "aliaslist"},           {"converters", "converter"},          {"enums", "enumlist"},
      {"code_headers", "codeheaderlist"}, {"config_headers", "confheaderlist"}, {"family_headers", "familyheaderlist"},
      {"widgets", "widgetlist"}};
  const std::string box = boxes.at(page) + "_selection";
  Names names = {box + ".OK", box + ".Cancel", boxes.at(page) + "_quitb", box + ".Help"};
  if (XtIsManaged(widget(box + ".Apply"))) names.push_back(box + ".Apply");
  return left_to_right(names);
}

TEST_F(Appearance, ButtonRowsStandAtOneHeightOnAllPages) {
  edit_family("Athena");
  std::set<std::pair<int, int>> places;
  for (const std::string& page : pages) {
    show_page(page);
    for (const std::string& button : button_row(page)) places.insert({area_of(button).top, area_of(button).height});
  }
  EXPECT_EQ(1u, places.size());
}

TEST_F(Appearance, CloseAndHelpEndEachButtonRow) {
  edit_family("Athena");
  for (const std::string& page : pages) {
    Names row = button_row(page);
    EXPECT_EQ("Help", label(row[row.size() - 1])) << page;
    EXPECT_EQ("Close", label(row[row.size() - 2])) << page;
  }
}

TEST_F(Menus, ButtonsOfAllWindowsHaveAUsualWidth) {
  const int usual = area_of("family_selection.Help").width;
  for (const char* button : {"pageedit_selection.Apply", "pageedit_selection.Cancel", "pageedit_updateb",
                             "popupedit_selection.Apply", "popupedit_selection.Help", "popupedit_deletetb",
                             "open_fsb.OK", "familyinit_applyb", "error_messageb.Cancel"}) {
    EXPECT_GE(area_of(button).width, usual) << button;
  }
}

/// Where everything in a window stands.
std::map<std::string, std::vector<int>> places_in(Widget w, const std::string& path = "") {
  std::map<std::string, std::vector<int>> places;
  const Area area = area_of(w);
  if (!XmIsList(w)) places[path] = {area.left, area.top, area.width, area.height};
  if (path.ends_with("SW") || path.ends_with("status_line")) return places;  // of texts that share its width
  for (Widget child : children_of(w)) places.merge(places_in(child, path + "." + XtName(child)));
  return places;
}

/// What stands elsewhere than before.
Names moved(const std::map<std::string, std::vector<int>>& before, Widget w) {
  Names names;
  for (const auto& [path, place] : places_in(w)) {
    if (before.at(path) != place) names.push_back(path);
  }
  return names;
}

/// More names than a list shows, each longer than the list is wide.
void add_many(const std::string& box) {
  for (int i = 0; i < 20; ++i) {
    enter(box, std::string(150, 'w') + std::to_string(i));
    press_apply(box);
  }
}

TEST_F(Appearance, AddingAFamilyMovesNothing) {
  const auto before = places_in(main_shell());
  add_family("Second");
  EXPECT_EQ(Names(), moved(before, main_shell()));
  add_many("family_selection");
  EXPECT_EQ(Names(), moved(before, main_shell()));
}

TEST_F(Appearance, AddingAWidgetMovesNothing) {
  edit_family("Athena");
  const auto before = places_in(widget("entity_dialog"));
  for (const std::string box : {"widgetlist", "enumlist", "aliaslist", "converter"}) add_many(box + "_selection");
  EXPECT_EQ(Names(), moved(before, widget("entity_dialog")));
}

TEST_F(Appearance, AddingAResourceMovesNothing) {
  open_widget_editor();
  const auto before = places_in(widget("widgetedit_dialog"));
  for (int i = 0; i < 20; ++i) {
    enter("we_resource_t", std::string(150, 'r') + std::to_string(i));
    press("we_resource_upd_b");
  }
  EXPECT_EQ(Names(), moved(before, widget("widgetedit_dialog")));
}

class EmptyLists : public Session {
 protected:
  EmptyLists() { start(); }
};

TEST_F(EmptyLists, TheFirstFamilyMovesNothing) {
  const auto before = places_in(main_shell());
  add_family("First");
  EXPECT_EQ(Names(), moved(before, main_shell()));
}

TEST_F(EmptyLists, TheFirstNameOfAPageMovesNothing) {
  edit_family("First");
  edit_family("First");
  for (const std::string& page : pages) show_page(page);
  const auto before = places_in(widget("entity_dialog"));
  for (const std::string box : {"widgetlist", "enumlist", "aliaslist", "converter"}) {
    enter(box + "_selection", "first");
    press_apply(box + "_selection");
  }
  for (const std::string box : {"codeheaderlist", "confheaderlist", "familyheaderlist"}) {
    enter(box + "_selection", "first");
    press_ok(box + "_selection");
  }
  EXPECT_EQ(Names(), moved(before, widget("entity_dialog")));
}

}  // namespace
