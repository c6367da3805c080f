#include "gui/hands.h"

#include <cstdlib>

#include "gui/looks.h"
#include "support/windows.h"
#include "vqc/cmd/editors/kit/beside.h"
#include "vqc/cmd/editors/kit/placement.h"
#include "vqc/cmd/editors/kit/window_memory.h"

using namespace vqc;

namespace vqc::editors {
static void PrintTo(const ScreenArea& area, std::ostream* out) { *out << geometry_of(area); }
}  // namespace vqc::editors

using namespace vqc::editors;

namespace {

ScreenArea area_of(Window window) {
  XWindowAttributes attributes{};
  XGetWindowAttributes(display, window, &attributes);
  ScreenArea area{0, 0, attributes.width, attributes.height};
  Window child = None;
  XTranslateCoordinates(display, window, attributes.root, 0, 0, &area.x, &area.y, &child);
  return area;
}

ScreenArea inside(const std::string& shell) { return area_of(XtWindow(widget(shell))); }
ScreenArea frame(Widget shell) { return area_of(frame_of(display, XtWindow(shell))); }
ScreenArea frame(const std::string& shell) { return frame(widget(shell)); }

/// The list of a window, with its bars.
ScreenArea list_of(const std::string& box) { return area_of(XtWindow(XtParent(widget(box + "*ItemsList")))); }

ScreenArea screen() { return {0, 0, DisplayWidth(display, 0), DisplayHeight(display, 0)}; }
bool is_in(const ScreenArea& inner, const ScreenArea& outer) {
  return overlap(inner, outer) == long{inner.width} * inner.height;
}

/// Moves and resizes a window as the user does: not through the toolkit. (While he drags it, the window manager keeps
/// the server from all others, this test among them.)
void move(Widget shell, int by_x, int by_y) {
  const ScreenArea around = frame(shell);
  XMoveWindow(display, XtWindow(shell), around.x + by_x, around.y + by_y);
  wait_for([&] { return frame(shell).x == around.x + by_x && frame(shell).y == around.y + by_y; });
  settle();
}
void resize(Widget shell, int by_x, int by_y) {
  const ScreenArea before = area_of(XtWindow(shell));
  XResizeWindow(display, XtWindow(shell), static_cast<unsigned>(before.width + by_x),
                static_cast<unsigned>(before.height + by_y));
  wait_for([&] { return area_of(XtWindow(shell)) != before; });
  settle();
}

class Placement : public Session {
 protected:
  Placement() { setenv("XDG_STATE_HOME", folder.path().c_str(), 1); }

  std::string memory() const { return read_file(folder / "vqconfig/windows"); }

  void remember(const std::string& lines) const {
    std::filesystem::create_directory(folder / "vqconfig");
    folder.with("vqconfig/windows", lines);
  }

  /// Starts, and opens the family window on a family with a widget, and the widget's window.
  void open_widget() {
    start();
    add_family("F");
    edit_family("F");
    enter("widgetlist_selection", "W");
    press_apply("widgetlist_selection");
    click("widgetlist_selection.OK");
    ASSERT_TRUE(is_shown("widgetedit_dialog"));
  }

  /// Opens the family window by a click.
  void open_family() {
    click("family_selection.OK");
    ASSERT_TRUE(is_shown("entity_dialog"));
  }

