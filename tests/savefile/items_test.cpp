#include <gtest/gtest.h>

#include <string>

#include "support/document.h"

using namespace vqc;

namespace {

// What each item of a document makes of the document.

class ReadItems : public DocumentTest {
 protected:
  /// Adds items, which have no fault, to the document.
  void read(const std::string& items) {
    const LoadResult result = read_document("VQconfig\n" + items);
    EXPECT_TRUE(result.has_header) << items;
    EXPECT_FALSE(result.first_error) << items;
    EXPECT_EQ(Findings{}, diagnostics.findings()) << items;
  }
};

TEST_F(ReadItems, HeadersGoToTheirPools) {
  read("header 'c.h' cheader 'n.h' family_header 'f.h' header d.h header 'c.h'");
  EXPECT_EQ((Names{"c.h", "d.h"}), names_in(document.code_headers));
  EXPECT_EQ(Names{"n.h"}, names_in(document.config_headers));
  EXPECT_EQ(Names{"f.h"}, names_in(document.family_headers));
}

TEST_F(ReadItems, PagesStandAsTheyCome) {
  read("page 'z' page a page 'z'");
  EXPECT_EQ((Names{"z", "a"}), names_in(document.pages));
}

TEST_F(ReadItems, AliasNamesItsType) {
  read("alias 'A' { to_name = 'T' } alias B { to_name = U } alias 'C' {}");
  EXPECT_EQ("T", document.aliases.find("A")->to_name);
  EXPECT_EQ("U", document.aliases.find("B")->to_name);
  EXPECT_EQ(nullptr, document.aliases.find("C")->to_name);
}

TEST_F(ReadItems, RecordsOfOneNameMerge) {
  read("alias 'A' { to_name='T' } alias 'A' {} widget 'W' { realise='r' } widget 'W' { abstract='a' }");
  EXPECT_EQ("T", document.aliases.find("A")->to_name);
  EXPECT_EQ("r", document.widgets.find("W")->realise);
  EXPECT_EQ("a", document.widgets.find("W")->abstract);
  EXPECT_EQ(1U, document.widgets.size());
}

TEST_F(ReadItems, AFieldGivenTwiceHasTheSecondValue) {
  read("alias 'A' { to_name='T' to_name='U' }");
  EXPECT_EQ("U", document.aliases.find("A")->to_name);
}

TEST_F(ReadItems, AnEmptyTextTakesAFieldBack) {
  read("alias 'A' { to_name='T' to_name='' }");
  EXPECT_EQ(nullptr, document.aliases.find("A")->to_name);
}

TEST_F(ReadItems, TextsEndAtTheirFirstNul) {
  read("alias 'A\\0B' { to_name='T\\0U' } alias 'C' { to_name='" + std::string("x\0y", 3) + "' }");
  EXPECT_EQ("T", document.aliases.find("A")->to_name);
  EXPECT_EQ("x", document.aliases.find("C")->to_name);
}

TEST_F(ReadItems, TextsKeepBytesAbove127) {
  read("alias '\xc3\xa9' { to_name='\xff' }");
  EXPECT_EQ("\xff", document.aliases.find("\xc3\xa9")->to_name);
}

TEST_F(ReadItems, NamesAreCutAfter2047Characters) {
  read("alias '" + std::string(3000, 'x') + "' {}");
  EXPECT_EQ(Names{std::string(2047, 'x')}, names_in(document.aliases));
}

TEST_F(ReadItems, PopupHasItsProcedures) {
  read("popup 'P' { dialog_update='u' dialog_init=i }");
  EXPECT_EQ("i", document.popups.find("P")->dialog_init);
  EXPECT_EQ("u", document.popups.find("P")->dialog_update);
}

TEST_F(ReadItems, EnumerationHasItsEntries) {
  read("enumeration 'E' { enumentry 'z'{ code_symbol='Z' resfile_symbol='text' } typename='int' enumentry a {} }");
  EnumDef* enumeration = document.enumerations.find("E");
  EXPECT_EQ("int", enumeration->type_name);
  EXPECT_EQ((Names{"z", "a"}), names_in(enumeration->entries));
  EXPECT_EQ("Z", enumeration->entries.find("z")->code_symbol);
  EXPECT_EQ("text", enumeration->entries.find("z")->resfile_symbol);
  EXPECT_EQ(nullptr, enumeration->entries.find("a")->code_symbol);
}

TEST_F(ReadItems, EnumerationEntriesOfOneNameMerge) {
  read("enumeration 'E' { enumentry 'e'{ code_symbol='Z' } enumentry 'e'{ resfile_symbol='text' } }");
  EXPECT_EQ(1U, document.enumerations.find("E")->entries.size());
  EXPECT_EQ("Z", document.enumerations.find("E")->entries.find("e")->code_symbol);
  EXPECT_EQ("text", document.enumerations.find("E")->entries.find("e")->resfile_symbol);
}

// Converters.

TEST_F(ReadItems, ConverterHasItsFields) {
  read("converter 'C' { proc_name='convert' dialog='D' add_in_vq=True add_in_code=True }");
  const ConverterDef& converter = *document.converters.find("C");
  EXPECT_EQ("convert", converter.proc_name);
  EXPECT_EQ("D", converter.dialog);
  EXPECT_TRUE(converter.add_in_vq);
  EXPECT_TRUE(converter.add_in_code);
  EXPECT_EQ(nullptr, document.popups.find("D"));
}

TEST_F(ReadItems, ConverterFlagsAreReadBothWays) {
  read("converter 'C' { add_in_vq=True add_in_code=yes add_in_vq=False }");
  EXPECT_FALSE(document.converters.find("C")->add_in_vq);
  EXPECT_TRUE(document.converters.find("C")->add_in_code);
}

TEST_F(ReadItems, ConverterOfTheOlderFormMakesItsPopup) {
  read("converter 'C' { dialog_init='i' dialog_create='D' dialog_update='u' }");
  EXPECT_EQ("D", document.converters.find("C")->dialog);
  ASSERT_NE(nullptr, document.popups.find("D"));
  EXPECT_EQ("i", document.popups.find("D")->dialog_init);
  EXPECT_EQ("u", document.popups.find("D")->dialog_update);
}

TEST_F(ReadItems, ConverterOfTheOlderFormRewritesItsPopup) {
  read("popup 'D' { dialog_init='i' dialog_update='u' } converter 'C' { dialog_create='D' dialog_init='j' }");
  EXPECT_EQ("j", document.popups.find("D")->dialog_init);
  EXPECT_EQ(nullptr, document.popups.find("D")->dialog_update);
}

TEST_F(ReadItems, ConverterWithoutAPopupDropsItsProcedures) {
  read("converter 'C' { dialog_init='i' dialog_update='u' }");
  EXPECT_EQ(0U, document.popups.size());
  EXPECT_EQ(nullptr, document.converters.find("C")->dialog);
}

TEST_F(ReadItems, ConverterMakesItsPopupAfterItsClosingBraceOnly) {
  read_document("VQconfig converter 'C' { dialog_create='D' ;");
  EXPECT_EQ("D", document.converters.find("C")->dialog);
  EXPECT_EQ(nullptr, document.popups.find("D"));
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
    const WidgetDef& widget = *document.widgets.find(row.word);
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
    const WidgetDef& widget = *document.widgets.find(row.word);
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
      EXPECT_EQ(expected, document.widgets.find("W")->can_manage) << value;
    }
  }
}

