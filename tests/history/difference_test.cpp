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
    const auto before = capture(document, nullptr);
    action();
    now_ = capture(document, before);  // which has the texts
    return differences(*before, *now_);
  }

 private:
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

}  // namespace
