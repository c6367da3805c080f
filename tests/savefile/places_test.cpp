#include "vqc/cmd/savefile/places.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <optional>
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
    places.emplace(*source);
    diagnostics = {};
    load(source, document, diagnostics, AfterError::go_on, &*places);
  }

  /// What stands where a part does; "nowhere" if it stands nowhere.
  template <class Part>
  std::string at(const Part& part) const {
    const std::optional<Range> range = places->of(part);
    return range ? std::string(source->text(*range)) : "nowhere";
  }
  std::size_t begin_of(Text text) const { return places->of(text).value().begin; }

  std::shared_ptr<const Source> source;
  std::optional<Places> places;
};

TEST_F(PlacesTest, OfTextsAreWhereTheyWereRead) {
  read("VQconfig alias 'A' { to_name = A } popup P { dialog_init='i' }");
  const AliasDef* alias = document.aliases.find("A");
  EXPECT_EQ(16U, begin_of(alias->name));
  EXPECT_EQ(31U, begin_of(alias->to_name));
  const PopupDef* popup = document.popups.find("P");
  EXPECT_EQ("P", at(popup->name));
  EXPECT_EQ("i", at(popup->dialog_init));
  EXPECT_EQ("nowhere", at(popup->dialog_update));
}

TEST_F(PlacesTest, OfTextsWithEscapesAreThoseOfTheWholeStrings) {
  read("VQconfig alias 'it\\'s' { to_name = 'a\\65' } widget '\\0' { realise='\\0' }");
  const AliasDef* alias = document.aliases.find("it's");
  EXPECT_EQ("'it\\'s'", at(alias->name));
  EXPECT_EQ("'a\\65'", at(alias->to_name));
  EXPECT_EQ(51U, begin_of(document.widgets.find("")->name));
}

TEST_F(PlacesTest, OfEmptyTextsAreBetweenTheirQuotes) {
  read("VQconfig alias '' {}");
  EXPECT_EQ((Range{16, 16}), places->of(document.aliases.find("")->name));
}

TEST_F(PlacesTest, OfRecordsThatAreDefinedTwiceAreThoseOfTheFirst) {
  read("VQconfig family 'F' { alias=A } alias 'A' { to_name='T' } alias A { to_name='U' }");
  const AliasDef* alias = document.aliases.find("A");
  EXPECT_EQ("'A'", at(alias));
  EXPECT_EQ("U", at(alias->to_name));
}

TEST_F(PlacesTest, OfTheHeaderAreThoseOfItsValues) {
  read("VQconfig code_name='c.c' generate_alias_string=mine stop_list = 'XmFrame'");
  EXPECT_EQ("c.c", at(document.output_names.code));
  EXPECT_EQ("mine", at(document.names.aliases.document));
  EXPECT_EQ("XmFrame", at(document.excluded_classes));
}

TEST_F(PlacesTest, OfAResourceAreThoseOfItsParts) {
  read(
      "VQconfig widget 'W' { resource_definitions='r', 'P', 'misc', False, VQC_FREE, VQC_DONT_FREE access 5 counter "
      "'n'; }");
  const ResourceDef* r = document.widgets.find("W")->resource_definitions.find("r");
  EXPECT_EQ("r", at(r->name));
  EXPECT_EQ("P", at(r->popup));
  EXPECT_EQ("misc", at(r->page));
  EXPECT_EQ("n", at(r->counter));
}

TEST_F(PlacesTest, OfAReferenceAreWhereAFamilyFirstNamesTheRecord) {
  read(
      "VQconfig family 'F' { alias='a' page=misc alias=a } alias a {} converter C { dialog=D } "
      "family 'G' { converter=C }");
  const Family* family = document.families.find("F");
  EXPECT_EQ("'a'", at(family->aliases.find("a")));
  EXPECT_EQ("misc", at(family->pages.find("misc")));
  EXPECT_EQ("nowhere", at(family->pages.find("display")));
  EXPECT_EQ("a", at(document.aliases.find("a")));
  EXPECT_EQ("'F'", at(family));
  const Family* other = document.families.find("G");
  EXPECT_EQ("C", at(other->converters.find("C")));
  EXPECT_EQ("nowhere", at(other->popups.find("D")));
}

TEST_F(PlacesTest, OfRecordsThatAreDefinedNowhereAreNone) {
  read("VQconfig family 'F' { alias='a' }");
  EXPECT_EQ("nowhere", at(document.aliases.find("a")));
  EXPECT_EQ("a", at(document.aliases.find("a")->name));
}

TEST_F(PlacesTest, OfWhatTheProgramNamesItselfAreNone) {
  read("VQconfig family 'F' { page='display' }");
  EXPECT_EQ("nowhere", at(document.pages.find("display")));
  EXPECT_EQ("nowhere", at(&*document.families.find("F")->popups.begin()));
}

TEST_F(PlacesTest, OfWhatFollowsAFaultAreKnownToo) {
  read("VQconfig alias 'A' { nonsense to_name='T' } 5 page 'p'");
  EXPECT_EQ(2U, diagnostics.findings().size());
  EXPECT_EQ("T", at(document.aliases.find("A")->to_name));
  EXPECT_EQ("p", at(document.pages.find("p")->name));
}

TEST_F(PlacesTest, OfAConverterOfTheOlderFormNameItsDialog) {
  read("VQconfig converter 'C' { dialog_create='D' dialog_init='i' }");
  EXPECT_EQ("D", at(document.converters.find("C")->dialog));
  EXPECT_EQ("'D'", at(document.popups.find("D")));
  EXPECT_EQ("D", at(document.popups.find("D")->name));
  EXPECT_EQ("i", at(document.popups.find("D")->dialog_init));
}

}  // namespace
