#include <sstream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/outside.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\n"
    "widget 'Dial' { resource_definitions='face', , 'look', True, 'hand', 'hand_popup', 'look', True,"
    " 'value', , 'settings', False; }\n"
    "widget 'Knob' { resource_definitions='face', , 'look', True; }\n"
    "widget 'Lamp' { }\n"
    "family 'Clocks' { widget='Dial' widget='Lamp' page='look' }\n"
    "family 'Buttons' { widget='Knob' }\n";

class ResourceWindow : public Session {
 protected:
  explicit ResourceWindow(const std::string& text = document) {
    open_document(text);
    turn_to(main_shell());
    key("ctrl+t");
    if (!has_keyboard("resources_dialog")) ADD_FAILURE() << "no window";
  }

  /// The words of each row that can be seen, without the heading.
  static std::vector<std::vector<std::string>> rows() {
    std::vector<std::vector<std::string>> rows;
    for (const std::string& item : items("resources_list")) {
      std::istringstream words(item);
      rows.emplace_back(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>());
    }
    rows.erase(rows.begin());
    return rows;
  }
  /// The widget and the resource of each row that can be seen, and what a third word of it says.
  static Items names(std::size_t words = 2) {
    Items names;
    for (const auto& row : rows()) {
      std::string name = row[0];
      for (std::size_t i = 1; i < words; ++i) name += " " + row[i];
      names.push_back(name);
    }
    return names;
  }
  /// The same of the rows that are selected.
  static Items chosen_rows() {
    Items names;
    for (const std::string& item : selected("resources_list")) {
      std::istringstream words(item);
      std::string widget_name;
      std::string name;
      words >> widget_name >> name;
      names.push_back(widget_name + " " + name);
    }
    return names;
  }
  /// Below the heading, counted from 1.
  static void click_on_row(int row) { click_row("resources_list", row + 1); }
  static void choose_rows(int first, int last) {
    click_on_row(first);
    hold("shift", [last] { click_on_row(last); });
  }
  static void set(const std::string& column, const std::string& value) {
    choose_option("resources_value_opt", "resources_value_menu_" + column);
    enter("resources_value", value);
    press("resources_setb");
  }
  /// The pages that a family has beside those of each.
  static Items own_pages(const std::string& family) {
    Items pages = saved_names(family, "page");
    for (const Text predefined : predefined_pages) std::erase(pages, predefined.view());
    return pages;
  }
  static void expect_rows(const Items& expected) {
    wait_for([&] { return names() == expected; });
    EXPECT_EQ(expected, names());
  }
};

TEST_F(ResourceWindow, ShowsTheResourcesOfTheDocumentBelowAHeading) {
  EXPECT_EQ(0U, items("resources_list")[0].find("Widget class"));
  ASSERT_EQ(4U, rows().size());
  EXPECT_EQ((std::vector<std::string>{"Dial", "face", "look", "True", "VQC_FREE_DEFAULT", "VQC_FREE_DEFAULT"}),
            rows()[0]);
  EXPECT_EQ(
      (std::vector<std::string>{"Dial", "hand", "look", "hand_popup", "True", "VQC_FREE_DEFAULT", "VQC_FREE_DEFAULT"}),
      rows()[1]);
  EXPECT_EQ("4 of 4 resources", label("resources_found"));
  EXPECT_NE(std::string::npos, so("resources_form").find("4 in the list")) << "the heading is no row";
}

TEST_F(ResourceWindow, OfAFamilyShowsThoseOfItsWidgets) {
  edit_family("Buttons");
  press("entity_resourcesb");
  EXPECT_EQ("Buttons", text("resources_family"));
  expect_rows({"Knob face"});
  enter("resources_family", "Cl");
  expect_rows({});
  enter("resources_family", "Clocks");
  expect_rows({"Dial face", "Dial hand", "Dial value"});
  enter("resources_family", "");
  EXPECT_EQ("4 of 4 resources", label("resources_found"));
}

