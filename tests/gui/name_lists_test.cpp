#include <gtest/gtest.h>

#include <X11/Xatom.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

// What all lists of names have in common. A click means exactly the name that is there: also one that the locale has no
// characters for, or that looks like its neighbour.

namespace {

/// In the order of their bytes. To the eye the last two are the same, and like the third.
const Names hard_names = {"x\ty", "x\ny", "x?", "xy", "x\xC3\xBC", "x\xFE", "x\xFF"};

struct List {
  const char* subject;
  const char* box;
  const char* view;     // the toggle that shows it in a family's dialog; null when it is elsewhere
  const char* before;   // in a document, what stands before the records
  const char* record;   // each of them, with its NAME and FIELD
  const char* between;  // what stands between them
  const char* after;    // what stands after them
  const char* entry;    // each name in the list
  const char* end;      // after these, where they stand apart from the records; else null
  const char* remove;
  const char* ok;  // null where there is none
  const char* up;  // null for a list without arrows
  const char* down;
  const char* field;   // shows a FIELD; null where there is none
  const char* store;   // the button that stores it
  const char* opener;  // the button that shows it; null where a click does
  int first = 1;       // the place of the first name
};

void PrintTo(const List& list, std::ostream* stream) { *stream << list.subject; }

const char kFamily[] = "family 'F' {\n";
const char kOpenWidget[] = "widget 'W' {\n}\nfamily 'F' {\n\twidget='W'\n";

const List lists[] = {
    {"families", "family_selection", nullptr, "", "family 'NAME' {\n\tfamily_init='FIELD'\n", "}\n", "}\n",
     "family 'NAME' {", nullptr, "family_selection.Cancel", "family_selection.OK", "family_uparrow", "family_downarrow",
     "familyinit_init_text", "familyinit_applyb", "family_selection.OK"},
    {"widgets", "widgetlist_selection", "entity_opt_widgets_t", "", "widget 'NAME' {\n\trealise='FIELD'\n}\n", "",
     kFamily, "\twidget='NAME'\n", "}\n", "widgetlist_selection.Cancel", "widgetlist_selection.OK",
     "widgetlist_uparrow", "widgetlist_downarrow", "widgetedit_realise", "widgetedit_applyb",
     "widgetlist_selection.OK"},
    {"enumerations", "enumlist_selection", "entity_opt_enums_t", "",
     "enumeration 'NAME' {\n\ttypename='FIELD'\n\tenumentry 'e'{\n\t}\n}\n", "", kFamily, "\tenumeration='NAME'\n",
     "}\n", "enumlist_selection.Cancel", "enumlist_selection.OK", nullptr, nullptr, "enumedit_type",
     "enumedit_selection.OK", "enumlist_selection.OK"},
    {"aliases", "aliaslist_selection", "entity_opt_aliases_t", "", "alias 'NAME' {\n\tto_name='FIELD'\n}\n", "",
     kFamily, "\talias='NAME'\n", "}\n", "aliaslist_selection.Cancel", "aliaslist_selection.OK", nullptr, nullptr,
     "aliaslist_to_name", "aliaslist_selection.OK", nullptr},
    {"converters", "converter_selection", "entity_opt_converters_t", "", "converter 'NAME' {\n\tproc_name='FIELD'\n}\n",
     "", kFamily, "\tconverter='NAME'\n", "}\n", "converter_selection.Cancel", "converter_selection.OK",
     "converter_uparrow", "converter_downarrow", "converter_proc", "converter_selection.OK", nullptr},
    {"family_headers", "familyheaderlist_selection", "entity_opt_family_headers_t", "", "", "", kFamily,
     "\tfamily_header='NAME'\n", "}\n", "familyheaderlist_selection.Cancel", "familyheaderlist_selection.OK",
     "familyheaderlist_uparrow", "familyheaderlist_downarrow", nullptr, nullptr, nullptr},
    {"config_headers", "confheaderlist_selection", "entity_opt_config_headers_t", "", "", "", kFamily,
     "\tcheader='NAME'\n", "}\n", "confheaderlist_selection.Cancel", "confheaderlist_selection.OK",
     "confheaderlist_uparrow", "confheaderlist_downarrow", nullptr, nullptr, nullptr},
    {"code_headers", "codeheaderlist_selection", "entity_opt_code_headers_t", "", "", "", kFamily, "\theader='NAME'\n",
     "}\n", "codeheaderlist_selection.Cancel", "codeheaderlist_selection.OK", "codeheaderlist_uparrow",
     "codeheaderlist_downarrow", nullptr, nullptr, nullptr},
    {"entries", "enumedit_selection", nullptr, "enumeration 'E' {\n",
     "\tenumentry 'NAME'{\n\t\tcode_symbol='FIELD'\n\t}\n", "", "}\nfamily 'F' {\n\tenumeration='E'\n}\n",
     "\tenumentry 'NAME'{", nullptr, "enumedit_selection.Cancel", "enumedit_selection.OK", "enumedit_uparrow",
     "enumedit_downarrow", "enumedit_code_symbol", "enumedit_selection.OK", nullptr},
    {"resources", "we_resource_list", nullptr, "widget 'W' {\n\tresource_definitions=",
     "'NAME', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 7 counter 'FIELD'", ",\n",
     ";\n}\nfamily 'F' {\n\twidget='W'\n}\n", "'NAME', , , True", nullptr, "we_resource_del_b", "we_resource_upd_b",
     nullptr, nullptr, "widgetedit_counter_t", "we_resource_upd_b", nullptr},
    {"pages", "pageedit_selection", nullptr, "", "page 'NAME'\n", "", kOpenWidget, "\tpage='NAME'\n", "}\n",
     "pageedit_removeb", "pageedit_updateb", "pageedit_up_arrow", "pageedit_down_arrow", nullptr, nullptr, nullptr},
    {"popups", "popupedit_selection", nullptr, "", "popup 'NAME' {\n\tdialog_init='FIELD'\n}\n", "", kOpenWidget,
     "\tpopup='NAME'\n", "}\n", "popupedit_deletetb", "popupedit_applytb", nullptr, nullptr, "dialog_init",
     "popupedit_applytb", nullptr, 6},  // after the predefined ones
};

/// A pattern with a name and a field in it.
std::string filled_in(std::string pattern, const std::string& name, const std::string& field) {
  if (const auto place = pattern.find("FIELD"); place != std::string::npos) pattern.replace(place, 5, field);
  if (const auto place = pattern.find("NAME"); place != std::string::npos) pattern.replace(place, 4, name);
  return pattern;
}

std::string field_of(std::size_t index) { return "field" + std::to_string(index); }

class NameList : public Session, public testing::WithParamInterface<List> {
 protected:
  const List& list() const { return GetParam(); }
  std::string box() const { return list().box; }
  int place(std::size_t index) const { return static_cast<int>(index) + list().first; }

