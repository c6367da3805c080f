#include <gtest/gtest.h>

#include <string>

#include "support/document.h"
#include "vqc/cmd/model/alias.h"
#include "vqc/cmd/model/converter.h"
#include "vqc/cmd/model/enumedit.h"
#include "vqc/cmd/model/enumentry.h"
#include "vqc/cmd/model/enumlist.h"
#include "vqc/cmd/model/header.h"
#include "vqc/cmd/model/page.h"
#include "vqc/cmd/model/popup.h"
#include "vqc/cmd/model/widgetedit.h"

namespace {

// What each item of a document makes of the model.

class ReadItems : public DocumentTest {
 protected:
  /// Adds items, which have no fault, to the model.
  void read(const std::string& items) {
    EXPECT_EQ(1, merge_document("VQconfig\n" + items)) << items;
    EXPECT_EQ(Messages{}, messages.shown) << items;
    EXPECT_EQ(0, parse_errors) << items;
  }
};

TEST_F(ReadItems, HeadersGoToTheirPools) {
  read("header 'c.h' cheader 'n.h' family_header 'f.h' header d.h header 'c.h'");
  EXPECT_EQ((Names{"c.h", "d.h"}), names_in(code_header_pool.list));
  EXPECT_EQ(Names{"n.h"}, names_in(config_header_pool.list));
  EXPECT_EQ(Names{"f.h"}, names_in(family_header_pool.list));
}

TEST_F(ReadItems, PagesStandAsTheyCome) {
  read("page 'z' page a page 'z'");
  EXPECT_EQ((Names{"z", "a"}), names_in(page_pool.list));
}

TEST_F(ReadItems, AliasNamesItsType) {
  read("alias 'A' { to_name = 'T' } alias B { to_name = U } alias 'C' {}");
  EXPECT_STREQ("T", alias_ptr("A")->to_name);
  EXPECT_STREQ("U", alias_ptr("B")->to_name);
  EXPECT_EQ(nullptr, alias_ptr("C")->to_name.c_str());
}

TEST_F(ReadItems, RecordsOfOneNameMerge) {
  read("alias 'A' { to_name='T' } alias 'A' {} widget 'W' { realise='r' } widget 'W' { abstract='a' }");
  EXPECT_STREQ("T", alias_ptr("A")->to_name);
  EXPECT_STREQ("r", widget_ptr("W")->realise);
  EXPECT_STREQ("a", widget_ptr("W")->abstract);
  EXPECT_EQ(1, widget_count());
}

TEST_F(ReadItems, AFieldGivenTwiceHasTheSecondValue) {
  read("alias 'A' { to_name='T' to_name='U' }");
  EXPECT_STREQ("U", alias_ptr("A")->to_name);
}

TEST_F(ReadItems, AnEmptyTextTakesAFieldBack) {
  read("alias 'A' { to_name='T' to_name='' }");
  EXPECT_EQ(nullptr, alias_ptr("A")->to_name.c_str());
}

TEST_F(ReadItems, TextsEndAtTheirFirstNul) {
  read("alias 'A\\0B' { to_name='T\\0U' } alias 'C' { to_name='" + std::string("x\0y", 3) + "' }");
  EXPECT_STREQ("T", alias_ptr("A")->to_name);
  EXPECT_STREQ("x", alias_ptr("C")->to_name);
}

TEST_F(ReadItems, TextsKeepBytesAbove127) {
  read("alias '\xc3\xa9' { to_name='\xff' }");
  EXPECT_STREQ("\xff", alias_ptr("\xc3\xa9")->to_name);
}

TEST_F(ReadItems, NamesAreCutAfter2047Characters) {
  read("alias '" + std::string(3000, 'x') + "' {}");
  EXPECT_EQ(Names{std::string(2047, 'x')}, names_in(alias_pool.list));
}

TEST_F(ReadItems, PopupHasItsProcedures) {
  read("popup 'P' { dialog_update='u' dialog_init=i }");
  EXPECT_STREQ("i", popup_ptr("P")->dialog_init);
  EXPECT_STREQ("u", popup_ptr("P")->dialog_update);
}

TEST_F(ReadItems, EnumerationHasItsEntries) {
  read("enumeration 'E' { enumentry 'z'{ code_symbol='Z' resfile_symbol='text' } typename='int' enumentry a {} }");
  EnumDef* enumeration = enum_ptr("E");
  EXPECT_STREQ("int", enumeration->type_name);
  EXPECT_EQ((Names{"z", "a"}), names_in(enumeration->entries));
  EXPECT_STREQ("Z", enumentry_ptr(enumeration, "z")->code_symbol);
  EXPECT_STREQ("text", enumentry_ptr(enumeration, "z")->resfile_symbol);
  EXPECT_EQ(nullptr, enumentry_ptr(enumeration, "a")->code_symbol.c_str());
}

TEST_F(ReadItems, EnumerationEntriesOfOneNameMerge) {
  read("enumeration 'E' { enumentry 'e'{ code_symbol='Z' } enumentry 'e'{ resfile_symbol='text' } }");
  EXPECT_EQ(1, enumentry_count(enum_ptr("E")));
  EXPECT_STREQ("Z", enumentry_ptr(enum_ptr("E"), "e")->code_symbol);
  EXPECT_STREQ("text", enumentry_ptr(enum_ptr("E"), "e")->resfile_symbol);
}

// Converters.

TEST_F(ReadItems, ConverterHasItsFields) {
  read("converter 'C' { proc_name='convert' dialog='D' add_in_vq=True add_in_code=True }");
  const ConverterDef& converter = *converter_ptr("C");
  EXPECT_STREQ("convert", converter.proc_name);
  EXPECT_STREQ("D", converter.dialog);
  EXPECT_TRUE(converter.add_in_vq);
  EXPECT_TRUE(converter.add_in_code);
  EXPECT_EQ(nullptr, popup_ptr("D"));
}

TEST_F(ReadItems, ConverterFlagsAreReadBothWays) {
  read("converter 'C' { add_in_vq=True add_in_code=yes add_in_vq=False }");
  EXPECT_FALSE(converter_ptr("C")->add_in_vq);
  EXPECT_TRUE(converter_ptr("C")->add_in_code);
}

TEST_F(ReadItems, ConverterOfTheOlderFormMakesItsPopup) {
  read("converter 'C' { dialog_init='i' dialog_create='D' dialog_update='u' }");
  EXPECT_STREQ("D", converter_ptr("C")->dialog);
  ASSERT_NE(nullptr, popup_ptr("D"));
  EXPECT_STREQ("i", popup_ptr("D")->dialog_init);
  EXPECT_STREQ("u", popup_ptr("D")->dialog_update);
}

TEST_F(ReadItems, ConverterOfTheOlderFormRewritesItsPopup) {
  read("popup 'D' { dialog_init='i' dialog_update='u' } converter 'C' { dialog_create='D' dialog_init='j' }");
  EXPECT_STREQ("j", popup_ptr("D")->dialog_init);
  EXPECT_EQ(nullptr, popup_ptr("D")->dialog_update.c_str());
}

TEST_F(ReadItems, ConverterWithoutAPopupDropsItsProcedures) {
  read("converter 'C' { dialog_init='i' dialog_update='u' }");
  EXPECT_EQ(0, popup_count());
  EXPECT_EQ(nullptr, converter_ptr("C")->dialog.c_str());
}

TEST_F(ReadItems, ConverterMakesItsPopupAfterItsClosingBraceOnly) {
  merge_document("VQconfig converter 'C' { dialog_create='D' ;");
  EXPECT_STREQ("D", converter_ptr("C")->dialog);
  EXPECT_EQ(nullptr, popup_ptr("D"));
}

// Widgets.

struct TextRow {
  const char* word;
  Text WidgetDef::*member;
};
const TextRow widget_texts[] = {
    {"include_filename", &WidgetDef::include_filename},
    {"defined_name", &WidgetDef::defined_name},
    {"realise", &WidgetDef::realise},
    {"abstract", &WidgetDef::abstract},
    {"can_add_child", &WidgetDef::can_add_child},
    {"appropriate_parent", &WidgetDef::appropriate_parent},
    {"largeicon", &WidgetDef::largeicon},
    {"smallicon", &WidgetDef::smallicon},
    {"largeiconheader", &WidgetDef::largeiconheader},
    {"smalliconheader", &WidgetDef::smalliconheader},
    {"pixmap_resource", &WidgetDef::pixmap_resource},
    {"widget_doc", &WidgetDef::widget_doc},
    {"widget_tag", &WidgetDef::widget_tag},
    {"dialogue_doc", &WidgetDef::dialogue_doc},
    {"dialogue_tag", &WidgetDef::dialogue_tag},
};

struct FlagRow {
  const char* word;
  bool WidgetDef::*member;
};
const FlagRow widget_flags[] = {
    {"disablefgswap", &WidgetDef::disablefgswap},
    {"disablegoto", &WidgetDef::disablegoto},
    {"can_create", &WidgetDef::can_create},
    {"can_edit_abstract", &WidgetDef::can_edit_abstract},
    {"can_manage", &WidgetDef::can_manage},
    {"generate_initialise", &WidgetDef::generate_initialise},
    {"default_is_dont_free", &WidgetDef::default_is_dont_free},
};

TEST_F(ReadItems, WidgetTextsGoToTheirMembers) {
  for (const TextRow& row : widget_texts) {
    read("widget '" + std::string(row.word) + "' { " + row.word + " = 'value' }");
    const WidgetDef& widget = *widget_ptr(row.word);
    for (const TextRow& other : widget_texts) {
      EXPECT_EQ(&other == &row ? "value" : "", (widget.*other.member).view()) << row.word << " " << other.word;
    }
  }
}

TEST_F(ReadItems, WidgetFlagsGoToTheirMembers) {
  const WidgetDef unchanged;
  for (const FlagRow& row : widget_flags) {
    const char* opposite = unchanged.*row.member ? "False" : "True";
    read("widget '" + std::string(row.word) + "' { " + row.word + " = " + opposite + " }");
    const WidgetDef& widget = *widget_ptr(row.word);
    for (const FlagRow& other : widget_flags) {
      EXPECT_EQ((unchanged.*other.member) != (&other == &row), widget.*other.member) << row.word << " " << other.word;
    }
  }
}

TEST_F(ReadItems, OnlyFalseIsFalse) {
  const std::pair<const char*, bool> cases[] = {
      {"False", false}, {"false", false}, {"FALSE", false}, {"'False'", false}, {"fAlSe", false}, {"True", true},
      {"no", true},     {"'0'", true},    {"''", true},     {"Falsey", true},   {"F", true},
  };
  for (auto& [value, expected] : cases) {
    for (const char* before : {"True", "False"}) {
      read(std::string("widget 'W' { can_manage = ") + before + " can_manage = " + value + " }");
      EXPECT_EQ(expected, widget_ptr("W")->can_manage) << value;
    }
  }
}

// Resources.

class ReadResources : public ReadItems {
 protected:
  /// Adds the resources of the list `definitions` to the widget "W".
  void define(const std::string& definitions) { read("widget 'W' { resource_definitions=" + definitions + " }"); }
  static Names resources() { return names_in(widget_ptr("W")->resource_definitions); }
  static ResourceDef& resource(const char* name) { return *resource_ptr(widget_ptr("W"), name); }
};

TEST_F(ReadResources, TakesTheLongForm) {
  define("'r', 'P', 'settings', False, VQC_FREE, VQC_DONT_FREE access 5 counter 'n';");
  EXPECT_STREQ("P", resource("r").popup);
  EXPECT_STREQ("settings", resource("r").page);
  EXPECT_FALSE(resource("r").visible);
  EXPECT_EQ(FreeMode::free, resource("r").free_get);
  EXPECT_EQ(FreeMode::dont_free, resource("r").free_set);
  EXPECT_EQ(5, resource("r").access);
  EXPECT_STREQ("n", resource("r").counter);
}

TEST_F(ReadResources, TakesTheLongFormWithNothingGiven) {
  define("'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT;");
  EXPECT_EQ(nullptr, resource("r").popup.c_str());
  EXPECT_EQ(nullptr, resource("r").page.c_str());
  EXPECT_EQ(nullptr, resource("r").counter.c_str());
  EXPECT_TRUE(resource("r").visible);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_get);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_set);
  EXPECT_EQ(-1, resource("r").access);
}