// Resources.

class ReadResources : public ReadItems {
 protected:
  /// Adds the resources of the list `definitions` to the widget "W".
  void define(const std::string& definitions) { read("widget 'W' { resource_definitions=" + definitions + " }"); }
  Names resources() const { return names_in(document.widgets.find("W")->resource_definitions); }
  ResourceDef& resource(const char* name) const { return *document.widgets.find("W")->resource_definitions.find(name); }
};

TEST_F(ReadResources, TakesTheLongForm) {
  define("'r', 'P', 'settings', False, VQC_FREE, VQC_DONT_FREE access 5 counter 'n';");
  EXPECT_EQ("P", resource("r").popup);
  EXPECT_EQ("settings", resource("r").page);
  EXPECT_FALSE(resource("r").visible);
  EXPECT_EQ(FreeMode::free, resource("r").free_get);
  EXPECT_EQ(FreeMode::dont_free, resource("r").free_set);
  EXPECT_EQ(5, resource("r").access);
  EXPECT_EQ("n", resource("r").counter);
}

TEST_F(ReadResources, TakesTheLongFormWithNothingGiven) {
  define("'r', , , True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT;");
  EXPECT_EQ(nullptr, resource("r").popup);
  EXPECT_EQ(nullptr, resource("r").page);
  EXPECT_EQ(nullptr, resource("r").counter);
  EXPECT_TRUE(resource("r").visible);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_get);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_set);
  EXPECT_EQ(-1, resource("r").access);
}

