#include "vqc/cmd/savefile/places.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "support/document.h"

using namespace vqc;

namespace {

// Where the parts of a document stand.

class PlacesTest : public DocumentTest {
 protected:
  void read(std::string_view text) {
    source = Source::from_text(text);
    diagnostics = {};
    load(source, document, diagnostics, AfterError::go_on, &places);
  }

  /// What stands where a part does, in their order.
  Names texts_at(const void* part) const {
    Names texts;
    for (const Places::Entry& entry : places.entries()) {
      if (entry.part == part) texts.emplace_back(source->text(entry.range));
    }
    return texts;
  }

  std::shared_ptr<const Source> source;
  Places places;
};

TEST_F(PlacesTest, AreThoseOfNamesAndValues) {
  read("VQconfig alias 'A' { to_name = T } popup P { dialog_init='i' }");
  const AliasDef* alias = document.aliases.find("A");
  EXPECT_EQ(Names{"'A'"}, texts_at(alias));
  EXPECT_EQ(Names{"T"}, texts_at(&alias->to_name));
  const PopupDef* popup = document.popups.find("P");
  EXPECT_EQ(Names{"P"}, texts_at(popup));
  EXPECT_EQ(Names{"'i'"}, texts_at(&popup->dialog_init));
  EXPECT_EQ(Names{}, texts_at(&popup->dialog_update));
  EXPECT_EQ(4U, places.entries().size());
}

TEST_F(PlacesTest, HaveTheTextsAsTheyAreSpelled) {
  read("VQconfig alias 'it\\'s' { to_name = 'a\\65' } widget 'W' { can_manage=\n'FALSE' }");
  const AliasDef* alias = document.aliases.find("it's");
  EXPECT_EQ(Names{"'it\\'s'"}, texts_at(alias));
  EXPECT_EQ(Names{"'a\\65'"}, texts_at(&alias->to_name));
  EXPECT_EQ(Names{"'FALSE'"}, texts_at(&document.widgets.find("W")->can_manage));
}

TEST_F(PlacesTest, AreInTheOrderOfReading) {
  read("VQconfig header 'b' cheader 'c' family_header 'f' page 'a' header 'a'");
  Names texts;
  for (const Places::Entry& entry : places.entries()) texts.emplace_back(source->text(entry.range));
  EXPECT_EQ((Names{"'b'", "'c'", "'f'", "'a'", "'a'"}), texts);
}

TEST_F(PlacesTest, OfWhatIsSaidTwiceAreTwo) {
  read("VQconfig alias 'A' { to_name='T' } alias A { to_name='U' to_name='' }");
  const AliasDef* alias = document.aliases.find("A");
  EXPECT_EQ((Names{"'A'", "A"}), texts_at(alias));
  EXPECT_EQ((Names{"'T'", "'U'", "''"}), texts_at(&alias->to_name));
}

TEST_F(PlacesTest, OfTheHeaderAreThoseOfItsValues) {
  read("VQconfig code_name='c.c' generate_alias_string=mine stop_list = 'XmFrame'");
  EXPECT_EQ(Names{"'c.c'"}, texts_at(&document.output_names.code));
  EXPECT_EQ(Names{"mine"}, texts_at(&document.names.aliases.document));
  EXPECT_EQ(Names{"'XmFrame'"}, texts_at(&document.excluded_classes));
}

TEST_F(PlacesTest, OfAResourceAreThoseOfItsParts) {
  read(
      "VQconfig widget 'W' { resource_definitions='r', 'P', 'misc', False, VQC_FREE, VQC_DONT_FREE access 5 counter "
      "'n', 's', , , True; }");
  const ResourceDef* r = document.widgets.find("W")->resource_definitions.find("r");
  EXPECT_EQ(Names{"'r'"}, texts_at(r));
  EXPECT_EQ(Names{"'P'"}, texts_at(&r->popup));
  EXPECT_EQ(Names{"'misc'"}, texts_at(&r->page));
  EXPECT_EQ(Names{"False"}, texts_at(&r->visible));
  EXPECT_EQ(Names{"VQC_FREE"}, texts_at(&r->free_get));
  EXPECT_EQ(Names{"VQC_DONT_FREE"}, texts_at(&r->free_set));
  EXPECT_EQ(Names{"5"}, texts_at(&r->access));
  EXPECT_EQ(Names{"'n'"}, texts_at(&r->counter));
  const ResourceDef* s = document.widgets.find("W")->resource_definitions.find("s");
  EXPECT_EQ(Names{"'s'"}, texts_at(s));
  EXPECT_EQ(Names{}, texts_at(&s->access));
}

TEST_F(PlacesTest, OfPopupsInTheOlderFormAreThoseOfTheirParts) {
  read("VQconfig widget 'W' { resource_popups='r', 'P', 's' }");
  const auto& resources = document.widgets.find("W")->resource_definitions;
  EXPECT_EQ(Names{"'r'"}, texts_at(resources.find("r")));
  EXPECT_EQ(Names{"'P'"}, texts_at(&resources.find("r")->popup));
  EXPECT_EQ(Names{"'s'"}, texts_at(resources.find("s")));
}

TEST_F(PlacesTest, OfEntriesAreThoseOfTheirParts) {
  read("VQconfig enumeration 'E' { typename='int' enumentry 'a' { code_symbol='A' } }");
  const EnumDef* enumeration = document.enumerations.find("E");
  const EnumEntry* entry = enumeration->entries.find("a");
  EXPECT_EQ(Names{"'int'"}, texts_at(&enumeration->type_name));
  EXPECT_EQ(Names{"'a'"}, texts_at(entry));
  EXPECT_EQ(Names{"'A'"}, texts_at(&entry->code_symbol));
}

TEST_F(PlacesTest, OfAReferenceAreWhereAFamilyNamesTheRecord) {
  read("VQconfig family 'F' { alias='a' page=misc family_init='init' generate_family_init_vq=True } alias a {}");
  const Family* family = document.families.find("F");
  EXPECT_EQ(Names{"'F'"}, texts_at(family));
  EXPECT_EQ(Names{"'a'"}, texts_at(family->aliases.find("a")));
  EXPECT_EQ(Names{"misc"}, texts_at(family->pages.find("misc")));
  EXPECT_EQ(Names{}, texts_at(family->pages.find("display")));
  EXPECT_EQ(Names{"'init'"}, texts_at(&family->family_init));
  EXPECT_EQ(Names{"True"}, texts_at(&family->generate_family_init_vq));
  EXPECT_EQ(Names{"a"}, texts_at(document.aliases.find("a")));
}

TEST_F(PlacesTest, OfWhatFollowsAFaultAreKnownToo) {
  read("VQconfig alias 'A' { nonsense to_name='T' } 5 page 'p'");
  EXPECT_EQ(2U, diagnostics.findings().size());
  EXPECT_EQ(Names{"'T'"}, texts_at(&document.aliases.find("A")->to_name));
  EXPECT_EQ(Names{"'p'"}, texts_at(document.pages.find("p")));
}

TEST_F(PlacesTest, OfAConverterOfTheOlderFormNameItsDialog) {
  read("VQconfig converter 'C' { proc_name='p' dialog_create='D' }");
  const ConverterDef* converter = document.converters.find("C");
  EXPECT_EQ(Names{"'p'"}, texts_at(&converter->proc_name));
  EXPECT_EQ(Names{"'D'"}, texts_at(&converter->dialog));
}

}  // namespace
