#include <gtest/gtest.h>

#include <Xm/ToggleB.h>

#include <ostream>

#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/session.h"

using namespace vqc;

namespace {

const char document[] =
    "VQconfig\nwidget 'Dial' {\nrealise='dial_realise'\n}\nwidget 'Knob' {\nrealise='knob_realise'\n}\n"
    "family 'A' {\nwidget='Dial'\n}\nfamily 'B' {\nwidget='Knob'\n}\n";

struct Kind {
  const char* item;
  const char* title;
  const char* keyword;
  const char* suffix;  // of the name that is derived
  const char* mark;    // what of family A's widget is found in the file
};
void PrintTo(const Kind& kind, std::ostream* stream) { *stream << kind.keyword; }

const Kind kinds[] = {
    {"family_genconfigb", "generate_config_title", "config_name", "_config.c", "\"A\""},
    {"family_gencodeb", "generate_code_title", "code_name", "_code.c", "xw_Dial"},
    {"family_genstubs_b", "generate_stubs_title", "stubs_name", "_stubs.c", "dial_realise"},
};

struct FamilyToggle {
  std::string name;
  std::string family;
  bool on;
  bool operator==(const FamilyToggle&) const = default;
};

/// The toggles of the families, in their order.
std::vector<Widget> family_toggles() {
  const auto children = children_of(widget("gen_toggles"));
  return {children.begin(), children.end()};
}

std::vector<FamilyToggle> toggles_shown() {
  std::vector<FamilyToggle> all;
  for (Widget w : family_toggles()) {
    if (XtIsManaged(w)) all.push_back({XtName(w), label(w), XmToggleButtonGetState(w) != 0});
  }
  return all;
}

class GenerateDialog : public Session {
 protected:
  GenerateDialog() { open_document(document); }

  static bool has_text(const std::string& path, const std::string& text) {
    return read_file(path).find(text) != std::string::npos;
  }
  static void set_toggle(std::size_t index, bool on) { XmToggleButtonSetState(family_toggles()[index], on, True); }
};

class Generate : public GenerateDialog, public testing::WithParamInterface<Kind> {};

TEST_P(Generate, WritesTheFileOfEveryFamily) {
  choose_menu("family_generate_cascade", GetParam().item);
  ASSERT_TRUE(is_shown("gen_dialog"));
  EXPECT_EQ(resource_text(GetParam().title), title("gen_dialog"));
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "A", true}, {"toggleb", "B", true}}), toggles_shown());
  enter("gen_fsb", folder / "out.c");
  click("gen_fsb.OK");
  EXPECT_FALSE(is_shown("gen_dialog"));
  EXPECT_TRUE(has_text(folder / "out.c", GetParam().mark));
  EXPECT_FALSE(dirty);
}

TEST_P(Generate, TheNameOfTheFileIsRememberedAndSaved) {
  press(GetParam().item);
  choose_file("gen_fsb", folder / "out.c");
  press(GetParam().item);
  EXPECT_EQ(folder / "out.c", text("gen_fsb"));
  press_cancel("gen_fsb");
  EXPECT_TRUE(saved().starts_with("VQconfig\n" + std::string(GetParam().keyword) + "='" + folder / "out.c" + "'\n"));
}

TEST_P(Generate, AFailedRunLeavesTheOldName) {
  press(GetParam().item);
  choose_file("gen_fsb", folder / "out.c");
  press(GetParam().item);
  choose_file("gen_fsb", folder / "no such folder/out.c");
  EXPECT_NE(std::string::npos, error_shown().find("no such folder/out.c"));
  EXPECT_FALSE(is_shown("gen_dialog"));
  press(GetParam().item);
  EXPECT_EQ(folder / "out.c", text("gen_fsb"));
}

TEST_P(Generate, OffersTheNameThatARunWithoutAUserTakes) {
  press(GetParam().item);
  EXPECT_EQ(folder.path() + "/", text("gen_fsb.DirText"));
  EXPECT_EQ("document" + std::string(GetParam().suffix), text("gen_fsb"));
  press_ok("gen_fsb");
  EXPECT_TRUE(has_text(folder / "document" + GetParam().suffix, GetParam().mark));
}

TEST_P(Generate, TypingReplacesTheNameThatIsOffered) {
  for (const char* name : {"first.c", "second.c"}) {
    press(GetParam().item);
    ASSERT_TRUE(has_keyboard("gen_dialog"));
    type(name);
    EXPECT_EQ(name, text("gen_fsb"));
    key("Return");
    EXPECT_TRUE(has_text(folder / name, GetParam().mark));
  }
}

TEST_P(Generate, WithoutANameIsToldAndCloses) {
  press(GetParam().item);
  enter("gen_fsb", "");
  press_ok("gen_fsb");
  EXPECT_TRUE(error_shown().ends_with("\nNo such file or directory")) << error_shown();
  EXPECT_FALSE(is_shown("gen_dialog"));
  EXPECT_EQ(std::string::npos, saved().find(GetParam().keyword)) << "no name is remembered";
}

TEST_P(Generate, OffersNothingWhileTheDocumentHasNoName) {
  press("family_newb");
  press(GetParam().item);
  EXPECT_EQ("", text("gen_fsb"));
}

TEST_P(Generate, AFamilyWhoseToggleIsOffIsLeftOut) {
  press(GetParam().item);
  set_toggle(0, false);
  choose_file("gen_fsb", folder / "out.c");
  EXPECT_FALSE(has_text(folder / "out.c", GetParam().mark));
}

