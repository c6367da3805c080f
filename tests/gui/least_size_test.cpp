#include "gui/hands.h"

// After gtest's headers.
#include <X11/IntrinsicP.h>
#include <X11/RectObjP.h>

#include "gui/looks.h"
#include "support/windows.h"

using namespace vqc;

namespace {

struct Size {
  int width = 0;
  int height = 0;
};

Size size_of(Widget w) {
  XWindowAttributes attributes{};
  XGetWindowAttributes(display, XtWindow(w), &attributes);
  return {attributes.width, attributes.height};
}

/// Makes a window as small as the window manager lets it be.
Size shrink(Widget shell) {
  const Size before = size_of(shell);
  XResizeWindow(display, XtWindow(shell), 1, 1);
  wait_for([&] { return size_of(shell).height != before.height; }, 1);
  settle();
  return size_of(shell);
}

/// Whether the whole of a widget lies in its window.
bool is_whole(const std::string& name) {
  Widget w = widget(name);
  Position x = 0;
  Position y = 0;
  Position shell_x = 0;
  Position shell_y = 0;
  XtTranslateCoords(w, 0, 0, &x, &y);
  XtTranslateCoords(shell_around(w), 0, 0, &shell_x, &shell_y);
  const auto& area = reinterpret_cast<RectObj>(w)->rectangle;
  const Size window = size_of(shell_around(w));
  return is_viewable(w) && x >= shell_x && y >= shell_y && x + area.width <= shell_x + window.width &&
         y + area.height <= shell_y + window.height;
}

using LeastSize = Session;

TEST_F(LeastSize, OfTheMainWindowLeavesButtonsFieldAndThreeRows) {
  start();
  const Size before = size_of(main_shell());
  EXPECT_LT(shrink(main_shell()).height, before.height);
  for (const char* part : {"family_selection.OK", "family_selection.Cancel", "family_selection.Apply",
                           "family_selection.Help", "family_selection.Text", "family_uparrow", "family_help_cascade"}) {
    EXPECT_TRUE(is_whole(part)) << part;
  }
  EXPECT_LE(2, rows("family_selection"));
  EXPECT_GE(3, rows("family_selection"));
}

TEST_F(LeastSize, OfTheFamilyWindowLeavesEachPageUsable) {
  start();
  add_family("F");
  edit_family("F");
  shrink(widget("entity_dialog"));
  for (const char* page : {"widgetlist_selection", "aliaslist_selection", "codeheaderlist_selection"}) {
    const std::string box = page;
    if (box != "widgetlist_selection") {
      toggle(box == "aliaslist_selection" ? "entity_opt_aliases_t" : "entity_opt_code_headers_t", true);
    }
    EXPECT_TRUE(is_whole(box + ".Text")) << page;
    EXPECT_TRUE(is_whole(box + ".OK")) << page;
    EXPECT_TRUE(is_whole(box + ".Help")) << page;
  }
}

TEST_F(LeastSize, OfTheWidgetEditorIsThatOfItsFields) {
  start();
  add_family("F");
  edit_family("F");
  enter("widgetlist_selection", "W");
  press_apply("widgetlist_selection");
  press_ok("widgetlist_selection");
  shrink(widget("widgetedit_dialog"));
  for (const char* part : {"widgetedit_include_filename", "widgetedit_d_help_tag", "we_resource_t", "we_resource_del_b",
                           "widgetedit_applyb", "widgetedit_helpb"}) {
    EXPECT_TRUE(is_whole(part)) << part;
  }
}

TEST_F(LeastSize, OfFileBoxesLeavesTheirButtonsAndFields) {
  start();
  press("family_saveasb");
  const Size before = size_of(widget("save_dialog"));
  EXPECT_LT(shrink(widget("save_dialog")).height, before.height);
  for (const char* part : {"save_fsb.OK", "save_fsb.Cancel", "save_fsb.Help", "save_fsb.Text"}) {
    EXPECT_TRUE(is_whole(part)) << part;
  }
}

TEST_F(LeastSize, OfTheStopListLeavesItsButtonsAndThreeRows) {
  start();
  press("family_stop_b");
  const Size before = size_of(widget("stop_list_shell"));
  EXPECT_LT(shrink(widget("stop_list_shell")).height, before.height);
  for (const char* part : {"stop_list_apply", "stop_list_close", "stop_list_help", "stop_menu_bar"}) {
    EXPECT_TRUE(is_whole(part)) << part;
  }
}

TEST_F(LeastSize, OfAQuestionIsThatOfItsText) {
  start();
  add_family("F");
  press("family_newb");
  const Size before = size_of(widget("savechanges_dialog"));
  EXPECT_EQ(before.height, shrink(widget("savechanges_dialog")).height);
  EXPECT_TRUE(is_whole("savechanges_dialog*Cancel"));
}

}  // namespace
