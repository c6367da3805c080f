#include "vqc/cmd/model/builtin.h"

#include <gtest/gtest.h>

#include "support/model.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"

namespace {

class BuiltinNames : public ModelTest {
 protected:
  ~BuiltinNames() override {
    for (int kind = BUILTIN_PAGE; kind <= BUILTIN_POPUP_UPDATE; ++kind) unregister_builtin_name("mine", kind);
  }
};

TEST_F(BuiltinNames, KindsAreNumbered) {
  EXPECT_EQ(1, BUILTIN_PAGE);
  EXPECT_EQ(2, BUILTIN_POPUP);
  EXPECT_EQ(3, BUILTIN_POPUP_INIT);
  EXPECT_EQ(4, BUILTIN_POPUP_UPDATE);
}

TEST_F(BuiltinNames, AreFoundOnceRegistered) {
  EXPECT_EQ(0, check_builtin_name("mine", BUILTIN_PAGE));
  BuiltinName* entry = register_builtin_name("mine", BUILTIN_PAGE);
  ASSERT_NE(nullptr, entry);
  EXPECT_STREQ("mine", entry->name);
  EXPECT_EQ(1, entry->kind);
  EXPECT_EQ(1, check_builtin_name("mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNames, AreRegisteredOncePerKind) {
  BuiltinName* entry = register_builtin_name("mine", BUILTIN_PAGE);
  EXPECT_EQ(entry, register_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(1, unregister_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(0, check_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(0, unregister_builtin_name("mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNames, MayBeOfTwoKinds) {
  register_builtin_name("mine", BUILTIN_PAGE);
  register_builtin_name("mine", BUILTIN_POPUP);
  EXPECT_EQ(1, check_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(1, check_builtin_name("mine", BUILTIN_POPUP));
  EXPECT_EQ(0, check_builtin_name("mine", BUILTIN_POPUP_INIT));
  EXPECT_EQ(1, unregister_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(0, check_builtin_name("mine", BUILTIN_PAGE));
  EXPECT_EQ(1, check_builtin_name("mine", BUILTIN_POPUP));
}

TEST_F(BuiltinNames, StandNewestFirst) {
  BuiltinName* older = register_builtin_name("mine", BUILTIN_PAGE);
  BuiltinName* newer = register_builtin_name("mine", BUILTIN_POPUP);
  EXPECT_EQ(older, newer->next);
}

TEST_F(BuiltinNames, NullIsNoName) {
  EXPECT_EQ(nullptr, register_builtin_name(nullptr, BUILTIN_PAGE));
  EXPECT_EQ(0, unregister_builtin_name(nullptr, BUILTIN_PAGE));
  EXPECT_EQ(0, check_builtin_name(nullptr, BUILTIN_PAGE));
}

TEST_F(BuiltinNames, TellCaseApart) {
  register_builtin_name("mine", BUILTIN_PAGE);
  EXPECT_EQ(0, check_builtin_name("Mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNames, OutliveWhatTheyWereCopiedFrom) {
  char name[] = "mine";
  register_builtin_name(name, BUILTIN_PAGE);
  name[0] = 'n';
  EXPECT_EQ(1, check_builtin_name("mine", BUILTIN_PAGE));
}

// What every new family gets.

const char* const predefined_pages[] = {"display", "margins", "settings", "callbacks", "misc"};
const char* const predefined_popups[][2] = {
    {"vq_font_dialog_create", "vq_font_dialog_initialise"},
    {"vq_colour_dialog_create", "vq_colour_dialog_initialise"},
    {"vq_pixmap_dialog_create", "vq_pixmap_dialog_initialise"},
    {"vq_string_dialog_create", "vq_string_dialog_initialise"},
    {"vq_fsb_dialog_create", "vq_fsb_dialog_initialise"},
};

class Predefined : public ModelTest {};

TEST_F(Predefined, PagesAreRegistered) {
  new_family("F");
  for (const char* page : predefined_pages) {
    EXPECT_EQ(1, check_builtin_name(page, BUILTIN_PAGE)) << page;
    EXPECT_EQ(0, check_builtin_name(page, BUILTIN_POPUP)) << page;
  }
}

TEST_F(Predefined, PopupsAndTheirInitialiseProceduresAreRegistered) {
  new_family("F");
  for (auto& [popup, initialise] : predefined_popups) {
    EXPECT_EQ(1, check_builtin_name(popup, BUILTIN_POPUP)) << popup;
    EXPECT_EQ(1, check_builtin_name(initialise, BUILTIN_POPUP_INIT)) << initialise;
    EXPECT_STREQ(initialise, popup_ptr(popup)->dialog_init);
    EXPECT_EQ(nullptr, popup_ptr(popup)->dialog_update.c_str());
  }
}

TEST_F(Predefined, NoUpdateProcedureIsRegistered) {
  new_family("F");
  for (auto& [popup, initialise] : predefined_popups) {
    EXPECT_EQ(0, check_builtin_name(popup, BUILTIN_POPUP_UPDATE));
    EXPECT_EQ(0, check_builtin_name(initialise, BUILTIN_POPUP_UPDATE));
  }
}

TEST_F(Predefined, InitialiseProceduresAreRegisteredOnceForAllFamilies) {
  new_family("F");
  new_family("G");
  for (auto& [popup, initialise] : predefined_popups) {
    EXPECT_EQ(1, unregister_builtin_name(initialise, BUILTIN_POPUP_INIT)) << initialise;
    EXPECT_EQ(0, check_builtin_name(initialise, BUILTIN_POPUP_INIT)) << initialise;
    register_builtin_name(initialise, BUILTIN_POPUP_INIT);
  }
}

TEST_F(Predefined, PopupsGetTheirInitialiseProcedureBackWithEachFamily) {
  new_family("F");
  PopupDef* popup = popup_ptr("vq_font_dialog_create");
  popup->dialog_init = "mine";
  popup->dialog_update = "my_update";
  new_family("G");
  EXPECT_STREQ("vq_font_dialog_initialise", popup->dialog_init);
  EXPECT_STREQ("my_update", popup->dialog_update);
}

TEST_F(Predefined, PopupsAndPagesThatAreThereAreUsed) {
  popup_add("vq_font_dialog_create");
  popup_ptr("vq_font_dialog_create")->dialog_init = "mine";
  PopupDef* popup = popup_ptr("vq_font_dialog_create");
  page_add("misc");
  PageDef* page = page_ptr("misc");
  Family* family = new_family("F");
  EXPECT_EQ(popup, popuplist_ptr(family, "vq_font_dialog_create")->record);
  EXPECT_STREQ("vq_font_dialog_initialise", popup->dialog_init);
  EXPECT_EQ(page, pagelist_ptr(family, "misc")->record);
}

TEST_F(Predefined, PagesAreNotAddedTwice) {
  Family* family = new_family("F");
  predefine_pages(family);
  predefine_popups(family);
  EXPECT_EQ(5, pagelist_count(family));
  EXPECT_EQ(5, popuplist_count(family));
}

TEST_F(Predefined, PagesComeBackInTheirOrderAfterThoseThatAreThere) {
  Family* family = new_family("F");
  pagelist_delete(family, "margins");
  pagelist_delete(family, "misc");
  predefine_pages(family);
  EXPECT_EQ((Names{"display", "settings", "callbacks", "margins", "misc"}), names_in(family->pages));
}

}  // namespace