TEST_F(ReadResources, GivesTheUsualValuesToAResourceThatHadOthers) {
  define("'r', 'P', 'settings', False, VQC_FREE, VQC_DONT_FREE access 5 counter 'n';");
  define("'r', , 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 6 counter 'm', 's', , , False;");
  EXPECT_STREQ("P", resource("r").popup);
  EXPECT_STREQ("misc", resource("r").page);
  EXPECT_TRUE(resource("r").visible);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_get);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_set);
  EXPECT_EQ(6, resource("r").access);
  EXPECT_STREQ("m", resource("r").counter);
  EXPECT_EQ((Names{"r", "s"}), resources());
}

TEST_F(ReadResources, TakesAnySpaceBetweenTheWords) {
  for (const std::string space : {"", " ", "  ", "\t", "\n", "/* */", "! a\n"}) {
    const std::string comma = space + "," + space;
    define("'r', , , False, VQC_FREE, VQC_FREE;");
    define("'r'" + comma + comma + comma + "True" + comma + "VQC_FREE_DEFAULT" + comma + "VQC_FREE_DEFAULT" + space +
           ";");
    EXPECT_TRUE(resource("r").visible) << space;
    EXPECT_EQ(FreeMode::by_default, resource("r").free_get) << space;
    EXPECT_EQ(FreeMode::by_default, resource("r").free_set) << space;
  }
}