TEST_F(ReadResources, GivesTheUsualValuesToAResourceThatHadOthers) {
  define("'r', 'P', 'settings', False, VQC_FREE, VQC_DONT_FREE access 5 counter 'n';");
  define("'r', , 'misc', True, VQC_FREE_DEFAULT, VQC_FREE_DEFAULT access 6 counter 'm', 's', , , False;");
  EXPECT_EQ("P", resource("r").popup);
  EXPECT_EQ("misc", resource("r").page);
  EXPECT_TRUE(resource("r").visible);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_get);
  EXPECT_EQ(FreeMode::by_default, resource("r").free_set);
  EXPECT_EQ(6, resource("r").access);
  EXPECT_EQ("m", resource("r").counter);
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

TEST_F(ReadResources, TakesTheOlderFormWithoutFreeModes) {
  define("'s', , , True, 'r', 'P', , False;");
  EXPECT_EQ((Names{"r", "s"}), resources());
  EXPECT_EQ("P", resource("r").popup);
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
  EXPECT_FALSE(document.widgets.find("W")->can_manage);
}

TEST_F(ReadResources, SkipsAnyTokenAfterTheList) {
  define("'a', , , True : can_manage = False");
  EXPECT_EQ(Names{"a"}, resources());
  EXPECT_FALSE(document.widgets.find("W")->can_manage);
}

TEST_F(ReadResources, SkipsTheClosingBraceWhereTheSemicolonIsMissing) {
  const LoadResult result = read_document("VQconfig\nwidget 'W' { resource_definitions='r', , , True }\n");
  EXPECT_EQ(Names{"r"}, resources());
  ASSERT_TRUE(result.first_error);
  EXPECT_EQ("'}'", result.first_error->message);
  EXPECT_EQ(3, result.first_error->line);
}

TEST_F(ReadResources, OnlyTrueIsVisible) {
  define("'a', , , True, 'b', , , TRUE, 'c', , , true, 'd', , , no, 'e', , , Yes, 'f', , , False;");
  for (const char* name : {"a", "b", "c"}) EXPECT_TRUE(resource(name).visible) << name;
  for (const char* name : {"d", "e", "f"}) EXPECT_FALSE(resource(name).visible) << name;
}

TEST_F(ReadResources, KeepsWhatIsAbsentInAResourceThatIsReadAgain) {
  define("'r', 'P', 'settings', True, VQC_FREE, VQC_FREE access 3 counter 'n';");
  define("'r', , , False, VQC_DONT_FREE, VQC_FREE_DEFAULT;");
  EXPECT_EQ("P", resource("r").popup);
  EXPECT_EQ("settings", resource("r").page);
  EXPECT_EQ("n", resource("r").counter);
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
  EXPECT_EQ("P", resource("r").popup);
}

TEST_F(ReadResources, TakesEmptyTextsForNone) {
  define("'r', 'P', 'settings', True, VQC_FREE, VQC_FREE counter 'n';");
  define("'r', '', '', True, VQC_FREE, VQC_FREE counter '';");
  EXPECT_EQ(nullptr, resource("r").popup);
  EXPECT_EQ(nullptr, resource("r").page);
  EXPECT_EQ(nullptr, resource("r").counter);
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
  EXPECT_EQ("P", resource("a").popup);
  EXPECT_EQ("misc", resource("a").page);
  EXPECT_FALSE(resource("a").visible);
  EXPECT_EQ("Q", resource("b").popup);
  EXPECT_FALSE(document.widgets.find("W")->can_manage);
}

