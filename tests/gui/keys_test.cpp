#include <gtest/gtest.h>

#include <Xm/TextF.h>

#include "gui/dialogs.h"
#include "gui/hands.h"
#include "gui/looks.h"
#include "gui/parts.h"
#include "gui/session.h"
#include "libkel/message.h"

using namespace vqc;

// Letters with Ctrl, which mean the same in every window, and never become text.

namespace {

/// All that have no use; the main window has menu items for three more.
const std::string unused_letters = "bdefghijmy";
const std::string letters_of_menus = "lnr";

/// The error box too, while a question waits for its answer.
std::vector<Dialog> modal_dialogs() {
  std::vector<Dialog> dialogs = every_dialog(Rank::modal);
  dialogs.push_back({"error_dialog", [] {
                       dialogs_of({"savechanges_dialog"}).front().open();
                       error_show("bad_save_file");
                     }});
  return dialogs;
}

/// The text fields that can be seen in a window.
std::vector<Widget> fields_in(Widget shell) {
  std::vector<Widget> fields;
  for_each_below(shell, [&](Widget w) {
    if (XmIsTextField(w) && shell_around(w) == shell && is_viewable(w)) fields.push_back(w);
  });
  return fields;
}

int times_ended = 0;

class Keys : public Session {
 protected:
  Keys() {
    start({"-xrm", "VQconfig*generateOptions: True", folder.with("document.vqc", document_for_dialogs)});
    session_hooks.end = [](int) { ++times_ended; };
  }
  std::string file() const { return read_file(folder / "document.vqc"); }

