#include "vqc/cmd/history/difference.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <vector>

#include "support/document.h"

using namespace vqc;

namespace vqc {

void PrintTo(const Difference& difference, std::ostream* out) {
  *out << static_cast<int>(difference.verb) << " of part " << static_cast<int>(difference.part) << " '"
       << difference.name.view() << "' of '" << difference.of.view() << "'";
}

void PrintTo(const RecordDifference& difference, std::ostream* out) {
  PrintTo(static_cast<const Difference&>(difference), out);
  for (const auto& [field, from, to] : difference.fields) *out << ", " << field << " from " << from << " to " << to;
}

void PrintTo(const DifferenceCount& count, std::ostream* out) {
  *out << count.number << " of part " << static_cast<int>(count.part) << ": " << static_cast<int>(count.verb);
}

}  // namespace vqc

namespace {

using enum Verb;

class DifferenceTest : public DocumentTest {
 protected:
  DifferenceTest() {
    read_document(
        "VQconfig\n"
        "widget 'Dial' { resource_definitions='a', , , True, 'b', , 'p', True; }\n"
        "enumeration 'Mode' { enumentry 'fast' { } enumentry 'slow' { } }\n"
        "alias 'A' { to_name='T' }\n"
        "family 'F' { widget='Dial' enumeration='Mode' header='one.h' header='two.h' alias='A' }\n"
        "family 'G' { widget='Dial' }\n");
  }

  /// What has been done.
  std::vector<Difference> found(const std::function<void()>& action) {
    act(action);
    return differences(*before_, *now_);
  }
  /// The same by record and field.
  std::vector<RecordDifference> fields_found(const std::function<void()>& action) {
    act(action);
    return field_differences(*before_, *now_);
  }
  /// The same in numbers.
  std::vector<DifferenceCount> counted(const std::function<void()>& action) { return count_differences(found(action)); }

 private:
  void act(const std::function<void()>& action) {
    before_ = capture(document, nullptr);
    action();
    now_ = capture(document, before_);
  }