TEST_F(ReadResources, ReadsThemAlikeWhereverTheyLieInTheFile) {
  constexpr std::size_t kPart = std::size_t{64} * 1024;  // files are read in parts of this size
  const std::string list = "'r', , 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 2, 's', , , False;";
  const std::string before = "VQconfig\nwidget 'W' { resource_definitions=";
  for (std::size_t in_first_part = 0; in_first_part <= list.size(); ++in_first_part) {
    define("'r', , , False, VQC_FREE, VQC_FREE;");
    define(std::string(kPart - before.size() - in_first_part, ' ') + list);
    EXPECT_TRUE(resource("r").visible) << in_first_part;
    EXPECT_EQ(FreeMode::by_default, resource("r").free_get) << in_first_part;
    EXPECT_EQ(FreeMode::by_default, resource("r").free_set) << in_first_part;
    EXPECT_EQ(2, resource("r").access) << in_first_part;
  }
}

TEST_F(ReadResources, TakesTheOlderFormWithoutFreeModes) {
  define("'s', , , True, 'r', 'P', , False;");
  EXPECT_EQ((Names{"r", "s"}), resources());
  EXPECT_STREQ("P", resource("r").popup);
  EXPECT_FALSE(resource("r").visible);
}

TEST_F(ReadResources, MixesTheForms) {
  define(
      "'a', , , True,\n'b', , , True, VQC_FREE, VQC_FREE,\n'c', , , True,"
      "'d', , , no, VQC_FREE, VQC_FREE counter 'n';");
  EXPECT_EQ((Names{"a", "b", "c", "d"}), resources());
}