TEST_F(ResourceWindow, ShowsWhatMatchesInAColumn) {
  choose_option("resources_filter_opt", "resources_filter_menu_name");
  click("resources_filter");
  type("fac");
  expect_rows({"Dial face", "Knob face"});
  EXPECT_EQ("2 of 4 resources", label("resources_found"));
  choose_option("resources_filter_opt", "resources_filter_menu_page");
  expect_rows({});
  enter("resources_filter", "sett");
  expect_rows({"Dial value"});
}

TEST_F(ResourceWindow, SortsByAColumn) {
  choose_option("resources_sort_opt", "resources_sort_menu_name");
  expect_rows({"Dial face", "Knob face", "Dial hand", "Dial value"});
  click("resources_descending");
  expect_rows({"Dial value", "Dial hand", "Dial face", "Knob face"});
}

TEST_F(ResourceWindow, SetsAColumnOfSeveralRowsInOneStep) {
  const std::string before = saved();
  click_on_row(1);
  hold("ctrl", [] { click_on_row(4); });
  EXPECT_EQ((Items{"Dial face", "Knob face"}), chosen_rows());
  EXPECT_EQ("Rows selected: 2", said("resources_form"));
  set("page", "other");
  EXPECT_EQ("2 resources changed", said("resources_form"));
  EXPECT_TRUE(wait_for([] {
    return names(3) == Items{"Dial face other", "Dial hand look", "Dial value settings", "Knob face other"};
  }));
  EXPECT_EQ((Items{"Dial face", "Knob face"}), chosen_rows()) << "they stay selected";
  EXPECT_EQ((Items{"look", "other"}), own_pages("Clocks"));
  EXPECT_EQ(Items{"other"}, own_pages("Buttons"));
  EXPECT_EQ("Undo Set Page of 2 Resources", label("family_undob"));
  press("family_undob");
  EXPECT_EQ(before, saved());
  EXPECT_TRUE(wait_for([] { return names(3)[0] == "Dial face look"; }));
}

TEST_F(ResourceWindow, SetsEachColumn) {
  choose_rows(1, 3);
  const std::pair<const char*, const char*> values[] = {{"popup", "dialog"},           {"counter", "many"},
                                                        {"visible", "False"},          {"free_get", "VQC_FREE"},
                                                        {"free_set", "VQC_DONT_FREE"}, {"access", "create get"}};
  for (const auto& [column, value] : values) set(column, value);
  EXPECT_NE(std::string::npos,
            saved_item("widget 'Dial'")
                .find("'face', 'dialog', 'look', False, VQC_FREE, VQC_DONT_FREE access 3 counter 'many'"));
  EXPECT_EQ(std::string::npos, saved_item("widget 'Knob'").find("dialog"));
}

TEST_F(ResourceWindow, RefusesWhatIsNoValue) {
  const std::string before = saved();
  set("page", "other");
  EXPECT_EQ(resource_text("resources_unselected"), said("resources_form"));
  choose_rows(1, 2);
  set("visible", "yes");
  EXPECT_EQ("Visible cannot be \"yes\": Down shows what it can be", said("resources_form"));
  set("visible", "True");
  EXPECT_EQ(resource_text("resources_same"), said("resources_form"));
  EXPECT_EQ(before, saved());
  EXPECT_FALSE(is_sensitive("family_undob"));
}

TEST_F(ResourceWindow, CompletesTheValueFromWhatTheColumnCanBe) {
  click_on_row(1);
  choose_option("resources_value_opt", "resources_value_menu_free_get");
  click("resources_value");
  key("Down");
  EXPECT_EQ((Items{"VQC_FREE_DEFAULT", "VQC_FREE", "VQC_DONT_FREE"}), items("dropdown_list"));
  key("Down");
  key("Return");
  EXPECT_EQ("VQC_FREE", text("resources_value"));
  key("Return");
  EXPECT_EQ("1 resource changed", said("resources_form"));
}