  // They have the texts of what is found.
  std::shared_ptr<const State> before_;
  std::shared_ptr<const State> now_;
};

using Differences = std::vector<Difference>;

TEST_F(DifferenceTest, NothingIsNoDifference) {
  EXPECT_EQ(Differences{}, found([] {}));
  EXPECT_EQ(Differences{}, found([&] { document.widgets.find("Dial")->name = document.keep("Dial"); }));
}

TEST_F(DifferenceTest, StatesOfOtherDocumentsAreComparedByWhatTheySay) {
  Document other;
  Diagnostics findings;
  StringSink text;
  save(document, text);
  text.finish();
  load(Source::from_text(text.text()), other, findings);
  EXPECT_EQ(Differences{}, differences(*capture(document, nullptr), *capture(other, nullptr)));
}

TEST_F(DifferenceTest, AFamilyComesBeforeWhatGoesWithIt) {
  const Differences all = found([&] { remove(document, document.families, "F"); });
  EXPECT_EQ((Difference{removed, Part::family, "F"}), all.front());
  EXPECT_EQ((Differences{{removed, Part::family, "F"},
                         {removed, Part::enumeration, "Mode"},
                         {removed, Part::alias, "A"},
                         {removed, Part::code_header, "one.h"},
                         {removed, Part::code_header, "two.h"}}),
            all);
}

TEST_F(DifferenceTest, ANewFamily) {
  EXPECT_EQ((Differences{{added, Part::family, "H"}}), found([&] { document.ensure(document.families, "H"); }));
}

TEST_F(DifferenceTest, ANewRecordComesBeforeTheReferenceToIt) {
  EXPECT_EQ((Differences{{added, Part::widget, "Knob"}, {added, Part::widget, "Knob", "G"}}),
            found([&] { document.ensure(document.families.find("G")->widgets, document.widgets, "Knob"); }));
  EXPECT_EQ((Differences{{removed, Part::widget, "Dial", "G"}}),
            found([&] { remove(document, document.families.find("G")->widgets, "Dial", document.widgets); }));
}

TEST_F(DifferenceTest, PartsOfRecords) {
  auto& resources = document.widgets.find("Dial")->resource_definitions;
  EXPECT_EQ((Differences{{added, Part::resource, "c", "Dial"}}), found([&] { document.ensure(resources, "c"); }));
  EXPECT_EQ((Differences{{changed, Part::resource, "a", "Dial"}}), found([&] { resources.find("a")->page = "p"; }));
  EXPECT_EQ((Differences{{removed, Part::resource, "b", "Dial"}}), found([&] { remove(document, resources, "b"); }));
  auto& entries = document.enumerations.find("Mode")->entries;
  EXPECT_EQ((Differences{{changed, Part::entry, "fast", "Mode"}}),
            found([&] { entries.find("fast")->code_symbol = "FAST"; }));
}

TEST_F(DifferenceTest, Fields) {
  EXPECT_EQ((Differences{{changed, Part::widget, "Dial"}}),
            found([&] { document.widgets.find("Dial")->can_manage = false; }));
  EXPECT_EQ((Differences{{changed, Part::enumeration, "Mode"}}),
            found([&] { document.enumerations.find("Mode")->type_name = "T"; }));
  EXPECT_EQ((Differences{{changed, Part::alias, "A"}}), found([&] { document.aliases.find("A")->to_name = "U"; }));
  EXPECT_EQ((Differences{{changed, Part::family, "F"}}),
            found([&] { document.families.find("F")->family_init = "init"; }));
}

TEST_F(DifferenceTest, Order) {
  EXPECT_EQ((Differences{{reordered, Part::families}}), found([&] { move_up(document.families, "G"); }));
  EXPECT_EQ((Differences{{reordered, Part::family, "F"}}),
            found([&] { move_up(document.families.find("F")->code_headers, "two.h"); }));
  EXPECT_EQ((Differences{{reordered, Part::enumeration, "Mode"}}),
            found([&] { move_up(document.enumerations.find("Mode")->entries, "slow"); }));
  EXPECT_EQ((Differences{{added, Part::family, "H"}, {reordered, Part::families}}), found([&] {
              document.ensure(document.families, "H");
              move_up(document.families, "F");
            }));
}

TEST_F(DifferenceTest, WhatStandsBeforeAllItems) {
  EXPECT_EQ((Differences{{changed, Part::stop_list}}), found([&] { document.excluded_classes = "A"; }));
  EXPECT_EQ((Differences{{changed, Part::table_names}}), found([&] { document.names.popups.document = "p"; }));
  EXPECT_EQ((Differences{{changed, Part::output_names}}), found([&] { document.output_names.code = "c.c"; }));
}

using RecordDifferences = std::vector<RecordDifference>;
using Counts = std::vector<DifferenceCount>;

TEST_F(DifferenceTest, FieldsHaveTheirOldAndNewValuesAsDocumentsDo) {
  WidgetDef* dial = document.widgets.find("Dial");
  EXPECT_EQ((RecordDifferences{
                {{changed, Part::widget, "Dial"}, {{"realise", "", "'make'"}, {"can_manage", "True", "False"}}}}),
            fields_found([&] {
              dial->can_manage = false;
              dial->realise = "make";
            }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::widget, "Dial"}, {{"realise", "'make'", "'it\\'s'"}}}}),
            fields_found([&] { dial->realise = "it's"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::widget, "Dial"}, {{"realise", "'it\\'s'", ""}}}}),
            fields_found([&] { dial->realise = nullptr; }));
}

TEST_F(DifferenceTest, FieldsOfResources) {
  ResourceDef* b = document.widgets.find("Dial")->resource_definitions.find("b");
  EXPECT_EQ((RecordDifferences{{{changed, Part::resource, "b", "Dial"},
                                {{"popup", "", "'edit'"},
                                 {"page", "'p'", "'q'"},
                                 {"visible", "True", "False"},
                                 {"free_get", "VQC_FREE_DEFAULT", "VQC_FREE"},
                                 {"free_set", "VQC_FREE_DEFAULT", "VQC_DONT_FREE"},
                                 {"access", "", "5"},
                                 {"counter", "", "'n'"}}}}),
            fields_found([&] {
              b->popup = "edit";
              b->page = "q";
              b->visible = false;
              b->free_get = FreeMode::free;
              b->free_set = FreeMode::dont_free;
              b->access = ACCESS_CREATE | ACCESS_SET;
              b->counter = "n";
            }));
}

