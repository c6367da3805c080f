#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// What the seven lists of a family's dialog have in common.

namespace {

struct Page {
  const char* module;   // what its widgets are called after
  const char* keyword;  // for its names, in a saved document
  const char* view;     // the toggle that shows it
  bool sorted;
  bool ok_adds;  // and there is no Apply
  const char* box;
  const char* quit;
};

void PrintTo(const Page& page, std::ostream* stream) { *stream << page.module; }

const Page pages[] = {
    {"widgetlist", "widget", "entity_opt_widgets_t", false, false, "widgetlist_selection", "widgetlist_quitb"},
    {"enumlist", "enumeration", "entity_opt_enums_t", true, false, "enumlist_selection", "enumlist_quitb"},
    {"aliaslist", "alias", "entity_opt_aliases_t", true, false, "aliaslist_selection", "aliaslist_quitb"},
    {"converter", "converter", "entity_opt_converters_t", true, false, "converter_selection", "converter_quitb"},
    {"familyheaderlist", "family_header", "entity_opt_family_headers_t", false, true, "familyheaderlist_selection",
     "familyheaderlist_quitb"},
    {"confheaderlist", "cheader", "entity_opt_config_headers_t", false, true, "confheaderlist_selection",
     "confheaderlist_quitb"},
    {"codeheaderlist", "header", "entity_opt_code_headers_t", false, true, "codeheaderlist_selection",
     "codeheaderlist_quitb"},
};

class ListPage : public Session, public testing::WithParamInterface<Page> {
 protected:
  const Page& page() const { return GetParam(); }
  std::string box() const { return page().box; }
  Items shown() const { return items(box()); }

  /// A family that lists these names, and another that lists none, with the first one's dialog open on the page.
  void edit(const Names& names = {}) {
    std::string document = "VQconfig\nfamily 'F' {\n";
    for (const std::string& name : names) document += std::string("\t") + page().keyword + "='" + name + "'\n";
    open_document(document + "}\nfamily 'Empty' {\n}\n");
    edit_family("F");
    ASSERT_TRUE(is_shown("entity_dialog"));
    if (!is_set(page().view)) choose_menu("entity_viewb", page().view);
  }

