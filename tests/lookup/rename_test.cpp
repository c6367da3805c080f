#include "vqc/cmd/lookup/rename.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/document.h"
#include "support/spots.h"

using namespace vqc;

namespace vqc {

void PrintTo(const Refusal& refusal, std::ostream* out) {
  *out << "reason " << static_cast<int>(refusal.reason) << " " << refusal.words;
}

}  // namespace vqc

namespace {

const char document_text[] =
    "VQconfig\n"
    "widget 'Dial' { include_filename='Dial.h' realise='make' abstract='make' pixmap_resource='face'\n"
    "resource_definitions='face', 'chooser', 'look', True, 'value', , 'look', True,\n"
    "VQC_FREE_DEFAULT, VQC_FREE_DEFAULT counter 'face'; }\n"
    "widget 'Knob' { resource_definitions='face', , 'look', True; }\n"
    "enumeration 'Mode' { enumentry 'slow' { } enumentry 'fast' { } }\n"
    "alias 'Also' { to_name='XtRMode' }\n"
    "converter 'XtRMode' { proc_name='add' dialog='chooser' }\n"
    "popup 'chooser' { dialog_init='init' dialog_update='make' }\n"
    "page 'look'\n"
    "family 'F' { family_init='init' widget='Knob' widget='Dial' enumeration='Mode' header='Dial.h' cheader='Dial.h'\n"
    "family_header='family.h' alias='Also' converter='XtRMode' popup='chooser' page='look' }\n"
    "family 'G' { widget='Dial' header='other.h' header='Dial.h' }\n";

class RenameTest : public DocumentTest {
 protected:
  RenameTest() {
    read_document(document_text);
    EXPECT_TRUE(diagnostics.empty());
    document.dirty = false;
  }