TEST_F(ReadResources, TakesAnEmptyList) {
  define(";");
  EXPECT_EQ(Names{}, resources());
}

TEST_F(ReadResources, TakesACommaBeforeTheEnd) {
  define("'a', , , True, VQC_FREE, VQC_FREE, ; can_manage = False");
  EXPECT_EQ(Names{"a"}, resources());
  EXPECT_FALSE(widget_ptr("W")->can_manage);
}

TEST_F(ReadResources, SkipsAnyTokenAfterTheList) {
  define("'a', , , True : can_manage = False");
  EXPECT_EQ(Names{"a"}, resources());
  EXPECT_FALSE(widget_ptr("W")->can_manage);
}

TEST_F(ReadResources, SkipsTheClosingBraceWhereTheSemicolonIsMissing) {
  merge_document("VQconfig\nwidget 'W' { resource_definitions='r', , , True }\n");
  EXPECT_EQ(Names{"r"}, resources());
  EXPECT_EQ(Messages{"Syntax error on line 3: '}'"}, messages.shown);
}

TEST_F(ReadResources, OnlyTrueIsVisible) {
  define("'a', , , True, 'b', , , TRUE, 'c', , , true, 'd', , , no, 'e', , , Yes, 'f', , , False;");
  for (const char* name : {"a", "b", "c"}) EXPECT_TRUE(resource(name).visible) << name;
  for (const char* name : {"d", "e", "f"}) EXPECT_FALSE(resource(name).visible) << name;
}

