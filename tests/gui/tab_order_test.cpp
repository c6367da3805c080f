#include <gtest/gtest.h>

#include <Xm/RowColumn.h>

#include <algorithm>
#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/pixels.h"
#include "gui/session.h"
#include "gui/widget_tables.h"

using namespace vqc;

// Where the Tab key goes: through each window as it is read.

namespace {

/// A widget that Tab goes to, and where it stands. What stands in a row of its own counts as a whole.
struct Stop {
  Widget w;
  Area area;

  std::string name() const { return XtName(w); }
};

Stop stop_with_keyboard(Widget shell) {
  Widget w = XmGetFocusWidget(shell);
  if (!w) return {shell, area_of(shell)};
  return {w, area_of(XmIsRowColumn(XtParent(w)) ? XtParent(w) : w)};
}

/// The stops of a window from where the keyboard is until Tab comes back there.
std::vector<Stop> walk(Widget shell, const std::string& tab) {
  std::vector<Stop> stops = {stop_with_keyboard(shell)};
  for (int i = 0; i < 60; ++i) {
    key(tab);
    const Stop next = stop_with_keyboard(shell);
    if (next.w == stops[0].w) return stops;
    stops.push_back(next);
  }
  ADD_FAILURE() << "Tab does not come back to " << stops[0].name();
  return stops;
}

bool is_same_row(const Area& a, const Area& b) { return b.top < a.bottom() && a.top < b.bottom(); }

/// Whether a reader comes to `b` before `a`: it is above it in the same column, or left of it in the same row.
bool is_read_before(const Area& b, const Area& a) {
  const bool same_column = b.left < a.right() && a.left < b.right();
  return (same_column && b.bottom() <= a.top) || (is_same_row(a, b) && b.right() <= a.left);
}

/// In the row of what is highest, with what is leftmost.
void start_at_the_top(std::vector<Stop>& stops) {
  const Area top =
      std::ranges::min_element(stops, {}, [](const Stop& s) { return std::pair(s.area.top, s.area.left); })->area;
  const auto is_first = [&](const Stop& s) {
    return is_same_row(s.area, top) && std::ranges::none_of(stops, [&](const Stop& other) {
             return is_same_row(other.area, top) && is_read_before(other.area, s.area);
           });
  };
  std::ranges::rotate(stops, std::ranges::find_if(stops, is_first));
}

void expect_reading_order(std::vector<Stop> stops) {
  start_at_the_top(stops);
  for (std::size_t i = 0; i < stops.size(); ++i) {
    for (std::size_t j = i + 1; j < stops.size(); ++j) {
      EXPECT_FALSE(is_read_before(stops[j].area, stops[i].area))
          << stops[i].name() << " comes before " << stops[j].name();
    }
  }
}

class TabOrder : public Session {
 protected:
  TabOrder() {
    start({"-xrm", "VQconfig*generateOptions: True", folder.with("document.vqc", document)});
    has_keyboard(main_shell());
  }

  /// Walks a window both ways, which is up; it has as many stops as that.
  static void expect_reading_order_in(Widget shell, std::size_t count) {
    ASSERT_TRUE(has_keyboard(shell));
    const std::vector<Stop> forward = walk(shell, "Tab");
    EXPECT_EQ(count, forward.size());
    expect_reading_order(forward);
    std::vector<Stop> backward = walk(shell, "shift+Tab");
    ASSERT_EQ(forward.size(), backward.size());
    for (std::size_t i = 1; i < forward.size(); ++i) {
      EXPECT_EQ(forward[i].name(), backward[backward.size() - i].name());
    }
  }
  static void expect_reading_order_in(const std::string& shell, std::size_t count) {
    expect_reading_order_in(widget(shell), count);
  }

  static void open_widget_editor() {
    edit_family("F");
    edit_widget("W");
  }

  static constexpr char document[] = "VQconfig\nwidget 'W' {\n}\nfamily 'F' {\nwidget='W'\n}\n";
};

TEST_F(TabOrder, OfTheMainWindow) { expect_reading_order_in(main_shell(), 5); }

TEST_F(TabOrder, OfTheFileBoxes) {
  for (const std::string name : {"open", "read"}) {
    press("family_" + name + "b");
    expect_reading_order_in(name + "_dialog", 6);
    close(name + "_dialog");
  }
  press("family_saveasb");
  expect_reading_order_in("save_dialog", 6);
}

TEST_F(TabOrder, OfTheGenerateBox) {
  press("family_genconfigb");
  expect_reading_order_in("gen_dialog", 8);
}

TEST_F(TabOrder, OfTheOptions) {
  press("family_generate_options_b");
  expect_reading_order_in("options_shell", 16);
}

TEST_F(TabOrder, OfTheStopList) {
  press("family_stop_b");
  ASSERT_TRUE(has_keyboard("stop_list_shell"));
  const std::vector<Stop> stops = walk(widget("stop_list_shell"), "Tab");
  EXPECT_LE(4U, stops.size());  // the classes, and three buttons
  expect_reading_order(stops);
}

TEST_F(TabOrder, OfEachPageOfAFamily) {
  edit_family("F");
  const std::pair<const char*, std::size_t> pages[] = {
      {"aliases", 5},        {"converters", 10},    {"enums", 4},       {"code_headers", 5},
      {"config_headers", 5}, {"family_headers", 5}, {"family_init", 6}, {"widgets", 5}};
  for (const auto& [page, count] : pages) {
    SCOPED_TRACE(page);
    toggle(std::string("entity_opt_") + page + "_t", true);
    expect_reading_order_in("entity_dialog", count);
  }
}

TEST_F(TabOrder, OfTheEnumerationEditor) {
  edit_family("F");
  toggle("entity_opt_enums_t", true);
  enter("enumlist_selection", "E");
  press_apply("enumlist_selection");
  press_ok("enumlist_selection");
  expect_reading_order_in("enumedit_dialog", 8);
}

TEST_F(TabOrder, OfTheWidgetEditor) {
  open_widget_editor();
  expect_reading_order_in("widgetedit_dialog", 34);
}

TEST_F(TabOrder, OfThePagesAndPopups) {
  open_widget_editor();
  press("widgetedit_page_b");
  expect_reading_order_in("pageedit_dialog", 7);
  press("widgetedit_popup_b");
  expect_reading_order_in("popupedit_dialog", 8);
}

TEST_F(TabOrder, OfTheProblems) {
  press("family_problemsb");
  expect_reading_order_in("problems_dialog", 6);
}

TEST_F(TabOrder, OfTheTableOfResources) {
  press("family_resourcesb");
  expect_reading_order_in("resources_dialog", 17);
}

TEST_F(TabOrder, OfTheQuestions) {
  open_widget_editor();
  enter("we_resource_t", "r");
  press("widgetedit_closeb");
  expect_reading_order_in("resource_warn_dialog", 1);
}

}  // namespace