TEST_F(ReadResources, TakesAResourceOfTheOlderFormWithoutAPopup) {
  read("widget 'W' { resource_popups='a' can_manage=False }");
  EXPECT_EQ(Names{"a"}, resources());
  EXPECT_EQ(nullptr, resource("a").popup);
}

// Families.

TEST_F(ReadItems, FamilyUsesWhatItNames) {
  read(
      "family 'F' { widget=W enumeration='E' header='c.h' cheader='n.h' family_header='f.h' alias='A' converter='C'\n"
      "popup='P' page='own' widget='V' }");
  const Family& family = *document.families.find("F");
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
  EXPECT_EQ(Names{"W"}, names_in(document.families.find("F")->widgets));
  EXPECT_EQ(5U, document.families.find("F")->popups.size());
  EXPECT_EQ((Names{"display", "margins", "settings", "callbacks", "misc", "own"}),
            names_in(document.families.find("F")->pages));
}

TEST_F(ReadItems, FamilyUsesTheRecordThatIsThere) {
  read("widget 'W' { realise='r' } family 'F' { widget='W' }");
  EXPECT_EQ("r", document.families.find("F")->widgets.head()->record->realise);
  EXPECT_EQ(1, document.widgets.find("W")->uses);
}

TEST_F(ReadItems, FamiliesOfOneNameMerge) {
  read("family 'F' { widget='W' family_init='init' } family 'F' { widget='V' }");
  EXPECT_EQ(1U, document.families.size());
  EXPECT_EQ((Names{"W", "V"}), names_in(document.families.find("F")->widgets));
  EXPECT_EQ("init", document.families.find("F")->family_init);
}

TEST_F(ReadItems, FamilyTakesThePopupOfItsConverter) {
  read(
      "converter 'C' { dialog='D' } converter 'B' { dialog='vq_font_dialog_create' } family 'F' { converter='C' "
      "converter='B' }");
  EXPECT_NE(nullptr, document.families.find("F")->popups.find("D"));
  EXPECT_EQ(6U, document.families.find("F")->popups.size());
}

TEST_F(ReadItems, FamilyTakesNoPopupOfAConverterThatComesLater) {
  read("family 'F' { converter='C' } converter 'C' { dialog='D' }");
  EXPECT_EQ(nullptr, document.families.find("F")->popups.find("D"));
}

TEST_F(ReadItems, FamilyHasItsInitProcedure) {
  read(
      "family 'F' { family_init=init generate_family_init_vq=True generate_family_init_code=False\n"
      "generate_family_init_stub=yes generate_family_init_pre_shell='true' }");
  const Family& family = *document.families.find("F");
  EXPECT_EQ("init", family.family_init);
  EXPECT_TRUE(family.generate_family_init_vq);
  EXPECT_FALSE(family.generate_family_init_code);
  EXPECT_TRUE(family.generate_family_init_stub);
  EXPECT_TRUE(family.generate_family_init_pre_shell);
}

TEST_F(ReadItems, FamilyMayHaveAnEmptyInitProcedure) {
  read("family 'F' { family_init='' }");
  EXPECT_EQ("", document.families.find("F")->family_init);
}

TEST_F(ReadItems, FamilyResetsWhatThePredefinedPopupsWere) {
  read("popup 'vq_font_dialog_create' { dialog_init='mine' dialog_update='my_update' } family 'F' {}");
  EXPECT_EQ("vq_font_dialog_initialise", document.popups.find("vq_font_dialog_create")->dialog_init);
  EXPECT_EQ("my_update", document.popups.find("vq_font_dialog_create")->dialog_update);
}

TEST_F(ReadItems, ARecordExistsBeforeItsBlockBegins) {
  for (const char* item : {"alias", "popup", "converter", "enumeration", "widget", "family"}) {
    read_document(std::string("VQconfig ") + item + " 'X' ;");
  }
  EXPECT_NE(nullptr, document.aliases.find("X"));
  EXPECT_NE(nullptr, document.popups.find("X"));
  EXPECT_NE(nullptr, document.converters.find("X"));
  EXPECT_NE(nullptr, document.enumerations.find("X"));
  EXPECT_NE(nullptr, document.widgets.find("X"));
  EXPECT_NE(nullptr, document.families.find("X"));
}

}  // namespace