TEST_F(ReadResources, KeepsWhatIsAbsentInAResourceThatIsReadAgain) {
  define("'r', 'P', 'settings', True, VQC_FREE, VQC_FREE access 3 counter 'n';");
  define("'r', , , False, VQC_DONT_FREE, VQC_FREE_DEFAULT;");
  EXPECT_STREQ("P", resource("r").popup);
  EXPECT_STREQ("settings", resource("r").page);
  EXPECT_STREQ("n", resource("r").counter);
  EXPECT_FALSE(resource("r").visible);
  EXPECT_EQ(FreeMode::dont_free, resource("r").free_get);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_set);
  EXPECT_EQ(-1, resource("r").access);
}

TEST_F(ReadResources, KeepsTheRestWhereTheOlderFormIsReadAgain) {
  define("'r', , , True, VQC_FREE, VQC_FREE access 3;");
  define("'r', 'P', , False;");
  EXPECT_EQ(FreeMode::free, resource("r").free_get);
  EXPECT_EQ(3, resource("r").access);
  EXPECT_STREQ("P", resource("r").popup);
}

TEST_F(ReadResources, TakesEmptyTextsForNone) {
  define("'r', 'P', 'settings', True, VQC_FREE, VQC_FREE counter 'n';");
  define("'r', '', '', True, VQC_FREE, VQC_FREE counter '';");
  EXPECT_EQ(nullptr, resource("r").popup.c_str());
  EXPECT_EQ(nullptr, resource("r").page.c_str());
  EXPECT_EQ(nullptr, resource("r").counter.c_str());
}

TEST_F(ReadResources, WrapsAccessTo32Bits) {
  define("'a', , , True, VQC_FREE, VQC_FREE access 4294967299, 'b', , , True, VQC_FREE, VQC_FREE access -1;");
  EXPECT_EQ(3, resource("a").access);
  EXPECT_EQ(-1, resource("b").access);
}

TEST_F(ReadResources, KeepsThemSorted) {
  define("'c', , , True, 'a', , , True, 'B', , , True, 'b', , , True;");
  EXPECT_EQ((Names{"B", "a", "b", "c"}), resources());
}

TEST_F(ReadResources, TakesThePopupsOfTheOlderForm) {
  define("'a', , 'misc', False;");
  read("widget 'W' { resource_popups='a', 'P', 'b', 'Q' can_manage=False }");
  EXPECT_EQ((Names{"a", "b"}), resources());
  EXPECT_STREQ("P", resource("a").popup);
  EXPECT_STREQ("misc", resource("a").page);
  EXPECT_FALSE(resource("a").visible);
  EXPECT_STREQ("Q", resource("b").popup);
  EXPECT_FALSE(widget_ptr("W")->can_manage);
}

TEST_F(ReadResources, TakesAResourceOfTheOlderFormWithoutAPopup) {
  read("widget 'W' { resource_popups='a' can_manage=False }");
  EXPECT_EQ(Names{"a"}, resources());
  EXPECT_EQ(nullptr, resource("a").popup.c_str());
}

// Families.

TEST_F(ReadItems, FamilyUsesWhatItNames) {
  read(
      "family 'F' { widget=W enumeration='E' header='c.h' cheader='n.h' family_header='f.h' alias='A' converter='C'\n"
      "popup='P' page='own' widget='V' }");
  const Family& family = *family_ptr("F");
  EXPECT_EQ((Names{"W", "V"}), names_in(family.widgets));
  EXPECT_EQ(Names{"E"}, names_in(family.enumerations));
  EXPECT_EQ(Names{"c.h"}, names_in(family.code_headers));
  EXPECT_EQ(Names{"n.h"}, names_in(family.config_headers));
  EXPECT_EQ(Names{"f.h"}, names_in(family.family_headers));
  EXPECT_EQ(Names{"A"}, names_in(family.aliases));
  EXPECT_EQ(Names{"C"}, names_in(family.converters));
  EXPECT_EQ("P", names_in(family.popups).front());
  EXPECT_EQ("own", names_in(family.pages).back());
}