TEST_F(ResourceWindow, CopiesRowsToOtherWidgets) {
  choose_rows(1, 2);
  click("resources_targets");
  type("Knob La");
  key("Down");
  EXPECT_EQ(Items{"Lamp"}, items("dropdown_list")) << "the last word is completed";
  key("Return");
  EXPECT_EQ("Knob Lamp", text("resources_targets"));
  key("Return");
  EXPECT_EQ("3 resources more", said("resources_form")) << "Knob has this face already";
  expect_rows({"Dial face", "Dial hand", "Dial value", "Knob face", "Knob hand", "Lamp face", "Lamp hand"});
  EXPECT_EQ((Items{"Dial face", "Dial hand"}), chosen_rows());
  EXPECT_EQ("Undo Copy 2 Resources", label("family_undob"));
  EXPECT_EQ(Items{"look"}, own_pages("Buttons"));
  enter("resources_targets", "Knob Piano");
  press("resources_copytob");
  EXPECT_EQ("There is no widget class Piano", said("resources_form"));
  enter("resources_targets", "");
  press("resources_copytob");
  EXPECT_EQ(resource_text("resources_no_target"), said("resources_form"));
}

TEST_F(ResourceWindow, CopiesAndPastesText) {
  const std::string before = saved();
  click_on_row(3);
  key("ctrl+a");
  EXPECT_EQ("Rows selected: 4", said("resources_form"));
  key("ctrl+c");
  EXPECT_EQ("Copied as text, rows: 4", said("resources_form"));
  set("page", "other");
  click_on_row(1);
  key("ctrl+v");
  ASSERT_TRUE(wait_for([] { return label("family_undob") == "Undo Paste Resources"; }));
  EXPECT_EQ("4 resources changed", said("resources_form"));
  EXPECT_EQ(saved_item("widget 'Dial'"),
            before.substr(before.find("widget 'Dial'"), saved_item("widget 'Dial'").size()));
}

TEST_F(ResourceWindow, TakesATextOfAnotherProgramOrSaysWhyNot) {
  const auto paste = [](const char* copied, const std::string& expected) {
    copy_as_old_program(copied);
    press("resources_pasteb");
    EXPECT_TRUE(wait_for([&] { return said("resources_form") == expected; })) << said("resources_form");
  };
  press("resources_pasteb");
  EXPECT_TRUE(wait_for([&] { return said("resources_form") == "There is no text on the clipboard"; }));
  paste("widget\tname\tcolour\n", "Nothing pasted: line 1 names a column \"colour\", which is not there");
  paste("widget\tname\tpage\nPiano\tkey\tkeys\nDial\t\tkeys\n",
        "Nothing pasted: line 2 names a widget class Piano, which is not there; and 1 more");
  EXPECT_FALSE(is_sensitive("family_undob"));
  paste("widget\tname\tpage\r\nLamp\tlight\tlook\r\nKnob\tface\tknobs\r\n", "1 resource more, 1 resource changed");
  EXPECT_NE(std::string::npos, saved_item("widget 'Lamp'").find("'light', , 'look'"));
  EXPECT_EQ(Items{"knobs"}, own_pages("Buttons"));
}

TEST_F(ResourceWindow, HandsItsTextToFieldsAndOtherPrograms) {
  choose_option("resources_filter_opt", "resources_filter_menu_widget");
  enter("resources_filter", "knob");
  click_on_row(1);
  press("resources_copyb");
  EXPECT_EQ(
      "widget\tname\tpage\tpopup\tcounter\tvisible\tfree_get\tfree_set\taccess\n"
      "Knob\tface\tlook\t\t\tTrue\tVQC_FREE_DEFAULT\tVQC_FREE_DEFAULT\t\n",
      pasted_outside());
}