  void press_add() const { press(box() + (page().ok_adds ? ".OK" : ".Apply")); }
  void add(const std::string& name) const {
    enter(box(), name);
    press_add();
  }
  void remove(const std::string& name) const {
    enter(box(), name);
    press_cancel(box());
  }
  Names saved_list() const { return saved_names("F", page().keyword); }
};

TEST_P(ListPage, AddPutsANameAtItsPlace) {
  edit();
  for (const char* name : {"b", "a", "c", "B"}) add(name);
  const Items expected = page().sorted ? Items{"B", "a", "b", "c"} : Items{"b", "a", "c", "B"};
  EXPECT_EQ(expected, shown());
  EXPECT_TRUE(dirty);
  EXPECT_EQ(expected, saved_list());
}

TEST_P(ListPage, AddWithMouseAndKeyboard) {
  edit({"m"});
  click(box() + ".Text");
  type("Typed.h");
  click(box() + (page().ok_adds ? ".OK" : ".Apply"));
  EXPECT_EQ((page().sorted ? Items{"Typed.h", "m"} : Items{"m", "Typed.h"}), shown());
}

TEST_P(ListPage, ReturnOnANewNameAddsIt) {
  edit({"m"});
  click(box() + ".Text");
  type("a");
  key("Return");
  EXPECT_EQ((page().sorted ? Items{"a", "m"} : Items{"m", "a"}), shown());
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
  EXPECT_FALSE(is_shown("enumedit_dialog"));
}

TEST_P(ListPage, AddOfANameThatIsThereDoesNothing) {
  edit({"a", "b"});
  add("a");
  EXPECT_EQ((Items{"a", "b"}), shown());
  EXPECT_FALSE(dirty);
}

TEST_P(ListPage, NoNameDoesNothing) {
  edit({"a"});
  enter(box(), "");
  press_ok(box());
  press_cancel(box());
  press_add();
  EXPECT_EQ(Items{"a"}, shown());
  EXPECT_FALSE(dirty);
}

TEST_P(ListPage, NamesAreTakenAsTheyStand) {
  edit();
  for (const char* name : {" a ", "%s %n", "A", "a"}) add(name);
  EXPECT_EQ((Items{" a ", "%s %n", "A", "a"}), shown());
  EXPECT_EQ((Names{" a ", "%s %n", "A", "a"}), saved_list());
}

TEST_P(ListPage, DeleteTakesTheNameOut) {
  edit({"a", "b", "c"});
  click_item(box(), "b");
  EXPECT_EQ("b", text(box()));
  click(box() + ".Cancel");
  EXPECT_EQ((Items{"a", "c"}), shown());
  EXPECT_EQ("", text(box()));
  EXPECT_TRUE(dirty);
  EXPECT_EQ((Names{"a", "c"}), saved_list());
  EXPECT_EQ("", saved_item(std::string(page().keyword) + " 'b'"));
}

TEST_P(ListPage, DeleteOfAnUnknownNameDoesNothing) {
  edit({"a"});
  remove("A");
  EXPECT_EQ(Items{"a"}, shown());
  EXPECT_EQ("A", text(box()));
  EXPECT_FALSE(dirty);
}

TEST_P(ListPage, ANameCanBeDeletedAndAddedAgain) {
  edit({"a", "b"});
  remove("a");
  add("a");
  EXPECT_EQ((page().sorted ? Items{"a", "b"} : Items{"b", "a"}), shown());
}

TEST_P(ListPage, WithoutAFamilyNothingCanBeDone) {
  edit({"a"});
  press("family_newb");
  EXPECT_EQ(Items(), shown());
  EXPECT_EQ("", text(box()));
  EXPECT_EQ((std::vector<bool>{false, false, false}), buttons_sensitive(box()));
}

TEST_P(ListPage, AnEmptyFamilyCanBeFilled) {
  edit({"a"});
  press("family_newb");
  add_family("New");
  EXPECT_EQ(Items(), shown());
  EXPECT_EQ((std::vector<bool>{true, true, true}), buttons_sensitive(box()));
}

TEST_P(ListPage, AnotherFamilyShowsItsOwnNames) {
  edit({"a", "b"});
  enter(box(), "typed");
  select("family_selection", "Empty");
  EXPECT_EQ(Items(), shown());
  EXPECT_EQ("", text(box()));
  EXPECT_EQ((std::vector<bool>{true, true, true}), buttons_sensitive(box()));
  add("z");
  select("family_selection", "F");
  EXPECT_EQ((Items{"a", "b"}), shown());
  EXPECT_EQ((std::vector<bool>{true, true, true}), buttons_sensitive(box()));
}

TEST_P(ListPage, CloseHidesTheDialogAndKeepsEverything) {
  edit({"a"});
  click(page().quit);
  EXPECT_FALSE(is_shown("entity_dialog"));
  EXPECT_EQ(Items{"a"}, shown());
  EXPECT_FALSE(dirty);
}

TEST_P(ListPage, EscapeClosesAndDeletesNothing) {
  edit({"a"});
  click_item(box(), "a");
  click(box() + ".Text");
  key("Escape");
  EXPECT_FALSE(is_shown("entity_dialog"));
  EXPECT_EQ(Items{"a"}, shown());
  EXPECT_FALSE(dirty);
}

TEST_P(ListPage, AButtonThatDoesNothingIsNotShown) {
  edit();
  EXPECT_EQ(!page().ok_adds, is_viewable(widget(box() + ".Apply")));
  EXPECT_TRUE(is_viewable(widget(box() + ".OK")));
  EXPECT_TRUE(is_viewable(widget(box() + ".Cancel")));
  EXPECT_TRUE(is_viewable(widget(box() + ".Help")));
}

INSTANTIATE_TEST_SUITE_P(Of, ListPage, testing::ValuesIn(pages),
                         [](const testing::TestParamInfo<Page>& row) { return std::string(row.param.keyword); });

}  // namespace
