#include <algorithm>
#include <cmath>
#include <map>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/pixels.h"
#include "gui/session.h"

#include <Xm/CutPaste.h>

using namespace vqc;

namespace {

const char two_families[] = "VQconfig\nfamily 'Athena' {\n}\nfamily 'Demo' {\n}\n";

class MainWindow : public Session {};

TEST_F(MainWindow, StartsEmptyWithThePlainTitle) {
  start();
  EXPECT_EQ("vqconfig", title());
  EXPECT_EQ(Items(), items("family_selection"));
  EXPECT_EQ("", text("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(MainWindow, ATypedNameIsAddedWithTheMouse) {
  start();
  click("family_selection.Text");
  type("Dial_Set");
  click("family_selection.Apply");
  EXPECT_EQ(Items{"Dial_Set"}, items("family_selection"));
  EXPECT_TRUE(dirty);
  EXPECT_FALSE(is_shown("entity_dialog"));
}

TEST_F(MainWindow, FieldsHaveTheKeysOfTheClipboard) {
  start();
  click("family_selection.Text");
  type("Dial");
  key("ctrl+a");
  key("ctrl+c");
  type("New");
  EXPECT_EQ("New", text("family_selection"));
  paste();
  EXPECT_EQ("NewDial", text("family_selection"));
  key("ctrl+a");
  key("ctrl+x");
  EXPECT_EQ("", text("family_selection"));
  paste();
  EXPECT_EQ("NewDial", text("family_selection"));
}

/// Another program's copy of a text.
void put_into_clipboard(std::string text) {
  Display* display = XtDisplay(main_shell());
  const Window window = XtWindow(main_shell());
  XmString label = XmStringCreateLocalized(const_cast<char*>("copied"));
  long item = 0;
  XmClipboardStartCopy(display, window, label, CurrentTime, nullptr, nullptr, &item);
  XmClipboardCopy(display, window, item, const_cast<char*>("STRING"), text.data(), text.size(), 0, nullptr);
  XmClipboardEndCopy(display, window, item);
  XmStringFree(label);
}

TEST_F(MainWindow, ATextThatIsTooLongToBeDrawnIsNotPasted) {
  start();
  click("family_selection.Text");
  put_into_clipboard(std::string(50000, 'n'));
  paste();
  EXPECT_EQ(std::string(50000, 'n'), text("family_selection"));
  key("ctrl+a");
  put_into_clipboard(std::string(300000, 'n'));
  paste();
  EXPECT_EQ(std::string(50000, 'n'), text("family_selection"));
}

TEST_F(MainWindow, NewFamiliesGoToTheEnd) {
  open_document(two_families);
  add_family("B");
  add_family("a");
  EXPECT_EQ((Items{"Athena", "Demo", "B", "a"}), items("family_selection"));
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc"}), saved_names("a", "page"));
}

TEST_F(MainWindow, AnExistingNameIsNotAddedAgain) {
  open_document(two_families);
  add_family("Demo");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(MainWindow, AnEmptyNameDoesNothing) {
  open_document(two_families);
  press_apply("family_selection");
  press_ok("family_selection");
  press_cancel("family_selection");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
  EXPECT_FALSE(is_shown("entity_dialog"));
}

TEST_F(MainWindow, ReturnOnANewNameAddsItAndOpensNothing) {
  start();
  click("family_selection.Text");
  type("New");
  key("Return");
  EXPECT_EQ(Items{"New"}, items("family_selection"));
  EXPECT_FALSE(is_shown("entity_dialog"));
}

TEST_F(MainWindow, EditOnASelectedFamilyOpensItsDialog) {
  open_document(two_families);
  click_item("family_selection", "Demo");
  EXPECT_EQ("Demo", text("family_selection"));
  click("family_selection.OK");
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_EQ(filled("family_title", "Demo"), title("entity_dialog"));
}

TEST_F(MainWindow, ReturnOnATypedFamilyOpensItsDialog) {
  open_document(two_families);
  click("family_selection.Text");
  type("Athena");
  key("Return");
  EXPECT_TRUE(is_shown("entity_dialog"));
  EXPECT_EQ(filled("family_title", "Athena"), title("entity_dialog"));
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
}

TEST_F(MainWindow, TheFirstFamilyBecomesCurrentAndLaterOnesDoNot) {
  start();
  add_family("First");
  add_family("Second");
  EXPECT_EQ(family_ptr("First"), family_getcurrent());
}

TEST_F(MainWindow, SelectingMakesAFamilyCurrent) {
  open_document(two_families);
  EXPECT_EQ(nullptr, family_getcurrent());
  click_item("family_selection", "Demo");
  EXPECT_EQ(family_ptr("Demo"), family_getcurrent());
  EXPECT_FALSE(dirty);
}

TEST_F(MainWindow, DeletingTheCurrentFamilyLeavesNoneCurrent) {
  open_document(two_families);
  edit_family("Demo");
  move_aside("entity_dialog");
  click_item("family_selection", "Demo");
  click("family_selection.Cancel");
  EXPECT_EQ(Items{"Athena"}, items("family_selection"));
  EXPECT_EQ("", text("family_selection"));
  EXPECT_EQ(nullptr, family_getcurrent());
  EXPECT_EQ(filled("family_title", nullptr), title("entity_dialog"));
  EXPECT_TRUE(dirty);
  EXPECT_EQ("", saved_item("family 'Demo'"));
}

TEST_F(MainWindow, DeletingAnotherFamilyKeepsTheCurrentOne) {
  open_document(two_families);
  edit_family("Demo");
  enter("family_selection", "Athena");
  press_cancel("family_selection");
  EXPECT_EQ(Items{"Demo"}, items("family_selection"));
  EXPECT_EQ("", text("family_selection"));
  EXPECT_EQ(family_ptr("Demo"), family_getcurrent());
  EXPECT_EQ(filled("family_title", "Demo"), title("entity_dialog"));
}

TEST_F(MainWindow, AnUnknownNameIsNotDeleted) {
  open_document(two_families);
  enter("family_selection", "demo");
  press_cancel("family_selection");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(MainWindow, DeletingAFamilyTakesWhatOnlyItUses) {
  open_document(
      "VQconfig\nwidget 'Shared' {\n}\nwidget 'Own' {\n}\n"
      "family 'A' {\nwidget='Own'\nwidget='Shared'\n}\nfamily 'B' {\nwidget='Shared'\n}\n");
  enter("family_selection", "A");
  press_cancel("family_selection");
  EXPECT_EQ("", saved_item("widget 'Own'"));
  EXPECT_EQ("widget 'Shared' {\n}\n", saved_item("widget 'Shared'"));
}

TEST_F(MainWindow, EscapeDeletesNothing) {
  open_document(two_families);
  click_item("family_selection", "Demo");
  click("family_selection.Text");
  key("Escape");
  EXPECT_EQ((Items{"Athena", "Demo"}), items("family_selection"));
  EXPECT_FALSE(dirty);
}

TEST_F(MainWindow, MenusStandInTheirOrder) {
  start({"-xrm", "*generateOptions: True"});
  EXPECT_EQ((Names{"family_file_cascade", "family_edit_cascade", "family_options_cascade", "family_generate_cascade",
                   "family_help_cascade"}),
            left_to_right({"family_help_cascade", "family_generate_cascade", "family_options_cascade",
                           "family_edit_cascade", "family_file_cascade"}));
}

TEST_F(MainWindow, FileItemsStandInTheirOrder) {
  start();
  click("family_file_cascade");
  EXPECT_EQ((Names{"family_newb", "family_openb", "family_readb", "family_saveb", "family_saveasb", "separator4",
                   "family_exitb"}),
            top_to_bottom({"family_exitb", "separator4", "family_saveasb", "family_saveb", "family_readb",
                           "family_openb", "family_newb"}));
  key("Escape");
}

TEST_F(MainWindow, OptionsMenuIsHiddenByDefault) {
  start();
  EXPECT_FALSE(is_viewable(widget("family_options_cascade")));
  EXPECT_TRUE(is_viewable(widget("family_generate_cascade")));
}

TEST_F(MainWindow, OptionsMenuIsShownWhenTheResourceSaysSo) {
  start({"-xrm", "VQconfig*generateOptions: True"});
  EXPECT_TRUE(is_viewable(widget("family_options_cascade")));
  choose_menu("family_options_cascade", "family_generate_options_b");
  EXPECT_TRUE(is_shown("options_shell"));
}

class AboutBox : public Session {
 protected:
  AboutBox() {
    start();
    choose_menu("family_help_cascade", "family_helpaboutb");
  }
};

TEST_F(AboutBox, TellsTheProgramAndItsVersion) {
  EXPECT_TRUE(is_shown("about_dialog"));
  EXPECT_EQ("About vqconfig", title("about_dialog"));
  EXPECT_EQ("vqconfig", label("about_name"));
  const std::string notice = label("about_version");
  const std::string last_line = notice.substr(notice.rfind('\n') + 1);
  EXPECT_TRUE(last_line.starts_with("Version ")) << last_line;
  EXPECT_EQ(2, std::count(last_line.begin(), last_line.end(), ' ')) << last_line;
  EXPECT_EQ(std::string::npos, notice.find('%'));
}

/// By how much a picture's letters lean: how far to the right a row stands for each row that it is higher, so that the
/// strokes of upright letters would stand on top of each other.
double lean_of(const Picture& letters) {
  const double ground = letters.background();
  double best = 0;
  double best_lean = 0;
  for (double lean = 0; lean < 0.4; lean += 0.02) {
    std::map<int, double> columns;
    for (int y = 0; y < letters.height(); ++y) {
      for (int x = 0; x < letters.width(); ++x) {
        columns[static_cast<int>(std::lround(x + lean * y))] += ground - letters.at(x, y);
      }
    }
    double sharpness = 0;
    for (const auto& [column, ink] : columns) sharpness += ink * ink;
    if (sharpness <= best) continue;
    best = sharpness;
    best_lean = lean;
  }
  return best_lean;
}

int height_of(const Picture& letters) {
  const std::vector<int> rows = letters.ink_in_rows();
  return static_cast<int>(rows.size()) - static_cast<int>(std::ranges::count(rows, 0));
}

/// How much ink letters have for their size.
double weight_of(const Picture& letters) {
  const double ground = letters.background();
  double ink = 0;
  for (int y = 0; y < letters.height(); ++y) {
    for (int x = 0; x < letters.width(); ++x) ink += ground - letters.at(x, y);
  }
  return ink / (ground * height_of(letters) * height_of(letters));
}

TEST_F(AboutBox, NamesTheProgramInLargeBoldObliqueLetters) {
  ASSERT_TRUE(is_shown("about_dialog"));
  move_aside("about_dialog");
  enter("family_selection", "vqconfig");
  settle();
  const Picture name("about_name");
  const Picture plain = Picture("family_selection.Text").inside(3);
  EXPECT_GT(height_of(name), 1.5 * height_of(plain));
  EXPECT_GT(weight_of(name), 1.2 * weight_of(plain));
  EXPECT_GT(lean_of(name), 0.1);
  EXPECT_LT(lean_of(plain), 0.1);
}

TEST_F(AboutBox, ItsButtonClosesIt) {
  ASSERT_TRUE(is_shown("about_dialog"));
  click("about_ok");
  EXPECT_FALSE(is_shown("about_dialog"));
}

TEST_F(AboutBox, ReturnClosesIt) {
  ASSERT_TRUE(has_keyboard("about_dialog"));
  key("Return");
  EXPECT_FALSE(is_shown("about_dialog"));
}

TEST_F(AboutBox, EscapeClosesIt) {
  ASSERT_TRUE(has_keyboard("about_dialog"));
  key("Escape");
  EXPECT_FALSE(is_shown("about_dialog"));
}

}  // namespace