TEST_F(ResourceWindow, FollowsTheDocument) {
  click_on_row(4);
  choose_option("resources_filter_opt", "resources_filter_menu_name");
  enter("resources_filter", "a");
  expect_rows({"Dial face", "Dial hand", "Dial value", "Knob face"});
  edit_family("Clocks");
  select("widgetlist_selection", "Dial");
  press_cancel("widgetlist_selection");
  expect_rows({"Knob face"});
  EXPECT_EQ(Items{"Knob face"}, chosen_rows());
  press("family_undob");
  expect_rows({"Dial face", "Dial hand", "Dial value", "Knob face"});
  EXPECT_EQ(Items{"Knob face"}, chosen_rows());
}

/// Before the program is idle.
void press_at_once(const std::string& button) {
  XmPushButtonCallbackStruct call{XmCR_ACTIVATE, nullptr, 1};
  XtCallCallbacks(widget(button), XmNactivateCallback, &call);
}

TEST_F(ResourceWindow, KnowsItsRowsAgainAfterWhatIsUndoneAtOnce) {
  click_on_row(2);
  edit_family("Clocks");
  select("widgetlist_selection", "Dial");
  press_at_once("widgetlist_selection.Cancel");
  press_at_once("family_undob");
  press_at_once("resources_copyb");
  EXPECT_NE(std::string::npos, pasted_outside().find("\nDial\thand\tlook\thand_popup\t"));
}

TEST_F(ResourceWindow, ShowsWhatItHasChangedInTheWidgetEditor) {
  edit_family("Clocks");
  edit_widget("Dial");
  select("we_resource_list", "hand");
  EXPECT_EQ("look", text("widgetedit_page_t"));
  click_on_row(2);
  set("page", "hands");
  EXPECT_EQ("hand", text("we_resource_t"));
  EXPECT_EQ("hands", text("widgetedit_page_t"));
}

TEST_F(ResourceWindow, GoesToTheSelectedResource) {
  press("resources_gob");
  EXPECT_EQ(resource_text("resources_unselected"), said("resources_form"));
  click_on_row(4);
  key("Return");
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("Widget: Knob", title("widgetedit_dialog"));
  EXPECT_EQ("face", text("we_resource_t"));
}

TEST_F(ResourceWindow, SelectsRowsThatAreApartWithKeysAlone) {
  click_on_row(1);
  key("ctrl+Down");
  key("ctrl+Down");
  EXPECT_EQ(Items{"Dial face"}, chosen_rows());
  key("ctrl+space");
  EXPECT_EQ((Items{"Dial face", "Dial value"}), chosen_rows());
  key("ctrl+space");
  EXPECT_EQ(Items{"Dial face"}, chosen_rows());
  key("space");
  EXPECT_EQ(Items{"Dial value"}, chosen_rows());
  EXPECT_EQ("Rows selected: 1", said("resources_form"));
}

TEST_F(ResourceWindow, ShowsAsSelectedWhatIsWhenReturnIsPressed) {
  click_on_row(4);
  key("ctrl+Up");
  key("Return");
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("Widget: Knob", title("widgetedit_dialog"));
  EXPECT_EQ(Items{"Knob face"}, chosen_rows());
}

TEST_F(ResourceWindow, ReturnGoesToTheCurrentRowWhereNoneIsSelected) {
  tab_to("resources_form", "resources_list");
  key("Return");
  ASSERT_TRUE(has_keyboard("widgetedit_dialog"));
  EXPECT_EQ("face", text("we_resource_t"));
  EXPECT_EQ(Items{"Dial face"}, chosen_rows());
}

TEST_F(ResourceWindow, TakesTheKeyboardWhereItIsClickedBelowItsRows) {
  click("resources_list");
  EXPECT_EQ("resources_list", focus("resources_form"));
}

TEST_F(ResourceWindow, SaysThatThereIsNoFamilyOfThatName) {
  enter("resources_family", "Cl");
  EXPECT_EQ("There is no family Cl", label("resources_found"));
}