TEST_F(ReadItems, FamilyUsesARecordOnce) {
  read("family 'F' { widget='W' widget='W' popup='vq_font_dialog_create' page='misc' page='own' page='own' }");
  EXPECT_EQ(Names{"W"}, names_in(family_ptr("F")->widgets));
  EXPECT_EQ(5, popuplist_count(family_ptr("F")));
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc", "own"}), names_in(family_ptr("F")->pages));
}

TEST_F(ReadItems, FamilyUsesTheRecordThatIsThere) {
  read("widget 'W' { realise='r' } family 'F' { widget='W' }");
  EXPECT_STREQ("r", family_ptr("F")->widgets.head()->record->realise);
  EXPECT_EQ(1, widget_ptr("W")->uses);
}

TEST_F(ReadItems, FamiliesOfOneNameMerge) {
  read("family 'F' { widget='W' family_init='init' } family 'F' { widget='V' }");
  EXPECT_EQ(1, family_count());
  EXPECT_EQ((Names{"W", "V"}), names_in(family_ptr("F")->widgets));
  EXPECT_STREQ("init", family_ptr("F")->family_init);
}

TEST_F(ReadItems, FamilyTakesThePopupOfItsConverter) {
  read(
      "converter 'C' { dialog='D' } converter 'B' { dialog='vq_font_dialog_create' } family 'F' { converter='C' "
      "converter='B' }");
  EXPECT_NE(nullptr, popuplist_ptr(family_ptr("F"), "D"));
  EXPECT_EQ(6, popuplist_count(family_ptr("F")));
}

TEST_F(ReadItems, FamilyTakesNoPopupOfAConverterThatComesLater) {
  read("family 'F' { converter='C' } converter 'C' { dialog='D' }");
  EXPECT_EQ(nullptr, popuplist_ptr(family_ptr("F"), "D"));
}

TEST_F(ReadItems, FamilyHasItsInitProcedure) {
  read(
      "family 'F' { family_init=init generate_family_init_vq=True generate_family_init_code=False\n"
      "generate_family_init_stub=yes generate_family_init_pre_shell='true' }");
  const Family& family = *family_ptr("F");
  EXPECT_STREQ("init", family.family_init);
  EXPECT_TRUE(family.generate_family_init_vq);
  EXPECT_FALSE(family.generate_family_init_code);
  EXPECT_TRUE(family.generate_family_init_stub);
  EXPECT_TRUE(family.generate_family_init_pre_shell);
}

TEST_F(ReadItems, FamilyMayHaveAnEmptyInitProcedure) {
  read("family 'F' { family_init='' }");
  EXPECT_STREQ("", family_ptr("F")->family_init);
}

TEST_F(ReadItems, FamilyResetsWhatThePredefinedPopupsWere) {
  read("popup 'vq_font_dialog_create' { dialog_init='mine' dialog_update='my_update' } family 'F' {}");
  EXPECT_STREQ("vq_font_dialog_initialise", popup_ptr("vq_font_dialog_create")->dialog_init);
  EXPECT_STREQ("my_update", popup_ptr("vq_font_dialog_create")->dialog_update);
}

TEST_F(ReadItems, ARecordExistsBeforeItsBlockBegins) {
  for (const char* item : {"alias", "popup", "converter", "enumeration", "widget", "family"}) {
    merge_document(std::string("VQconfig ") + item + " 'X' ;");
  }
  EXPECT_NE(nullptr, alias_ptr("X"));
  EXPECT_NE(nullptr, popup_ptr("X"));
  EXPECT_NE(nullptr, converter_ptr("X"));
  EXPECT_NE(nullptr, enum_ptr("X"));
  EXPECT_NE(nullptr, widget_ptr("X"));
  EXPECT_NE(nullptr, family_ptr("X"));
}

}  // namespace