  void start_with_family() {
    start();
    add_family("F");
    enter("family_selection", "F");
  }
};

TEST_F(Placement, OpensAWindowBesideTheOneItBelongsTo) {
  start_with_family();
  open_family();
  EXPECT_EQ(0, overlap(frame(main_shell()), frame("entity_dialog")));
  EXPECT_TRUE(is_in(frame("entity_dialog"), screen()));
}

TEST_F(Placement, OpensItOnTheOtherSideWhereThereIsRoom) {
  start_with_family();
  move(main_shell(), 1000, 100);
  open_family();
  EXPECT_EQ(0, overlap(frame(main_shell()), frame("entity_dialog")));
  EXPECT_GE(frame(main_shell()).x, frame("entity_dialog").right());
}

TEST_F(Placement, LeavesTitleAndListInSightWhereThereIsNoRoom) {
  open_widget();
  const ScreenArea family = frame("entity_dialog");
  const ScreenArea editor = frame("widgetedit_dialog");
  EXPECT_EQ(0, overlap(editor, {family.x, family.y, family.width, inside("entity_dialog").y - family.y}));
  EXPECT_EQ(0, overlap(editor, list_of("widgetlist_selection")));
  EXPECT_TRUE(is_in(editor, screen()));
}

TEST_F(Placement, OpensAPickerOverTheWindowThatAskedForIt) {
  open_widget();
  click("widgetedit_popup_b");
  ASSERT_TRUE(is_shown("popupedit_dialog"));
  EXPECT_TRUE(is_in(frame("popupedit_dialog"), frame("widgetedit_dialog")));
}

TEST_F(Placement, OpensAQuestionOverTheWindowThatCausedIt) {
  start_with_family();
  move(main_shell(), 700, 500);
  choose_menu("family_file_cascade", "family_newb");
  ASSERT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_TRUE(is_in(frame("savechanges_dialog"), frame(main_shell())));
}

TEST_F(Placement, OpensAMessageOverTheMainWindowWhenItsCauseHasGone) {
  start();
  choose_menu("family_file_cascade", "family_openb");
  ASSERT_TRUE(is_shown("open_dialog"));
  enter("open_fsb", folder / "none.vqc");
  click("open_fsb.OK");
  ASSERT_TRUE(is_shown("error_dialog"));
  EXPECT_FALSE(is_shown("open_dialog"));
  const ScreenArea message = frame("error_dialog");
  const ScreenArea main = frame(main_shell());
  EXPECT_NEAR(main.x + main.width / 2, message.x + message.width / 2, 1);
}

TEST_F(Placement, OpensAWindowAgainWhereItWasLeft) {
  start_with_family();
  open_family();
  move(widget("entity_dialog"), 130, 240);
  const ScreenArea left = inside("entity_dialog");
  for (int time = 0; time < 3; ++time) {
    close("entity_dialog");
    open_family();
    EXPECT_EQ(left, inside("entity_dialog"));
  }
}

TEST_F(Placement, OpensAWindowAgainAsLargeAsItWasLeft) {
  start_with_family();
  open_family();
  const ScreenArea before = inside("entity_dialog");
  resize(widget("entity_dialog"), 80, 60);
  const ScreenArea left = inside("entity_dialog");
  ASSERT_LT(before.width, left.width);
  for (int time = 0; time < 3; ++time) {
    close("entity_dialog");
    open_family();
    EXPECT_EQ(left, inside("entity_dialog"));
  }
}

TEST_F(Placement, PlacesAWindowThatNobodyMovedByItsOwnerAnew) {
  start_with_family();
  open_family();
  close("entity_dialog");
  move(main_shell(), 1000, 100);
  open_family();
  EXPECT_GE(frame(main_shell()).x, frame("entity_dialog").right());
}

TEST_F(Placement, RemembersNothingThatTheUserHasNotDone) {
  open_widget();
  keep_places();
  EXPECT_FALSE(std::filesystem::exists(folder / "vqconfig/windows"));
}

TEST_F(Placement, KeepsMovedAndResizedWindowsBesideThoseOfOtherDisplays) {
  remember("800x600 entity_dialog +1+2\n1600x1200 about_dialog +3+4\n");
  start_with_family();
  open_family();
  move(main_shell(), 30, 40);
  const ScreenArea main = frame(main_shell());
  resize(widget("entity_dialog"), 50, 50);
  const ScreenArea family = inside("entity_dialog");
  close("entity_dialog");
  keep_places();
  EXPECT_EQ("1600x1200 about_dialog +3+4\n1600x1200 entity_dialog " + std::to_string(family.width) + "x" +
                std::to_string(family.height) + "+" + std::to_string(frame("entity_dialog").x) +
                "+0\n1600x1200 main_window +" + std::to_string(main.x) + "+" + std::to_string(main.y) +
                "\n800x600 entity_dialog +1+2\n",
            memory());
}

TEST_F(Placement, RecallsTheNextTime) {
  remember("1600x1200 main_window 600x500+200+300\n1600x1200 entity_dialog 700x600+850+120\n");
  start_with_family();
  EXPECT_EQ((ScreenArea{200, 300, frame(main_shell()).width, frame(main_shell()).height}), frame(main_shell()));
  EXPECT_EQ(600, area_of(XtWindow(main_shell())).width);
  EXPECT_EQ(500, area_of(XtWindow(main_shell())).height);
  open_family();
  EXPECT_EQ(850, frame("entity_dialog").x);
  EXPECT_EQ(120, frame("entity_dialog").y);
  EXPECT_EQ(700, inside("entity_dialog").width);
  EXPECT_EQ(600, inside("entity_dialog").height);
}

TEST_F(Placement, DoesNotDriftFromSessionToSession) {
  const std::string before = "1600x1200 entity_dialog 700x600+850+120\n1600x1200 main_window 600x500+200+300\n";
  remember(before);
  start_with_family();
  open_family();
  for (Widget shell : {main_shell(), widget("entity_dialog")}) {
    move(shell, 20, 10);
    move(shell, -20, -10);
  }
  close("entity_dialog");
  keep_places();
  EXPECT_EQ(before, memory());
}

TEST_F(Placement, ObeysAGeometryOfTheCommandLine) {
  remember("1600x1200 main_window 600x500+200+300\n");
  start({"-geometry", "+400+50"});
  EXPECT_EQ(400, frame(main_shell()).x);
  EXPECT_EQ(50, frame(main_shell()).y);
}

TEST_F(Placement, IgnoresWhatMakesNoSense) {
  for (const char* lines :
       {"1600x1200 entity_dialog +1600+0\n", "1600x1200 entity_dialog +0+1199\n", "1600x1200 entity_dialog +0+-300\n",
        "1600x1200 entity_dialog 9000x10+0+0\n", "1600x1200 entity_dialog 480x495\n", "1600x1200 entity_dialog\n",
        "1600x1200 entity_dialog 99999999999999x5+1+1\n", "640x480 entity_dialog +1+1\n", "\n\n", "nonsense",
        "\xFF\xFE"}) {
    remember(lines);
    EXPECT_EQ(WindowMemory{}, recalled_windows({0, 0, 1600, 1200})) << lines;
  }
}

TEST_F(Placement, OpensNoWindowSmallerThanItsLeastSize) {
  remember("1600x1200 entity_dialog 1x1+100+100\n");
  start();
  add_family("F");
  open_family();
  int least_width = 0;
  int least_height = 0;
  XtVaGetValues(widget("entity_dialog"), XmNminWidth, &least_width, XmNminHeight, &least_height, nullptr);
  EXPECT_EQ(least_width, inside("entity_dialog").width);
  EXPECT_EQ(least_height, inside("entity_dialog").height);
}

TEST_F(Placement, RecallsALargeMainWindowAndItsLeastSize) {
  remember("1600x1200 main_window 900x800+20+20\n");
  start();
  settle();
  EXPECT_EQ(900, area_of(XtWindow(main_shell())).width);
  EXPECT_EQ(800, area_of(XtWindow(main_shell())).height);
  int least_width = 0;
  XtVaGetValues(main_shell(), XmNminWidth, &least_width, nullptr);
  EXPECT_GT(900, least_width);
}

TEST_F(Placement, EndsWhereWindowsHaveOpenedEachOther) {
  start();
  key("ctrl+o");
  ASSERT_TRUE(has_keyboard("open_dialog"));
  key("ctrl+s");
  ASSERT_TRUE(has_keyboard("save_dialog"));
  press("open_fsb.Cancel");
  key("ctrl+o");
  ASSERT_TRUE(has_keyboard("open_dialog"));
  press("open_fsb.Cancel");
  choose_file("save_fsb", folder / "missing/a.vqc");
  EXPECT_NE("", error_shown());
}

TEST_F(Placement, SaysNothingWhenItCannotKeepAnything) {
  folder.with("file", "");
  setenv("XDG_STATE_HOME", (folder / "file").c_str(), 1);
  keep_windows({0, 0, 1600, 1200}, {{"main_window", {1, 2, 3, 4}}});
  EXPECT_EQ("", read_file(folder / "file"));
}

TEST_F(Placement, KeepsBelowTheHomeFolderByDefault) {
  unsetenv("XDG_STATE_HOME");
  setenv("HOME", folder.path().c_str(), 1);
  keep_windows({0, 0, 1600, 1200}, {{"main_window", {-10, 2, 30, 40}}});
  EXPECT_EQ("1600x1200 main_window 30x40+-10+2\n", read_file(folder / ".local/state/vqconfig/windows"));
  EXPECT_EQ((WindowMemory{{"main_window", {-10, 2, 30, 40}}}), recalled_windows({0, 0, 1600, 1200}));
}

}  // namespace