  /// What is saved when each of these words of the original has been replaced.
  std::string saved_with(const std::string& before, const std::string& after) {
    std::string text = document_text;
    for (std::size_t place = 0; (place = text.find(before, place)) != std::string::npos; place += after.size()) {
      text.replace(place, before.size(), after);
    }
    Document other;
    Diagnostics none;
    load(Source::from_text(text), other, none, AfterError::stop, nullptr);
    return saved(other);
  }
  std::optional<Refusal::Reason> refused(const Spot& thing, const std::string& name) {
    const std::optional<Refusal> refusal = refusal_of(document, thing, name);
    return refusal ? std::optional(refusal->reason) : std::nullopt;
  }
};

TEST_F(RenameTest, OfAPageReachesResourcesAndFamilies) {
  EXPECT_EQ(std::nullopt, refused({Part::page, "look"}, "view"));
  EXPECT_EQ(4, rename(document, {Part::page, "look"}, "view"));
  EXPECT_EQ(saved_with("'look'", "'view'"), saved(document));
  EXPECT_TRUE(document.dirty);
  EXPECT_NE(nullptr, document.pages.find("view"));
  EXPECT_EQ(nullptr, document.pages.find("look"));
}

TEST_F(RenameTest, OfAPopupReachesConvertersToo) {
  EXPECT_EQ(3, rename(document, {Part::popup, "chooser"}, "another"));
  EXPECT_EQ(saved_with("'chooser'", "'another'"), saved(document));
}

TEST_F(RenameTest, OfWhatFamiliesListReachesThem) {
  EXPECT_EQ(2, rename(document, {Part::widget, "Dial"}, "Meter"));
  EXPECT_EQ(1, rename(document, {Part::enumeration, "Mode"}, "Speed"));
  EXPECT_EQ(1, rename(document, {Part::alias, "Also"}, "Too"));
  EXPECT_EQ(1, rename(document, {Part::family_header, "family.h"}, "f.h"));
  EXPECT_EQ((Names{"Knob", "Meter"}), names_in(document.widgets));
  EXPECT_EQ((Names{"Knob", "Meter"}), names_in(document.families.find("F")->widgets)) << "it stays where it was";
  EXPECT_EQ((Names{"Meter"}), names_in(document.families.find("G")->widgets));
  EXPECT_EQ((Names{"Speed"}), names_in(document.families.find("F")->enumerations));
  EXPECT_EQ((Names{"Too"}), names_in(document.families.find("F")->aliases));
  EXPECT_EQ((Names{"f.h"}), names_in(document.families.find("F")->family_headers));
}

TEST_F(RenameTest, OfAHeaderReachesWidgetsButNotTheOtherLists) {
  EXPECT_EQ(3, rename(document, {Part::code_header, "Dial.h"}, "Meter.h"));
  EXPECT_EQ((Names{"Meter.h"}), names_in(document.families.find("F")->code_headers));
  EXPECT_EQ((Names{"other.h", "Meter.h"}), names_in(document.families.find("G")->code_headers));
  EXPECT_EQ((Names{"Dial.h"}), names_in(document.families.find("F")->config_headers));
  EXPECT_EQ(Text("Meter.h"), document.widgets.find("Dial")->include_filename);
}

TEST_F(RenameTest, OfAProcedureReachesEachField) {
  EXPECT_EQ(3, rename(document, {Part::procedure, "make"}, "create"));
  EXPECT_EQ(saved_with("'make'", "'create'"), saved(document));
  EXPECT_EQ(2, rename(document, {Part::procedure, "init"}, "begin"));
  EXPECT_EQ(Text("begin"), document.families.find("F")->family_init);
  EXPECT_EQ(Text("begin"), document.popups.find("chooser")->dialog_init);
}

TEST_F(RenameTest, OfAResourceStaysInItsWidget) {
  EXPECT_EQ(2, rename(document, {Part::resource, "face", "Dial"}, "zone"));
  const WidgetDef* dial = document.widgets.find("Dial");
  EXPECT_EQ((Names{"value", "zone"}), names_in(dial->resource_definitions));
  EXPECT_EQ(Text("zone"), dial->pixmap_resource);
  EXPECT_EQ(Text("zone"), dial->resource_definitions.find("value")->counter);
  EXPECT_EQ((Names{"face"}), names_in(document.widgets.find("Knob")->resource_definitions));
}

TEST_F(RenameTest, OfFamiliesAndEntriesKeepsTheirPlaces) {
  EXPECT_EQ(0, rename(document, {Part::family, "F"}, "Z"));
  EXPECT_EQ((Names{"Z", "G"}), names_in(document.families));
  EXPECT_EQ(0, rename(document, {Part::entry, "slow", "Mode"}, "zzz"));
  EXPECT_EQ((Names{"zzz", "fast"}), names_in(document.enumerations.find("Mode")->entries));
}

TEST_F(RenameTest, SortsListsThatAreSorted) {
  for (const char* name : {"b", "d", "f"}) document.ensure(document.aliases, document.keep(name));
  rename(document, {Part::alias, "b"}, "e");
  EXPECT_EQ((Names{"Also", "d", "e", "f"}), names_in(document.aliases));
  rename(document, {Part::alias, "f"}, "A");
  EXPECT_EQ((Names{"A", "Also", "d", "e"}), names_in(document.aliases));
  rename(document, {Part::alias, "Also"}, "Alsp");
  EXPECT_EQ((Names{"A", "Alsp", "d", "e"}), names_in(document.aliases));
  EXPECT_NE(nullptr, document.aliases.find("Alsp"));
  document.ensure(document.aliases, document.keep("c"));
  EXPECT_EQ((Names{"A", "Alsp", "c", "d", "e"}), names_in(document.aliases));
}

TEST_F(RenameTest, FindsNewNamesInLongLists) {
  for (int i = 0; i < 100; ++i)
    document.ensure(document.aliases, document.keep(Text(("n" + std::to_string(i)).c_str())));
  ASSERT_NE(nullptr, document.aliases.find("n50"));
  rename(document, {Part::alias, "n50"}, "m");
  EXPECT_EQ(nullptr, document.aliases.find("n50"));
  EXPECT_NE(nullptr, document.aliases.find("m"));
  EXPECT_EQ(2, document.aliases.position("m"));
}

TEST_F(RenameTest, IsRefusedWhereTheNameIsTaken) {
  EXPECT_EQ(Refusal::taken, refused({Part::widget, "Dial"}, "Knob"));
  EXPECT_EQ(Refusal::taken, refused({Part::family, "F"}, "G"));
  EXPECT_EQ(Refusal::taken, refused({Part::resource, "face", "Dial"}, "value"));
  EXPECT_EQ(std::nullopt, refused({Part::resource, "face", "Knob"}, "value"));
  EXPECT_EQ(Refusal::taken, refused({Part::entry, "fast", "Mode"}, "slow"));
  EXPECT_EQ(Refusal::taken, refused({Part::procedure, "make"}, "init"));
  EXPECT_EQ(Refusal::taken, refused({Part::page, "look"}, "display"));
  EXPECT_EQ(Refusal::same, refused({Part::page, "look"}, "look"));
}

TEST_F(RenameTest, IsRefusedForWhatIsPredefined) {
  EXPECT_EQ(Refusal::predefined, refused({Part::page, "display"}, "show"));
  EXPECT_EQ(Refusal::predefined, refused({Part::popup, "vq_font_dialog_create"}, "fonts"));
  EXPECT_EQ(Refusal::predefined, refused({Part::procedure, "vq_font_dialog_initialise"}, "fonts"));
}

TEST_F(RenameTest, IsRefusedForWhatIsNotThere) {
  EXPECT_EQ(Refusal::gone, refused({Part::widget, "Gone"}, "Here"));
  EXPECT_EQ(Refusal::gone, refused({Part::resource, "face", "Gone"}, "here"));
  EXPECT_EQ(Refusal::gone, refused({Part::procedure, "Dial"}, "here"));
  EXPECT_EQ(Refusal::gone, refused({Part::stop_list}, "here"));
}

TEST_F(RenameTest, IsRefusedByTheRulesForTheKind) {
  EXPECT_EQ(Refusal::empty, refused({Part::page, "look"}, ""));
  EXPECT_EQ((Refusal{Refusal::faulty, words_of({FindingId::no_identifier, {}, {"2x"}})}),
            refusal_of(document, {Part::widget, "Dial"}, "2x"));
  EXPECT_EQ(Refusal::faulty, refused({Part::widget, "Dial"}, "while"));
  EXPECT_EQ(Refusal::faulty, refused({Part::popup, "chooser"}, "a b"));
  EXPECT_EQ(Refusal::faulty, refused({Part::procedure, "make"}, "a-b"));
  EXPECT_EQ(Refusal::faulty, refused({Part::enumeration, "Mode"}, "a b"));
  EXPECT_EQ(Refusal::faulty, refused({Part::converter, "XtRMode"}, "\"Mode\""));
  EXPECT_EQ(std::nullopt, refused({Part::alias, "Also"}, "\"Mode\""));
  EXPECT_EQ(Refusal::faulty, refused({Part::family, "F"}, "a\"b"));
  EXPECT_EQ(std::nullopt, refused({Part::family, "F"}, "a b"));
  EXPECT_EQ(std::nullopt, refused({Part::page, "look"}, "a b"));
}

}  // namespace
