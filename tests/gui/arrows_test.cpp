#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// What all lists with arrows have in common.

namespace {

struct Arrows {
  const char* subject;
  const char* box;
  const char* up;
  const char* down;
  const char* before;  // the document, up to the names
  const char* each;    // what stands before each name
  const char* after_each;
  const char* after;
  const char* view;  // the toggle that shows the list; null when it has a dialog of its own
};

void PrintTo(const Arrows& arrows, std::ostream* stream) { *stream << arrows.subject; }

const Arrows all_arrows[] = {
    {"families", "family_selection", "family_uparrow", "family_downarrow", "VQconfig\n", "family '", "' {\n}\n", "",
     nullptr},
    {"widgets", "widgetlist_selection", "widgetlist_uparrow", "widgetlist_downarrow", "VQconfig\nfamily 'F' {\n",
     "widget='", "'\n", "}\n", "entity_opt_widgets_t"},
    {"converters", "converter_selection", "converter_uparrow", "converter_downarrow", "VQconfig\nfamily 'F' {\n",
     "converter='", "'\n", "}\n", "entity_opt_converters_t"},
    {"family_headers", "familyheaderlist_selection", "familyheaderlist_uparrow", "familyheaderlist_downarrow",
     "VQconfig\nfamily 'F' {\n", "family_header='", "'\n", "}\n", "entity_opt_family_headers_t"},
    {"config_headers", "confheaderlist_selection", "confheaderlist_uparrow", "confheaderlist_downarrow",
     "VQconfig\nfamily 'F' {\n", "cheader='", "'\n", "}\n", "entity_opt_config_headers_t"},
    {"code_headers", "codeheaderlist_selection", "codeheaderlist_uparrow", "codeheaderlist_downarrow",
     "VQconfig\nfamily 'F' {\n", "header='", "'\n", "}\n", "entity_opt_code_headers_t"},
    {"entries", "enumedit_selection", "enumedit_uparrow", "enumedit_downarrow", "VQconfig\nenumeration 'E' {\n",
     "enumentry '", "' {\n}\n", "}\nfamily 'F' {\nenumeration='E'\n}\n", nullptr},
};

class ArrowList : public Session, public testing::WithParamInterface<Arrows> {
 protected:
  const Arrows& arrows() const { return GetParam(); }
  std::string box() const { return arrows().box; }
  Items shown() const { return items(box()); }

  /// A document with a list of these names, open where they can be moved.
  void edit(const Names& names) {
    std::string document = arrows().before;
    for (const std::string& name : names) document += arrows().each + name + arrows().after_each;
    open_document(document + arrows().after);
    if (box() == "family_selection") return;
    edit_family("F");
    ASSERT_TRUE(is_shown("entity_dialog"));
    if (box() == "enumedit_selection") {
      edit_enumeration("E");
      ASSERT_TRUE(is_shown("enumedit_dialog"));
    } else if (!is_set(arrows().view)) {
      choose_menu("entity_viewb", arrows().view);
    }
  }

  void expect_order(const Items& expected, const std::string& chosen_item) {
    EXPECT_EQ(expected, shown());
    EXPECT_EQ(Items{chosen_item}, selected(box()));
    EXPECT_FALSE(dirty);
    const std::string document = saved();
    std::size_t last = 0;
    for (const std::string& name : expected) {
      const std::size_t place = document.find("'" + name + "'", document.find(order_begins()));
      EXPECT_LT(last, place) << name;
      last = place;
    }
  }

  /// Where the order of the names can be read in a saved document.
  std::string order_begins() const {
    return arrows().view ? "family 'F'" : box() == "family_selection" ? "\nfamily '" : "enumeration 'E'";
  }
};

TEST_P(ArrowList, UpMovesTheSelectedNameOnePlaceUp) {
  edit({"n1", "n2", "n3"});
  click_item(box(), "n3");
  click(arrows().up);
  expect_order({"n1", "n3", "n2"}, "n3");
}

TEST_P(ArrowList, DownMovesTheSelectedNameOnePlaceDown) {
  edit({"n1", "n2", "n3"});
  click_item(box(), "n1");
  click(arrows().down);
  expect_order({"n2", "n1", "n3"}, "n1");
}

TEST_P(ArrowList, ANameCanBeMovedAllTheWay) {
  edit({"n1", "n2", "n3"});
  select(box(), "n1");
  press(arrows().down);
  press(arrows().down);
  press(arrows().down);
  expect_order({"n2", "n3", "n1"}, "n1");
}

TEST_P(ArrowList, TheFirstDoesNotMoveUp) {
  edit({"n1", "n2", "n3"});
  select(box(), "n1");
  press(arrows().up);
  expect_order({"n1", "n2", "n3"}, "n1");
}

TEST_P(ArrowList, TheLastDoesNotMoveDown) {
  edit({"n1", "n2", "n3"});
  select(box(), "n3");
  press(arrows().down);
  expect_order({"n1", "n2", "n3"}, "n3");
}

TEST_P(ArrowList, WithNothingSelectedNothingMoves) {
  edit({"n1", "n2"});
  press(arrows().up);
  press(arrows().down);
  EXPECT_EQ((Items{"n1", "n2"}), shown());
  EXPECT_FALSE(dirty);
}

TEST_P(ArrowList, TwoSelectedNamesDoNotMove) {
  edit({"n1", "n2", "n3"});
  select_too(box(), "n1");
  select_too(box(), "n2");
  press(arrows().down);
  press(arrows().up);
  EXPECT_EQ((Items{"n1", "n2", "n3"}), shown());
}

TEST_P(ArrowList, TheMovedNameStaysInView) {
  Names names;
  for (int i = 10; i < 60; ++i) names.push_back("n" + std::to_string(i));
  edit(names);
  const int in_view = rows(box());
  ASSERT_LT(in_view, 49);
  select(box(), names[static_cast<std::size_t>(in_view) - 1]);
  press(arrows().down);
  EXPECT_EQ(2, first_row(box()));
  select(box(), names[1]);
  press(arrows().up);
  EXPECT_EQ(1, first_row(box()));
  EXPECT_EQ(names[1], shown()[0]);
}

TEST_P(ArrowList, AMoveWithinTheViewDoesNotScroll) {
  Names names;
  for (int i = 10; i < 60; ++i) names.push_back("n" + std::to_string(i));
  edit(names);
  select(box(), "n12");
  press(arrows().down);
  press(arrows().up);
  press(arrows().up);
  EXPECT_EQ(1, first_row(box()));
}

INSTANTIATE_TEST_SUITE_P(Of, ArrowList, testing::ValuesIn(all_arrows),
                         [](const testing::TestParamInfo<Arrows>& row) { return std::string(row.param.subject); });

}  // namespace
