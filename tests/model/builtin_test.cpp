#include "vqc/cmd/model/builtin.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/model.h"

using namespace vqc;

namespace {

class BuiltinNamesTest : public testing::Test {
 protected:
  BuiltinNames names;
};

TEST_F(BuiltinNamesTest, KindsAreNumbered) {
  EXPECT_EQ(1, BUILTIN_PAGE);
  EXPECT_EQ(2, BUILTIN_POPUP);
  EXPECT_EQ(3, BUILTIN_POPUP_INIT);
  EXPECT_EQ(4, BUILTIN_POPUP_UPDATE);
}

TEST_F(BuiltinNamesTest, AreFoundOnceRegistered) {
  EXPECT_FALSE(names.has("mine", BUILTIN_PAGE));
  const BuiltinName* entry = names.add("mine", BUILTIN_PAGE);
  ASSERT_NE(nullptr, entry);
  EXPECT_EQ("mine", entry->name);
  EXPECT_EQ(1, entry->kind);
  EXPECT_TRUE(names.has("mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNamesTest, AreRegisteredOncePerKind) {
  const BuiltinName* entry = names.add("mine", BUILTIN_PAGE);
  EXPECT_EQ(entry, names.add("mine", BUILTIN_PAGE));
  EXPECT_TRUE(names.remove("mine", BUILTIN_PAGE));
  EXPECT_FALSE(names.has("mine", BUILTIN_PAGE));
  EXPECT_FALSE(names.remove("mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNamesTest, MayBeOfTwoKinds) {
  names.add("mine", BUILTIN_PAGE);
  names.add("mine", BUILTIN_POPUP);
  EXPECT_TRUE(names.has("mine", BUILTIN_PAGE));
  EXPECT_TRUE(names.has("mine", BUILTIN_POPUP));
  EXPECT_FALSE(names.has("mine", BUILTIN_POPUP_INIT));
  EXPECT_TRUE(names.remove("mine", BUILTIN_PAGE));
  EXPECT_FALSE(names.has("mine", BUILTIN_PAGE));
  EXPECT_TRUE(names.has("mine", BUILTIN_POPUP));
}

TEST_F(BuiltinNamesTest, NullIsNoName) {
  EXPECT_EQ(nullptr, names.add(nullptr, BUILTIN_PAGE));
  EXPECT_FALSE(names.remove(nullptr, BUILTIN_PAGE));
  EXPECT_FALSE(names.has(nullptr, BUILTIN_PAGE));
}

TEST_F(BuiltinNamesTest, TellCaseApart) {
  names.add("mine", BUILTIN_PAGE);
  EXPECT_FALSE(names.has("Mine", BUILTIN_PAGE));
}

TEST_F(BuiltinNamesTest, OutliveWhatTheyWereCopiedFrom) {
  char name[] = "mine";
  names.add(name, BUILTIN_PAGE);
  name[0] = 'n';
  EXPECT_TRUE(names.has("mine", BUILTIN_PAGE));
}

// What every new family gets.

const char* const pages[] = {"display", "margins", "settings", "callbacks", "misc"};
const char* const popups[][2] = {
    {"vq_font_dialog_create", "vq_font_dialog_initialise"},
    {"vq_colour_dialog_create", "vq_colour_dialog_initialise"},
    {"vq_pixmap_dialog_create", "vq_pixmap_dialog_initialise"},
    {"vq_string_dialog_create", "vq_string_dialog_initialise"},
    {"vq_fsb_dialog_create", "vq_fsb_dialog_initialise"},
};

class Predefined : public testing::Test {
 protected:
  Document document;
};

TEST_F(Predefined, PagesAreRegistered) {
  document.ensure(document.families, "F");
  for (const char* page : pages) {
    EXPECT_TRUE(document.builtins.has(page, BUILTIN_PAGE)) << page;
    EXPECT_FALSE(document.builtins.has(page, BUILTIN_POPUP)) << page;
  }
}

TEST_F(Predefined, PopupsAndTheirInitialiseProceduresAreRegistered) {
  document.ensure(document.families, "F");
  for (auto& [popup, initialise] : popups) {
    EXPECT_TRUE(document.builtins.has(popup, BUILTIN_POPUP)) << popup;
    EXPECT_TRUE(document.builtins.has(initialise, BUILTIN_POPUP_INIT)) << initialise;
    EXPECT_EQ(initialise, document.popups.find(popup)->dialog_init);
    EXPECT_EQ(Text(), document.popups.find(popup)->dialog_update);
  }
}

TEST_F(Predefined, NoUpdateProcedureIsRegistered) {
  document.ensure(document.families, "F");
  for (auto& [popup, initialise] : popups) {
    EXPECT_FALSE(document.builtins.has(popup, BUILTIN_POPUP_UPDATE));
    EXPECT_FALSE(document.builtins.has(initialise, BUILTIN_POPUP_UPDATE));
  }
}

TEST_F(Predefined, InitialiseProceduresAreRegisteredOnceForAllFamilies) {
  document.ensure(document.families, "F");
  document.ensure(document.families, "G");
  for (auto& [popup, initialise] : popups) {
    EXPECT_TRUE(document.builtins.remove(initialise, BUILTIN_POPUP_INIT)) << initialise;
    EXPECT_FALSE(document.builtins.has(initialise, BUILTIN_POPUP_INIT)) << initialise;
    document.builtins.add(initialise, BUILTIN_POPUP_INIT);
  }
}

TEST_F(Predefined, PopupsGetTheirInitialiseProcedureBackWithEachFamily) {
  document.ensure(document.families, "F");
  PopupDef* popup = document.popups.find("vq_font_dialog_create");
  popup->dialog_init = "mine";
  popup->dialog_update = "my_update";
  document.ensure(document.families, "G");
  EXPECT_EQ("vq_font_dialog_initialise", popup->dialog_init);
  EXPECT_EQ("my_update", popup->dialog_update);
}

TEST_F(Predefined, PopupsAndPagesThatAreThereAreUsed) {
  document.ensure(document.popups, "vq_font_dialog_create");
  document.popups.find("vq_font_dialog_create")->dialog_init = "mine";
  PopupDef* popup = document.popups.find("vq_font_dialog_create");
  document.ensure(document.pages, "misc");
  PageDef* page = document.pages.find("misc");
  Family* family = document.ensure(document.families, "F");
  EXPECT_EQ(popup, family->popups.find("vq_font_dialog_create")->record);
  EXPECT_EQ("vq_font_dialog_initialise", popup->dialog_init);
  EXPECT_EQ(page, family->pages.find("misc")->record);
}

}  // namespace
