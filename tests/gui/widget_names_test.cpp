#include <gtest/gtest.h>

#include <X11/IntrinsicP.h>
#include <Xm/GadgetP.h>

#include <map>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "gui/widget_tables.h"

using namespace vqc;

// What resource files and drivers from outside rely on: the names of the widgets and what hangs on them.

namespace {

class WidgetNames : public EveryDialog {
 protected:
  WidgetNames() { open_every_dialog(); }

  static Names names_below(Widget w) {
    Names names;
    for (Widget child : children_of(w)) names.emplace_back(XtName(child));
    return names;
  }
};

TEST_F(WidgetNames, EveryWidgetHasItsClass) {
  for (const auto& [name, class_name, parent, callbacks] : promised_widgets()) {
    Widget w = find_widget(name);
    EXPECT_STREQ(class_name, w ? XtClass(w)->core_class.class_name : "no widget") << name;
  }
}

TEST_F(WidgetNames, EveryWidgetHasItsParent) {
  for (const auto& [name, class_name, parent, callbacks] : promised_widgets()) {
    if (!parent || !find_widget(name)) continue;
    const std::string actual = XtName(parent_of(find_widget(name)));
    EXPECT_EQ(parent, actual) << name;
  }
}

TEST_F(WidgetNames, EveryWidgetHasItsCallbacks) {
  for (const auto& [name, class_name, parent, callbacks] : promised_widgets()) {
    for (const char* list : callbacks) {
      Widget w = find_widget(name);
      EXPECT_TRUE(w && XtHasCallbacks(w, list) == XtCallbackHasSome) << name << "." << list;
    }
  }
}

TEST_F(WidgetNames, ListsOfNamesHaveTheirCallbacks) {
  for (const char* box : {"family_selection", "widgetlist_selection", "enumlist_selection", "aliaslist_selection",
                          "converter_selection", "enumedit_selection", "pageedit_selection", "popupedit_selection"}) {
    Widget list = widget(std::string(box) + "*ItemsList");
    EXPECT_EQ(XtCallbackHasSome, XtHasCallbacks(list, XmNbrowseSelectionCallback)) << box;
  }
}

TEST_F(WidgetNames, NoTwoSiblingsShareAName) {
  for (const auto& row : promised_widgets()) {
    if (!find_widget(row.name) || std::string(row.name) == "gen_toggles") continue;  // whose toggles are all "toggleb"
    std::map<std::string, int> seen;
    for (const std::string& name : names_below(find_widget(row.name))) ++seen[name];
    for (const auto& [name, times] : seen) EXPECT_EQ(1, times) << row.name << "." << name;
  }
}

TEST_F(WidgetNames, ANameStandsForOneWidget) {
  std::map<std::string, int> seen;
  for (const auto& row : promised_widgets()) ++seen[row.name];
  for (const auto& [name, times] : seen) EXPECT_EQ(1, times) << name;
}

TEST_F(WidgetNames, TheHelpCascadeIsTheMenuBarsHelp) {
  Widget help = nullptr;
  XtVaGetValues(widget("family_menubar"), XmNmenuHelpWidget, &help, nullptr);
  EXPECT_EQ(widget("family_help_cascade"), help);
}

TEST_F(WidgetNames, OptionButtonsCarryTheirValues) {
  for (const std::string direction : {"get", "set"}) {
    long value = 0;
    for (const std::string choice : {"default", "free", "dont"}) {
      XtPointer data = nullptr;
      XtVaGetValues(widget("widgetedit_" + direction + "_" + choice + "_b"), XmNuserData, &data, nullptr);
      EXPECT_EQ(value++, reinterpret_cast<long>(data)) << direction << " " << choice;
    }
  }
}

TEST_F(WidgetNames, TheMainShellIsOfTheProgramsClass) {
  EXPECT_TRUE(XtIsApplicationShell(main_shell()));
  String name = nullptr;
  String class_name = nullptr;
  XtGetApplicationNameAndClass(XtDisplay(main_shell()), &name, &class_name);
  EXPECT_STREQ("VQconfig", class_name);
}

TEST_F(WidgetNames, EveryHelpButtonAsksForItsTopic) {
  static std::string asked;
  session_hooks.help = [](Widget, const char* topic) { asked = topic; };
  for (const auto& [button, topic, page] : help_buttons()) {
    asked = "";
    press(button);
    EXPECT_EQ(topic, asked) << button;
  }
  asked = "";
  press("family_newb");
  EXPECT_EQ("", asked);
}

}  // namespace