  std::string document(const Names& names) const {
    std::string text = std::string("VQconfig\n") + list().before;
    for (std::size_t i = 0; i < names.size(); ++i) {
      text += (i == 0 ? "" : list().between) + filled_in(list().record, names[i], field_of(i));
    }
    text += list().after;
    if (!list().end) return text;
    for (const std::string& name : names) text += filled_in(list().entry, name, "");
    return text + list().end;
  }

  /// Opens a document with these names in the list, which is shown.
  void edit(const Names& names, const std::string& click_time = "1") {
    start({"-xrm", "*multiClickTime: " + click_time, folder.with("document.vqc", document(names))});
    if (box() == "family_selection") return;
    edit_family("F");
    if (list().view) {
      if (!is_set(list().view)) choose_menu("entity_viewb", list().view);
    } else if (box() == "enumedit_selection") {
      edit_enumeration("E");
    } else {
      open_widget();
    }
    settle();
  }

  void open_widget() const {
    edit_widget("W");
    if (box() == "pageedit_selection") press("widgetedit_page_b");
    if (box() == "popupedit_selection") press("widgetedit_popup_b");
  }

  /// Those of the names that the saved document lists, in its order.
  Names saved_list(const Names& names) const {
    const std::string document = saved();
    std::map<std::size_t, std::string> found;
    for (const std::string& name : names) {
      const std::size_t at = document.find(filled_in(list().entry, name, ""));
      if (at != std::string::npos) found[at] = name;
    }
    Names in_order;
    for (const auto& [at, name] : found) in_order.push_back(name);
    return in_order;
  }