TEST_F(ResourceWindow, OpensWithoutTheFilterOfLastTime) {
  enter("resources_filter", "knob");
  close("resources_dialog");
  turn_to(main_shell());
  key("ctrl+t");
  ASSERT_TRUE(has_keyboard("resources_dialog"));
  EXPECT_EQ("", text("resources_filter"));
  EXPECT_EQ("4 of 4 resources", label("resources_found"));
}

TEST_F(ResourceWindow, TellsOtherCommandsWhatIsSelected) {
  click_on_row(4);
  key("F2");
  ASSERT_TRUE(has_keyboard("rename_dialog"));
  EXPECT_EQ("resource face of Knob", label("rename_old"));
}

TEST_F(ResourceWindow, ItsHeadingCannotBeSelected) {
  click_on_row(2);
  click_row("resources_list", 1);
  EXPECT_EQ(Items{"Dial hand"}, chosen_rows());
}

/// With more rows than can be seen.
class LongResourceWindow : public ResourceWindow {
 protected:
  LongResourceWindow() : ResourceWindow(many_widgets()) { click_on_row(1); }

  static std::string many_widgets() {
    constexpr int kHundred = 100;
    std::string text = "VQconfig\n";
    for (int i = kHundred; i < kHundred + kRows; ++i) {
      text += "widget 'W" + std::to_string(i) + "' { resource_definitions='r', , 'p', True; }\n";
    }
    return text;
  }

  static constexpr int kRows = 300;
};

TEST_F(LongResourceWindow, MakesItemsOfWhatIsInViewOnly) {
  EXPECT_LT(items("resources_list").size(), 60U);
  EXPECT_EQ("W100 r", names().front());
  key("End");
  EXPECT_EQ("W399 r", names().back());
  EXPECT_EQ(Items{"W399 r"}, chosen_rows());
  key("Up");
  EXPECT_EQ(Items{"W398 r"}, chosen_rows());
  key("Home");
  EXPECT_EQ("W100 r", names().front());
  const std::size_t rows_shown = names().size();
  key("Next");
  EXPECT_EQ(rows_shown, names().size());
  EXPECT_EQ(Items{names().back()}, chosen_rows());
}

TEST_F(LongResourceWindow, IsScrolledByTheWheelAndKeepsWhatIsSelected) {
  click_on_row(2);
  turn_wheel(WHEEL_DOWN);
  EXPECT_TRUE(wait_for([] { return names().front() == "W103 r"; })) << names().front();
  EXPECT_EQ(Items(), chosen_rows());
  EXPECT_EQ(0U, items("resources_list")[0].find("Widget class")) << "the heading stays";
  turn_wheel(WHEEL_UP);
  EXPECT_TRUE(wait_for([] { return chosen_rows() == Items{"W101 r"}; }));
}

TEST_F(LongResourceWindow, SelectsARangeBeyondWhatIsInView) {
  click_on_row(2);
  key("End");
  key("Up");
  key("shift+Home");
  EXPECT_EQ("Rows selected: 299", said("resources_form"));
  set("page", "all");
  EXPECT_EQ("299 resources changed", said("resources_form"));
  EXPECT_EQ(std::string::npos, saved_item("widget 'W399'").find("all"));
  EXPECT_NE(std::string::npos, saved_item("widget 'W398'").find("all"));
}

void count_exposures(Widget, XtPointer count, XEvent*, Boolean*) { ++*static_cast<int*>(count); }

TEST_F(LongResourceWindow, RestsWhenItIsLeftAlone) {
  key("End");
  int exposures = 0;
  wait_for([] { return false; }, 0.3);
  XtAddEventHandler(widget("resources_list"), ExposureMask | StructureNotifyMask, False, count_exposures, &exposures);
  wait_for([] { return false; }, 0.5);
  EXPECT_EQ(0, exposures);
}

TEST_F(LongResourceWindow, ShowsMoreRowsWhenItIsLarger) {
  const std::size_t before = names().size();
  XtVaSetValues(widget("resources_dialog"), XmNheight, 800, nullptr);
  EXPECT_TRUE(wait_for([&] { return names().size() > before; }));
}

}  // namespace
