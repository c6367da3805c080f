#include <algorithm>
#include <random>
#include <set>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"
#include "libkel/sink.h"
#include "vqc/cmd/editors/kit/given_names.h"
#include "vqc/cmd/savefile/save.h"

using namespace vqc;

// Thousands of things that a user might do, in any order. After each, every list shows what the model holds.

namespace {

constexpr int kSteps = 2500;
constexpr int kUndoneSteps = 600;

/// Whether all of some texts are among others, in their order.
bool has_in_order(const std::vector<std::string>& all, const std::vector<std::string>& some) {
  auto place = all.begin();
  for (const std::string& text : some) {
    place = std::find(place, all.end(), text);
    if (place == all.end()) return false;
  }
  return true;
}

/// A list of all pages or popups. What has been removed from a family is missing, and what has been moved has another
/// place, until the list is opened again.
class Picker {
 public:
  explicit Picker(const char* box) : box_(box) {}

  void open() {
    removed_.clear();
    moved_ = false;
  }
  void remove(const std::string& name) { removed_.insert(name); }
  void move() { moved_ = true; }

  void expect_shown(Names pool) const {
    if (!find_widget(box_)) return;
    Items shown = items(box_);
    if (moved_) {
      std::ranges::sort(shown);
      std::ranges::sort(pool);
    }
    std::erase_if(pool, [&](const std::string& name) {
      return removed_.contains(name) && std::ranges::find(shown, name) == shown.end();
    });
    EXPECT_EQ(pool, shown) << box_;
  }

 private:
  const char* box_;
  std::set<std::string> removed_;
  bool moved_ = false;
};

class RandomWalk : public Session {
 protected:
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }
  template <std::size_t count>
  std::string one_of(const char* const (&choices)[count]) {
    return choices[static_cast<std::size_t>(below(static_cast<int>(count)))];
  }
  /// One of a few names, so that what is done often hits what is there.
  std::string any_name() { return one_of({"a", "b", "c", "D", "e e", "%s", "Ü", ""}); }

  void act() {
    switch (below(14)) {
      case 0:
      case 1:
      case 2:
        return edit_list();
      case 3:
      case 4:
        return select_something();
      case 5:
        return move_something();
      case 6:
      case 7:
        return edit_widget();
      case 8:
        return edit_entry();
      case 9:
        return press_if_possible(one_of(small_steps));
      case 10:
        return edit_page_or_popup();
      case 11:
        return open_picker();
      case 12:
        return move_page();
      default:
        return do_with_files();
    }
  }

  /// Goes back by a step or on again, after which all lists show the whole of what they are about.
  void undo_step(const std::string& button) {
    press(button);
    pages_.open();
    popups_.open();
    expect_lists_show_the_model();
  }

  void expect_lists_show_the_model() const {
    Family* family = family_getcurrent();
    EXPECT_EQ(names_in(edited_document.families), items("family_selection"));
    if (!find_widget("entity_dialog")) return;
    expect_list("widgetlist_selection", family ? names_in(family->widgets) : Names());
    expect_list("enumlist_selection", family ? names_in(family->enumerations) : Names());
    expect_list("aliaslist_selection", family ? names_in(family->aliases) : Names());
    expect_list("converter_selection", family ? names_in(family->converters) : Names());
    expect_list("codeheaderlist_selection", family ? names_in(family->code_headers) : Names());
    expect_list("confheaderlist_selection", family ? names_in(family->config_headers) : Names());
    expect_list("familyheaderlist_selection", family ? names_in(family->family_headers) : Names());
    const auto* shown_widget = widget_kind.current();
    expect_list("we_resource_list", shown_widget ? names_in(shown_widget->record->resource_definitions) : Names());
    const auto* shown_enum = enum_kind.current();
    expect_list("enumedit_selection", shown_enum ? names_in(shown_enum->record->entries) : Names());
    pages_.expect_shown(names_in(edited_document.pages));
    popups_.expect_shown(names_in(edited_document.popups));
  }

 private:
  static constexpr const char* lists[] = {
      "family_selection",         "widgetlist_selection",       "enumlist_selection",
      "aliaslist_selection",      "converter_selection",        "codeheaderlist_selection",
      "confheaderlist_selection", "familyheaderlist_selection", "enumedit_selection"};
  static constexpr const char* arrows[] = {
      "family_uparrow",         "family_downarrow",         "widgetlist_uparrow",       "widgetlist_downarrow",
      "converter_uparrow",      "converter_downarrow",      "codeheaderlist_uparrow",   "codeheaderlist_downarrow",
      "confheaderlist_uparrow", "confheaderlist_downarrow", "familyheaderlist_uparrow", "familyheaderlist_downarrow",
      "enumedit_uparrow",       "enumedit_downarrow"};
  static constexpr const char* small_steps[] = {"widgetlist_quitb",
                                                "enumedit_quitb",
                                                "widgetedit_closeb",
                                                "widgetedit_undob",
                                                "widgetedit_applyb",
                                                "familyinit_applyb",
                                                "family_stop_b",
                                                "stop_list_apply",
                                                "stop_list_close",
                                                "resource_warn_msg.OK",
                                                "resource_warn_ignoreb",
                                                "resource_warn_msg.Cancel",
                                                "family_helpaboutb",
                                                "about_ok",
                                                "error_messageb.Cancel",
                                                "pageedit_selection.Apply",
                                                "pageedit_selection.Cancel",
                                                "popupedit_selection.Apply",
                                                "popupedit_selection.Cancel",
                                                "family_generate_options_b",
                                                "options_reset"};