  /// Has the record of the clicked name shown, where a click alone does not.
  void open_clicked() const {
    if (!list().opener) return;
    press(list().opener);
    if (box() == "family_selection" && !is_set("entity_opt_family_init_t")) {
      choose_menu("entity_viewb", "entity_opt_family_init_t");
    }
  }

  /// The field for a name.
  std::string name_field() const { return box().ends_with("_selection") ? box() + ".Text" : "we_resource_t"; }
  void tab_to_name() const { tab_to(box(), name_field().ends_with(".Text") ? "Text" : name_field()); }
  std::string add_button() const {
    const bool ok_adds = list().record[0] == '\0' || !std::string(list().ok).ends_with(".OK");
    return ok_adds ? list().ok : box() + ".Apply";
  }

  /// Puts away what has been opened.
  void uncover_list() const {
    if (!list().opener && box() != "family_selection") return;
    for (const char* shell : {"widgetedit_dialog", "enumedit_dialog", "entity_dialog"}) {
      const bool own = std::string(shell) == "entity_dialog" && list().view;
      if (!own && is_shown(shell)) close(shell);
    }
  }
};

class NameListWithArrows : public NameList {};
class NameListWithFields : public NameList {};

TEST_P(NameList, DeleteTakesOutTheNameThatWasClicked) {
  Names names = hard_names;
  edit(names);
  while (!names.empty()) {
    const std::size_t middle = names.size() / 2;
    click_row(box(), place(middle));
    press(list().remove);
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(middle));
    EXPECT_EQ(names, saved_list(hard_names));
  }
}