TEST_P(Generate, AFileThatIsThereIsReplaced) {
  write_file(folder / "out.c", "void dial_realise() { keep_me(); }\n" + std::string(100000, ' '));
  press(GetParam().item);
  choose_file("gen_fsb", folder / "out.c");
  EXPECT_FALSE(has_text(folder / "out.c", "keep_me"));
}

TEST_P(Generate, TheFilterShowsSourceFiles) {
  press(GetParam().item);
  EXPECT_TRUE(text("gen_fsb.FilterText").ends_with("*.c")) << text("gen_fsb.FilterText");
}

INSTANTIATE_TEST_SUITE_P(Of, Generate, testing::ValuesIn(kinds),
                         [](const testing::TestParamInfo<Kind>& row) { return std::string(row.param.keyword); });

TEST_F(GenerateDialog, TheSelectionIsRemembered) {
  press("family_genconfigb");
  set_toggle(1, false);
  choose_file("gen_fsb", folder / "out.c");
  press("family_gencodeb");
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "A", true}, {"toggleb", "B", false}}), toggles_shown());
}

TEST_F(GenerateDialog, ASelectionThatIsCancelledIsForgotten) {
  press("family_genconfigb");
  set_toggle(1, false);
  click("gen_fsb.Cancel");
  EXPECT_FALSE(is_shown("gen_dialog"));
  press("family_genconfigb");
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "A", true}, {"toggleb", "B", true}}), toggles_shown());
}

TEST_F(GenerateDialog, TheTogglesFollowTheFamilies) {
  press("family_genconfigb");
  press_cancel("gen_fsb");
  add_family("C");
  enter("family_selection", "A");
  press_cancel("family_selection");
  press("family_genconfigb");
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "B", true}, {"toggleb", "C", true}}), toggles_shown());
}

TEST_F(GenerateDialog, EachKindHasItsOwnName) {
  press("family_genconfigb");
  choose_file("gen_fsb", folder / "a_config.c");
  press("family_gencodeb");
  choose_file("gen_fsb", folder / "a_code.c");
  press("family_genstubs_b");
  choose_file("gen_fsb", folder / "a_stubs.c");
  EXPECT_TRUE(saved().starts_with("VQconfig\ncode_name='" + folder / "a_code.c" + "'\nconfig_name='" +
                                  folder / "a_config.c" + "'\nstubs_name='" + folder / "a_stubs.c" + "'\n"));
  press("family_gencodeb");
  EXPECT_EQ(folder / "a_code.c", text("gen_fsb"));
}

TEST_F(GenerateDialog, ItHasToBeAnsweredFirst) {
  press("family_genconfigb");
  ASSERT_TRUE(is_shown("gen_dialog"));
  move_aside("gen_dialog");
  click_in_vain("family_selection.Apply");
  EXPECT_TRUE(is_shown("gen_dialog"));
  EXPECT_EQ((Items{"A", "B"}), items("family_selection"));
}

TEST_F(GenerateDialog, WithoutFamiliesAFileIsWrittenTheSame) {
  press("family_newb");
  press("family_genconfigb");
  EXPECT_EQ(std::vector<FamilyToggle>(), toggles_shown());
  choose_file("gen_fsb", folder / "out.c");
  EXPECT_TRUE(has_text(folder / "out.c", "XFamily_t xw_families[] = {\n"));
}

TEST_F(GenerateDialog, AllAndNoneTurnTheFamiliesOnAndOff) {
  press("family_genconfigb");
  choose_menu("gen_families_cascade", "gen_none_b");
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "A", false}, {"toggleb", "B", false}}), toggles_shown());
  choose_file("gen_fsb", folder / "none.c");
  EXPECT_FALSE(has_text(folder / "none.c", "\"A\""));
  press("family_genconfigb");
  choose_menu("gen_families_cascade", "gen_all_b");
  EXPECT_EQ((std::vector<FamilyToggle>{{"toggleb", "A", true}, {"toggleb", "B", true}}), toggles_shown());
  choose_file("gen_fsb", folder / "all.c");
  EXPECT_TRUE(has_text(folder / "all.c", "\"B\""));
}

TEST_F(GenerateDialog, SearchGoesToAFamily) {
  for (int i = 0; i < 30; ++i) add_family("Family" + std::to_string(i));
  press("family_genconfigb");
  ASSERT_TRUE(is_shown("gen_dialog"));
  click("gen_search");
  type("y29");
  settle();
  EXPECT_EQ(Items{"Family29"}, items("dropdown_list"));
  key("Return");
  settle();
  EXPECT_TRUE(is_shown("gen_dialog"));
  EXPECT_EQ(family_toggles().back(), XmGetFocusWidget(widget("gen_fsb")));
  key("space");
  settle();
  EXPECT_FALSE(toggles_shown().back().on);
}

TEST_F(GenerateDialog, AHitIsTakenWithTheMouseToo) {
  press("family_genconfigb");
  click("gen_search");
  type("b");
  settle();
  click_item("dropdown_list", "B");
  settle();
  EXPECT_EQ(family_toggles().back(), XmGetFocusWidget(widget("gen_fsb")));
}

TEST_F(GenerateDialog, NewForgetsTheNames) {
  press("family_genconfigb");
  choose_file("gen_fsb", folder / "out.c");
  press("family_newb");
  EXPECT_EQ("VQconfig\n", saved());
}

}  // namespace