  static void expect_list(const char* list, const Names& names) {
    if (find_widget(list)) {
      EXPECT_EQ(names, items(list)) << list;
    }
  }

  static void press_if_possible(const std::string& button) {
    if (find_widget(button) && is_sensitive(button)) press(button);
  }

  void edit_list() {
    const std::string box = one_of(lists);
    if (!find_widget(box)) return;
    enter(box, any_name());
    if (find_widget("aliaslist_to_name")) enter("aliaslist_to_name", any_name());
    press_if_possible(box + one_of({".OK", ".Apply", ".Apply", ".Cancel"}));
  }

  void select_something() {
    const std::string list = below(6) == 0 ? "we_resource_list" : one_of(lists);
    if (!find_widget(list)) return;
    const Items names = items(list);
    if (!names.empty()) select(list, names[static_cast<std::size_t>(below(static_cast<int>(names.size())))]);
  }

  void move_something() { press_if_possible(one_of(arrows)); }

  void edit_widget() {
    if (!find_widget("we_resource_t")) return;
    enter(one_of({"we_resource_t", "we_resource_t", "widgetedit_page_t", "widgetedit_popup_t", "widgetedit_counter_t",
                  "widgetedit_realise"}),
          any_name());
    press_if_possible(one_of({"we_resource_upd_b", "we_resource_upd_b", "we_resource_del_b", "widgetedit_applyb"}));
  }

  void edit_entry() {
    if (!find_widget("enumedit_selection")) return;
    enter("enumedit_type", any_name());
    enter("enumedit_code_symbol", any_name());
    enter("enumedit_selection", any_name());
    press_if_possible(one_of({"enumedit_selection.OK", "enumedit_selection.Apply", "enumedit_selection.Cancel"}));
  }

  void edit_page_or_popup() {
    const bool page = below(2) == 0;
    const std::string box = page ? "pageedit_selection" : "popupedit_selection";
    if (!find_widget(box)) return;
    enter(box, any_name());
    if (below(2) == 0) return press_if_possible(page ? "pageedit_updateb" : "popupedit_applytb");
    (page ? pages_ : popups_).remove(text(box));
    press_if_possible(page ? "pageedit_removeb" : "popupedit_deletetb");
  }

  void open_picker() {
    const bool page = below(2) == 0;
    if (!find_widget("widgetedit_page_b")) return;
    (page ? pages_ : popups_).open();
    press(page ? "widgetedit_page_b" : one_of({"widgetedit_popup_b", "convert_popup_b"}));
  }

  void move_page() {
    if (!find_widget("pageedit_selection")) return;
    const Items names = items("pageedit_selection");
    if (names.empty()) return;
    select("pageedit_selection", names[static_cast<std::size_t>(below(static_cast<int>(names.size())))]);
    pages_.move();
    press(one_of({"pageedit_up_arrow", "pageedit_down_arrow"}));
  }

  void do_with_files() {
    switch (below(6)) {
      case 0:
        return save_as(folder / one_of({"a.vqc", "b.vqc", "c.vqc"}));
      case 1:
        return read_into(folder / one_of({"a.vqc", "b.vqc", "missing.vqc"}));
      case 2:
        return answer_after("family_newb");
      case 3:
        answer_after("family_openb");
        if (!is_shown("open_dialog")) return;
        return choose_file("open_fsb", folder / one_of({"a.vqc", "b.vqc", "c.vqc", "missing.vqc"}));
      case 4:
        press("family_genstubs_b");
        return choose_file("gen_fsb", folder / "stubs.c");
      default:
        close_main_window();
        exit_status.reset();
        return answer_question();
    }
  }

  void answer_after(const char* command) {
    press(command);
    answer_question();
  }
  void answer_question() {
    if (!is_shown("savechanges_dialog")) return;
    press(one_of({"savechanges_messagebox.OK", "savechanges_nob", "savechanges_messagebox.Cancel"}));
    if (is_shown("save_dialog")) choose_file("save_fsb", folder / "d.vqc");
    exit_status.reset();
  }

  std::mt19937 random_{20261121};
  Picker pages_{"pageedit_selection"};
  Picker popups_{"popupedit_selection"};
};

/// What Save would write.
std::string document() {
  StringSink text;
  save(edited_document, text);
  text.finish();
  return text.text();
}

TEST_F(RandomWalk, UndoneToItsStartAndRedoneToItsEndItHasTheSameBytesAtEveryStep) {
  start({"-xrm", "VQconfig*generateOptions: True"});
  std::vector<std::string> seen{document()};
  for (int step = 0; step < kUndoneSteps; ++step) {
    act();
    if (seen.back() != document()) seen.push_back(document());
  }
  std::vector<std::string> undone{document()};
  for (; is_sensitive("family_undob"); undone.push_back(document())) undo_step("family_undob");
  std::ranges::reverse(undone);
  ASSERT_LT(seen.size(), undone.size() + 1);
  EXPECT_TRUE(has_in_order(undone, seen));
  std::vector<std::string> redone{document()};
  for (; is_sensitive("family_redob"); redone.push_back(document())) undo_step("family_redob");
  EXPECT_TRUE(undone == redone);
}

TEST_F(RandomWalk, TheListsAlwaysShowTheModel) {
  start({"-xrm", "VQconfig*generateOptions: True"});
  for (int step = 0; step < kSteps && !HasFailure(); ++step) {
    SCOPED_TRACE(step);
    act();
    expect_lists_show_the_model();
  }
}

}  // namespace
