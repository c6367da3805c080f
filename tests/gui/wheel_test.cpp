#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/parts.h"

using namespace vqc;

namespace {

/// As many families as no window has room for.
std::string many_families() {
  std::string document = "VQconfig\n";
  for (int i = 0; i < 60; ++i) document += "family 'Family" + std::to_string(i) + "' {\n}\n";
  return document;
}

/// How far a scrolled window is scrolled.
int scrolled(const std::string& window, const char* which = XmNverticalScrollBar) {
  Widget bar = nullptr;
  int value = -1;
  XtVaGetValues(widget(window), which, &bar, nullptr);
  if (bar) XtVaGetValues(bar, XmNvalue, &value, nullptr);
  return value;
}

/// Turns the wheel down and up again over a place in a scrolled window.
void expect_scrolling(const std::string& window, Widget under_pointer, int x, int y) {
  const int before = scrolled(window);
  turn_wheel(under_pointer, x, y, WHEEL_DOWN);
  EXPECT_LT(before, scrolled(window)) << window << ", over " << XtName(under_pointer);
  turn_wheel(WHEEL_UP);
  EXPECT_EQ(before, scrolled(window)) << window << ", over " << XtName(under_pointer);
}

using Wheel = Session;

TEST_F(Wheel, ScrollsAListByThreeRows) {
  open_document(many_families());
  Widget list = list_in("family_selection");
  turn_wheel(list, 20, 20, WHEEL_DOWN);
  EXPECT_EQ(4, first_row("family_selection"));
  turn_wheel(list, 20, 20, WHEEL_DOWN);
  EXPECT_EQ(7, first_row("family_selection"));
  turn_wheel(list, 20, 20, WHEEL_UP);
  EXPECT_EQ(4, first_row("family_selection"));
}

TEST_F(Wheel, StopsAtTheEnds) {
  open_document(many_families());
  Widget list = list_in("family_selection");
  turn_wheel(list, 20, 20, WHEEL_UP);
  EXPECT_EQ(1, first_row("family_selection"));
  for (int turn = 0; turn < 30; ++turn) turn_wheel(list, 20, 20, WHEEL_DOWN);
  EXPECT_EQ(60, first_row("family_selection") + rows("family_selection") - 1);
}

TEST_F(Wheel, ScrollsAListOverItsBar) {
  open_document(many_families());
  expect_scrolling("*ItemsListSW", widget("*ItemsListSW.VertScrollBar"), 5, 30);
}

TEST_F(Wheel, SelectsNothing) {
  open_document(many_families());
  turn_wheel(list_in("family_selection"), 20, 20, WHEEL_DOWN);
  EXPECT_EQ(Items{}, selected("family_selection"));
  EXPECT_EQ("", text("family_selection"));
}

TEST_F(Wheel, ScrollsSidewaysByItsOtherButtonsAndWithShift) {
  std::string long_name(300, 'n');
  open_document("VQconfig\nfamily '" + long_name + "' {\n}\n");
  Widget list = list_in("family_selection");
  turn_wheel(list, 20, 20, WHEEL_RIGHT);
  const int once = scrolled("*ItemsListSW", XmNhorizontalScrollBar);
  EXPECT_LT(0, once);
  hold("shift", [&] { turn_wheel(list, 20, 20, WHEEL_DOWN); });
  EXPECT_EQ(2 * once, scrolled("*ItemsListSW", XmNhorizontalScrollBar));
  for (int turn = 0; turn < 2; ++turn) turn_wheel(list, 20, 20, WHEEL_LEFT);
  EXPECT_EQ(0, scrolled("*ItemsListSW", XmNhorizontalScrollBar));
}

TEST_F(Wheel, ScrollsTheFamiliesToGenerateOverTogglesAndBetweenThem) {
  open_document(many_families());
  press("family_genconfigb");
  expect_scrolling("gen_families", widget("toggleb"), 30, 5);
  expect_scrolling("gen_families", widget("gen_families.ClipWindow"), 300, 40);
  EXPECT_TRUE(is_set("toggleb"));
}

TEST_F(Wheel, ScrollsTheStopListOverTogglesAndBetweenThem) {
  start();
  press("family_stop_b");
  XtVaSetValues(widget("stop_list_shell"), XmNheight, 250, nullptr);
  settle();
  expect_scrolling("stop_list_scrolled_window", widget("stop_frame"), 30, 5);
  expect_scrolling("stop_list_scrolled_window", widget("stop_list_composites"), 1, 40);
  EXPECT_FALSE(is_set("stop_frame"));
}

TEST_F(Wheel, DoesNothingWhereNothingScrolls) {
  start();
  turn_wheel(widget("family_file_cascade"), 5, 5, WHEEL_DOWN);
  EXPECT_FALSE(is_viewable(widget("family_openb")));
  turn_wheel(list_in("family_selection"), 20, 20, WHEEL_DOWN);
  EXPECT_EQ(1, first_row("family_selection"));
}

}  // namespace