TEST_F(DifferenceTest, FieldsOfAllOtherRecords) {
  document.ensure(document.converters, "C");
  document.ensure(document.popups, "P");
  EXPECT_EQ((RecordDifferences{{{changed, Part::enumeration, "Mode"}, {{"typename", "", "'T'"}}}}),
            fields_found([&] { document.enumerations.find("Mode")->type_name = "T"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::entry, "fast", "Mode"}, {{"code_symbol", "", "'FAST'"}}}}),
            fields_found([&] { document.enumerations.find("Mode")->entries.find("fast")->code_symbol = "FAST"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::alias, "A"}, {{"to_name", "'T'", "'U'"}}}}),
            fields_found([&] { document.aliases.find("A")->to_name = "U"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::converter, "C"}, {{"add_in_vq", "False", "True"}}}}),
            fields_found([&] { document.converters.find("C")->add_in_vq = true; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::popup, "P"}, {{"dialog_init", "", "'init'"}}}}),
            fields_found([&] { document.popups.find("P")->dialog_init = "init"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::family, "F"}, {{"family_init", "", "'init'"}}}}),
            fields_found([&] { document.families.find("F")->family_init = "init"; }));
}

TEST_F(DifferenceTest, FieldsBeforeAllItems) {
  EXPECT_EQ((RecordDifferences{{{changed, Part::stop_list}, {{"stop_list", "", "'A'"}}}}),
            fields_found([&] { document.excluded_classes = "A"; }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::table_names},
                                {{"generate_popup_string", "", "'p'"}, {"generate_alias_string", "", "'a'"}}}}),
            fields_found([&] {
              document.names.aliases.document = "a";
              document.names.popups.document = "p";
            }));
  EXPECT_EQ((RecordDifferences{{{changed, Part::output_names}, {{"stubs_name", "", "'s.c'"}}}}),
            fields_found([&] { document.output_names.stubs = "s.c"; }));
}

TEST_F(DifferenceTest, WhatComesOrGoesHasNoFields) {
  EXPECT_EQ((RecordDifferences{{{removed, Part::resource, "b", "Dial"}}}),
            fields_found([&] { remove(document, document.widgets.find("Dial")->resource_definitions, "b"); }));
}

TEST_F(DifferenceTest, NumbersCountRecordsByWhatHasBecomeOfThem) {
  EXPECT_EQ(Counts{}, counted([] {}));
  EXPECT_EQ((Counts{{added, Part::widget, 2}, {changed, Part::resource, 2}, {removed, Part::entry, 1}}), counted([&] {
              document.ensure(document.widgets, "Knob");
              document.ensure(document.widgets, "Lamp");
              WidgetDef* dial = document.widgets.find("Dial");
              dial->resource_definitions.find("a")->page = "q";
              dial->resource_definitions.find("b")->page = "q";
              remove(document, document.enumerations.find("Mode")->entries, "slow");
            }));
}

TEST_F(DifferenceTest, AFamilyCountsOnceWhateverHasChangedInIt) {
  EXPECT_EQ((Counts{{changed, Part::family, 2}, {changed, Part::enumeration, 1}}), counted([&] {
              Family* f = document.families.find("F");
              f->family_init = "init";
              move_up(f->code_headers, "two.h");
              document.ensure(document.families.find("G")->enumerations, document.enumerations, "Mode");
              move_up(document.enumerations.find("Mode")->entries, "slow");
            }));
  EXPECT_EQ((Counts{{reordered, Part::families, 1}}), counted([&] { move_up(document.families, "G"); }));
}

}  // namespace