  static void come_to(const Dialog& dialog) {
    dialog.open();
    ASSERT_TRUE(is_shown(dialog.shell));
    turn_to(widget(dialog.shell));
  }
};

class KeysOfDialog : public Keys, public testing::WithParamInterface<Dialog> {};

TEST_P(KeysOfDialog, SaveOpenAndQuit) {
  come_to(GetParam());
  add_family("Extra");
  key("ctrl+s");
  EXPECT_FALSE(dirty);
  EXPECT_NE(std::string::npos, file().find("family 'Extra' {\n"));
  key("ctrl+shift+s");
  EXPECT_TRUE(is_shown("save_dialog"));
  turn_to(widget(GetParam().shell));
  key("ctrl+o");
  EXPECT_TRUE(is_shown("open_dialog"));
  turn_to(widget(GetParam().shell));
  key("ctrl+q");
  EXPECT_EQ(1, times_ended);
}

TEST_P(KeysOfDialog, AskAboutChanges) {
  come_to(GetParam());
  add_family("Extra");
  key("ctrl+o");
  EXPECT_TRUE(is_shown("savechanges_dialog"));
  press_cancel("savechanges_messagebox");
  turn_to(widget(GetParam().shell));
  key("ctrl+q");
  EXPECT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_EQ(0, times_ended);
}

TEST_P(KeysOfDialog, CloseItAndOtherwiseDoNothing) {
  come_to(GetParam());
  for (const char* modifiers : {"ctrl", "ctrl+shift"}) type_with(modifiers, unused_letters + letters_of_menus);
  EXPECT_TRUE(has_keyboard(GetParam().shell));
  EXPECT_EQ(Items{"F"}, items("family_selection"));
  EXPECT_FALSE(dirty);
  key("ctrl+w");
  EXPECT_FALSE(is_shown(GetParam().shell));
  EXPECT_TRUE(is_viewable(main_shell()));
  EXPECT_EQ(0, times_ended);
  EXPECT_EQ(document_for_dialogs, file());
}

INSTANTIATE_TEST_SUITE_P(In, KeysOfDialog, testing::ValuesIn(every_dialog(Rank::modeless)), shell_name);

class KeysOfModalDialog : public Keys, public testing::WithParamInterface<Dialog> {};

TEST_P(KeysOfModalDialog, CloseItAndStartNothingBehindIt) {
  come_to(GetParam());
  const bool was_dirty = dirty;
  for (const char* modifiers : {"ctrl", "ctrl+shift"}) type_with(modifiers, "soqnrl" + unused_letters);
  EXPECT_TRUE(has_keyboard(GetParam().shell));
  EXPECT_EQ(was_dirty, dirty);
  EXPECT_EQ(document_for_dialogs, file());
  for (const char* shell : {"open_dialog", "read_dialog", "save_dialog", "stop_list_shell"}) {
    EXPECT_FALSE(find_widget(shell)) << shell;
  }
  key("ctrl+w");
  EXPECT_FALSE(is_shown(GetParam().shell));
  EXPECT_EQ(was_dirty, dirty);
  EXPECT_EQ(document_for_dialogs, file());
  EXPECT_EQ(0, times_ended);
}

INSTANTIATE_TEST_SUITE_P(In, KeysOfModalDialog, testing::ValuesIn(modal_dialogs()),
                         [](const testing::TestParamInfo<Dialog>& row) {
                           return std::string(row.param.shell) + std::to_string(row.index);
                         });

TEST_F(Keys, OfTheMainWindowActOnce) {
  click("family_selection.Text");
  type("Extra");
  key("Return");
  key("ctrl+s");
  EXPECT_FALSE(dirty);
  key("ctrl+shift+s");
  EXPECT_TRUE(is_shown("save_dialog"));
  press_cancel("save_fsb");
  turn_to(main_shell());
  key("ctrl+o");
  EXPECT_TRUE(is_shown("open_dialog"));
  press_cancel("open_fsb");
  turn_to(main_shell());
  key("ctrl+q");
  EXPECT_EQ(1, times_ended);
  key("ctrl+w");
  EXPECT_EQ(2, times_ended);
}

TEST_F(Keys, OfTheMainWindowAskBeforeItCloses) {
  add_family("Extra");
  key("ctrl+w");
  EXPECT_TRUE(is_shown("savechanges_dialog"));
  EXPECT_EQ(0, times_ended);
}

TEST_F(Keys, OfTheMainWindowKeepTheOthersOfItsMenus) {
  click("family_selection.Text");
  key("ctrl+l");
  EXPECT_TRUE(is_shown("stop_list_shell"));
  press("stop_list_close");
  turn_to(main_shell());
  key("ctrl+2");
  EXPECT_TRUE(is_shown("gen_dialog"));
  press_cancel("gen_fsb");
  turn_to(main_shell());
  key("ctrl+n");
  EXPECT_EQ(Items(), items("family_selection"));
}

TEST_F(Keys, AskBeforeAChangedResourceIsClosed) {
  open_widget_editor();
  click("we_resource_t");
  type("r");
  key("ctrl+w");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
  EXPECT_TRUE(is_shown("widgetedit_dialog"));
}

TEST_F(Keys, ActWithCapsLockAndNumLock) {
  switch_lock("Caps_Lock");
  switch_lock("Num_Lock");
  open_widget_editor();
  add_family("Extra");
  click("widgetedit_realise");
  type("a");
  EXPECT_EQ("A", text("widgetedit_realise"));
  type_with("ctrl", unused_letters + "s");
  EXPECT_EQ("A", text("widgetedit_realise"));
  EXPECT_FALSE(dirty);
  type_with("ctrl", "ax");
  EXPECT_EQ("", text("widgetedit_realise"));
  key("ctrl+z");
  EXPECT_EQ("A", text("widgetedit_realise"));
  key("ctrl+w");
  EXPECT_FALSE(is_shown("widgetedit_dialog"));
  turn_to(main_shell());
  key("ctrl+l");
  EXPECT_TRUE(is_shown("stop_list_shell"));
  turn_to(main_shell());
  key("ctrl+q");
  EXPECT_EQ(1, times_ended);
}

TEST_F(Keys, ActWhereverThePointerRests) {
  edit_family("F");
  click("entity_viewb");
  key("Escape");
  add_family("Extra");
  key("ctrl+s");
  EXPECT_FALSE(dirty);
  key("ctrl+w");
  EXPECT_FALSE(is_shown("entity_dialog"));
}

TEST_F(Keys, CloseNothingWhileAMenuIsUp) {
  edit_family("F");
  click("entity_viewb");
  ASSERT_TRUE(wait_for([] { return is_viewable(widget("entity_opt_aliases_t")); }));
  type_with("ctrl", "wso");
  EXPECT_FALSE(find_widget("open_dialog"));
  key("Escape");
  EXPECT_TRUE(is_shown("entity_dialog"));
}

class KeysInFields : public Keys {
 protected:
  /// Presses every letter with Ctrl in a field, except those that leave it.
  static void expect_no_letter_typed(Widget field, const std::string& letters) {
    XmProcessTraversal(field, XmTRAVERSE_CURRENT);
    XmTextFieldSetString(field, const_cast<char*>("name"));
    for (const char* modifiers : {"ctrl", "ctrl+shift"}) {
      type_with(modifiers, letters);
      expect_text("name", field);
    }
    type_with("ctrl", "acx");
    expect_text("", field);
    paste();
    expect_text("name", field);
    key("ctrl+z");
    expect_text("", field);
    key("ctrl+y");
    expect_text("name", field);
    XmTextFieldSetString(field, const_cast<char*>(""));
  }
  static void expect_no_letter_typed_in(Widget shell) {
    turn_to(shell);
    const std::vector<Widget> fields = fields_in(shell);
    EXPECT_FALSE(fields.empty()) << XtName(shell);
    const bool main = shell == main_shell();
    for (Widget field : fields)
      expect_no_letter_typed(field, main ? unused_letters : unused_letters + letters_of_menus);
  }
  static void expect_text(const std::string& expected, Widget field) {
    char* shown = XmTextFieldGetString(field);
    EXPECT_EQ(expected, shown) << XtName(XtParent(field)) << "." << XtName(field);
    XtFree(shown);
  }
};

TEST_F(KeysInFields, OfTheMainWindowTypeNothing) { expect_no_letter_typed_in(main_shell()); }

class KeysInFieldsOfDialog : public KeysInFields, public testing::WithParamInterface<Dialog> {};

TEST_P(KeysInFieldsOfDialog, TypeNothing) {
  come_to(GetParam());
  expect_no_letter_typed_in(widget(GetParam().shell));
}

INSTANTIATE_TEST_SUITE_P(Of, KeysInFieldsOfDialog,
                         testing::ValuesIn(dialogs_of({"widgetedit_dialog", "enumedit_dialog", "pageedit_dialog",
                                                       "popupedit_dialog", "options_shell", "open_dialog",
                                                       "read_dialog", "save_dialog", "gen_dialog"})),
                         shell_name);

TEST_F(KeysInFields, OfAFamilysPagesTypeNothing) {
  edit_family("F");
  for (const char* page : {"aliases", "converters", "enums", "code_headers", "config_headers", "family_headers",
                           "family_init", "widgets"}) {
    toggle(std::string("entity_opt_") + page + "_t", true);
    expect_no_letter_typed_in(widget("entity_dialog"));
  }
}

// Ctrl+Z.

class TakingBack : public Keys {
 protected:
  TakingBack() {
    open_widget_editor();
    click("widgetedit_realise");
  }
  static void expect_taken_back(const std::string& before, const std::string& after) {
    EXPECT_EQ(after, text("widgetedit_realise"));
    key("ctrl+z");
    EXPECT_EQ(before, text("widgetedit_realise"));
    key("ctrl+shift+z");
    EXPECT_EQ(after, text("widgetedit_realise"));
    key("ctrl+z");
    key("ctrl+y");
    EXPECT_EQ(after, text("widgetedit_realise"));
  }
};

TEST_F(TakingBack, ARunOfTypingGoesAtOnceAndComesBack) {
  type("create_dial");
  expect_taken_back("", "create_dial");
}

TEST_F(TakingBack, ACorrectionWhileTypingIsPartOfIt) {
  type("dail");
  key("BackSpace");
  key("BackSpace");
  type("al");
  expect_taken_back("", "daal");
}

TEST_F(TakingBack, TypingElsewhereInTheFieldIsARunOfItsOwn) {
  type("dial");
  key("Home");
  type("my_");
  expect_taken_back("dial", "my_dial");
}

TEST_F(TakingBack, TypingAfterLeavingTheFieldIsARunOfItsOwn) {
  type("my_");
  click("widgetedit_abstract");
  click("widgetedit_realise");
  key("End");
  type("dial");
  expect_taken_back("my_", "my_dial");
}

TEST_F(TakingBack, ErasingIsTakenBack) {
  enter("widgetedit_realise", "dial");
  key("Home");
  key("Delete");
  key("Delete");
  expect_taken_back("dial", "al");
}

TEST_F(TakingBack, TypingOverASelectionIsTakenBack) {
  enter("widgetedit_realise", "dial");
  key("ctrl+a");
  type("knob");
  expect_taken_back("dial", "knob");
}

TEST_F(TakingBack, CuttingIsTakenBack) {
  type("dial");
  type_with("ctrl", "ax");
  expect_taken_back("dial", "");
}

TEST_F(TakingBack, PastingIsTakenBack) {
  click("widgetedit_abstract");
  type("dial");
  type_with("ctrl", "ac");
  click("widgetedit_realise");
  type("my_");
  paste();
  expect_taken_back("my_", "my_dial");
}

TEST_F(TakingBack, TypingGoesOnWhereItWasTakenBack) {
  enter("widgetedit_realise", "my_dial");
  key("Home");
  type("all_");
  key("ctrl+z");
  type("x");
  EXPECT_EQ("xmy_dial", text("widgetedit_realise"));
}

TEST_F(TakingBack, EachFieldHasItsOwn) {
  type("dial");
  click("widgetedit_abstract");
  type("knob");
  click("widgetedit_realise");
  key("ctrl+z");
  EXPECT_EQ("", text("widgetedit_realise"));
  EXPECT_EQ("knob", text("widgetedit_abstract"));
}

TEST_F(TakingBack, WhatWasLeftComesBackAsItWasTyped) {
  type("dial");
  press("widgetedit_undob");
  key("ctrl+z");  // undoes what was done last, which is that the fields were left
  EXPECT_EQ("dial", text("widgetedit_realise"));
  key("ctrl+z");
  EXPECT_EQ("", text("widgetedit_realise"));
  click("widgetedit_abstract");
  key("ctrl+z");
  EXPECT_EQ("", text("widgetedit_abstract"));
}

TEST_F(TakingBack, KeepsWhatTheFieldCannotShow) {
  read_into(folder.with("odd.vqc", "VQconfig\nwidget 'W' {\nrealise='d\xfc'\n}\n"));
  open_widget_editor();
  click("widgetedit_realise");
  key("End");
  type("x");
  expect_taken_back("d?", "d?x");
  key("ctrl+z");
  press("widgetedit_applyb");
  EXPECT_NE(std::string::npos, saved_item("widget 'W'").find("realise='d\xfc'"));
}

TEST_F(TakingBack, CountsAsAChangeOfTheResource) {
  click("we_resource_t");
  type("r");
  press("we_resource_upd_b");
  key("ctrl+z");
  EXPECT_EQ("", text("we_resource_t"));
  press("widgetedit_closeb");
  EXPECT_TRUE(is_shown("resource_warn_dialog"));
}

}  // namespace