TEST_P(NameList, DeleteTakesItOutInAnotherLocaleToo) {
  setenv("LC_ALL", "C", 1);
  Names names = hard_names;
  edit(names);
  for (std::size_t i : {4u, 5u, 1u}) {
    click_row(box(), place(i));
    press(list().remove);
    names.erase(names.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(names, saved_list(hard_names));
  }
}

TEST_P(NameList, OkOnAClickedNameAddsNothing) {
  const Names names = {"x\ty", "x\ny", "x\xC3\xBC", "x\xFF"};
  edit(names);
  const std::size_t rows_before = items(box()).size();
  for (std::size_t i = 0; i < names.size(); ++i) {
    click_row(box(), place(i));
    press(list().ok);
    uncover_list();
  }
  EXPECT_EQ(rows_before, items(box()).size());
  EXPECT_EQ(names, saved_list({"x\ty", "x y", "xy", "x\ny", "x\xC3\xBC", "x?", "x\xFF", "x??"}));
}

TEST_P(NameListWithArrows, EachMovesAndStaysSelected) {
  Names names = hard_names;
  edit(names);
  for (std::size_t i = 1; i < names.size(); ++i) {
    click_row(box(), place(i));
    press(list().up);
    std::swap(names[i - 1], names[i]);
    EXPECT_EQ(names, saved_list(hard_names));
    EXPECT_EQ(1u, selected(box()).size());
  }
  press(list().up);  // the last one once more, now from its new place
  std::swap(names[names.size() - 3], names[names.size() - 2]);
  EXPECT_EQ(names, saved_list(hard_names));
}

TEST_P(NameListWithFields, EachShowsItsOwnField) {
  edit(hard_names);
  for (std::size_t i = 0; i < hard_names.size(); ++i) {
    click_row(box(), place(i));
    open_clicked();
    EXPECT_EQ(field_of(i), text(list().field)) << i;
    uncover_list();
  }
}

TEST_P(NameListWithFields, EachStoresItsOwnField) {
  edit(hard_names);
  for (std::size_t i = 0; i < hard_names.size(); ++i) {
    click_row(box(), place(i));
    open_clicked();
    enter(list().field, "new" + std::to_string(i));
    press(list().store);
    uncover_list();
  }
  const std::string document = saved();
  for (std::size_t i = 0; i < hard_names.size(); ++i) {
    EXPECT_NE(std::string::npos, document.find(filled_in(list().record, hard_names[i], "new" + std::to_string(i))))
        << i;
  }
  EXPECT_EQ(std::string::npos, document.find("field"));
  EXPECT_EQ(hard_names, saved_list(hard_names));
}

TEST_P(NameList, ANameThatIsTypedIsMeantAsItStands) {
  edit({"x\ny", "xy"});
  click_row(box(), place(0));
  tab_to_name();
  type("xy");
  press(list().remove);
  EXPECT_EQ(Names{"x\ny"}, saved_list({"x\ny", "xy"}));
}

TEST_P(NameList, ANameTypedOverIsMeantAgainWhenTheTypingIsTakenBack) {
  edit({"x\ny", "xy"});
  click_row(box(), place(0));
  tab_to_name();
  type("z");
  key("ctrl+z");
  press(list().remove);
  EXPECT_EQ(Names{"xy"}, saved_list({"x\ny", "xy"}));
}

TEST_P(NameList, ADoubleClickMeansTheNameToo) {
  edit({"x\ny"}, "3000");
  const std::size_t rows_before = items(box()).size();
  double_click_row(box(), place(0));
  EXPECT_EQ(rows_before, items(box()).size());
  EXPECT_EQ(Names{"x\ny"}, saved_list({"x\ny", "xy", "x y", "x?y"}));
}

TEST_P(NameList, ADoubleClickDoesWhatOkDoes) {
  edit({"xa", "xb"}, "3000");
  double_click_row(box(), place(1));
  if (list().opener) {
    ASSERT_NE(nullptr, find_widget(list().field));
    EXPECT_TRUE(is_shown(XtName(shell_around(widget(list().field)))));
  }
  const bool ok_updates = list().field && !list().opener && std::string(list().ok).ends_with(".OK");
  EXPECT_EQ(ok_updates, dirty);
}

TEST_P(NameList, ReturnInTheListMeansTheNameToo) {
  edit({"x\ny"});
  const std::size_t rows_before = items(box()).size();
  click_row(box(), place(0));
  key("Return");
  EXPECT_EQ(rows_before, items(box()).size());
  EXPECT_EQ(Names{"x\ny"}, saved_list({"x\ny", "xy", "x y", "x?y"}));
}

TEST_P(NameList, TypingReplacesAClickedName) {
  edit({"xa", "xb"});
  click_row(box(), place(1));
  EXPECT_EQ("xb", text(name_field()));
  tab_to_name();
  type("new");
  EXPECT_EQ("new", text(name_field()));
}

TEST_P(NameList, TheKeyboardMovesInTheListAfterAClick) {
  edit({"xa", "xb", "xc"});
  click_row(box(), place(0));
  for (const char* name : {"xb", "xc"}) {
    key("Down");
    EXPECT_EQ(name, text(name_field()));
  }
}

TEST_P(NameList, AnAddedNameIsScrolledIntoView) {
  Names names;
  for (int i = 10; i < 60; ++i) names.push_back("x" + std::to_string(i));
  edit(names);
  ASSERT_LT(rows(box()), 50);
  for (const char* name : {"x99", "x05", "x35a"}) {
    enter(name_field(), name);
    press(add_button());
    EXPECT_TRUE(is_in_view(box(), name)) << name;
  }
}

TEST_P(NameList, AClickLeavesTheSelectionOfAnotherProgramUntilTheNameIsUsed) {
  edit({"xa", "xb"});
  Display* other = XOpenDisplay(nullptr);
  const Window owner = XCreateSimpleWindow(other, DefaultRootWindow(other), 0, 0, 1, 1, 0, 0, 0);
  XSetSelectionOwner(other, XA_PRIMARY, owner, CurrentTime);
  XSync(other, False);
  click_row(box(), place(1));
  EXPECT_EQ(owner, XGetSelectionOwner(other, XA_PRIMARY));
  tab_to_name();
  type("new");
  EXPECT_EQ("new", text(name_field()));
  XCloseDisplay(other);
}

/// The lists of which this holds.
std::vector<List> lists_with(const char* List::*part) {
  std::vector<List> chosen;
  std::ranges::copy_if(lists, std::back_inserter(chosen), [part](const List& list) { return list.*part != nullptr; });
  return chosen;
}

std::string subject(const testing::TestParamInfo<List>& row) { return row.param.subject; }

INSTANTIATE_TEST_SUITE_P(Of, NameList, testing::ValuesIn(lists), subject);
INSTANTIATE_TEST_SUITE_P(Of, NameListWithArrows, testing::ValuesIn(lists_with(&List::up)), subject);
INSTANTIATE_TEST_SUITE_P(Of, NameListWithFields, testing::ValuesIn(lists_with(&List::field)), subject);

}  // namespace
