#include "vqc/cmd/model/document.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "support/model.h"

using namespace vqc;

namespace {

class DocumentTest : public testing::Test {
 protected:
  Document document;
};

TEST_F(DocumentTest, IsEmptyAndUnchangedAtFirst) {
  EXPECT_TRUE(document.families.empty());
  EXPECT_TRUE(document.widgets.empty());
  EXPECT_TRUE(document.pages.empty());
  EXPECT_EQ(Text(), document.excluded_classes);
  EXPECT_FALSE(document.dirty);
}

TEST_F(DocumentTest, MakesAnElementOnce) {
  AliasDef* alias = document.ensure(document.aliases, "A");
  ASSERT_NE(nullptr, alias);
  EXPECT_TRUE(document.dirty);
  document.dirty = false;
  EXPECT_EQ(alias, document.ensure(document.aliases, "A"));
  EXPECT_EQ(1u, document.aliases.size());
  EXPECT_FALSE(document.dirty);
}

TEST_F(DocumentTest, MakesNothingWithoutAName) {
  EXPECT_EQ(nullptr, document.ensure(document.aliases, nullptr));
  EXPECT_EQ(nullptr, document.ensure(document.families, ""));
  EXPECT_TRUE(document.aliases.empty());
  EXPECT_TRUE(document.families.empty());
  EXPECT_FALSE(document.dirty);
}

TEST_F(DocumentTest, MakesTheRecordThatAReferenceNeeds) {
  Family* family = document.ensure(document.families, "F");
  auto* reference = document.ensure(family->widgets, document.widgets, "W");
  ASSERT_NE(nullptr, reference);
  EXPECT_EQ(document.widgets.find("W"), reference->record);
  EXPECT_EQ(1, reference->record->uses);
  EXPECT_EQ(reference, document.ensure(family->widgets, document.widgets, "W"));
  EXPECT_EQ(1, reference->record->uses);
}

TEST_F(DocumentTest, KeepsACopyOfAText) {
  char text[] = "text";
  const Text kept = document.keep(text);
  text[0] = 'n';
  EXPECT_EQ("text", kept.view());
  EXPECT_EQ(Text(), document.keep(Text()));
  EXPECT_TRUE(bool{document.keep("")});
}

TEST_F(DocumentTest, KeepsItsSourceAsLongAsItsTexts) {
  auto source = Source::from_text("name");
  document.keep(source);
  const std::weak_ptr<const Source> watched = source;
  const Text text(source->text());
  source.reset();
  EXPECT_EQ("name", text.view());
  document.clear();
  EXPECT_TRUE(watched.expired());
}

TEST_F(DocumentTest, ClearingLeavesTheBuiltInNames) {
  document.ensure(document.families, "F");
  document.clear();
  EXPECT_TRUE(document.families.empty());
  EXPECT_TRUE(document.popups.empty());
  EXPECT_TRUE(document.pages.empty());
  EXPECT_TRUE(document.builtins.has("misc", BUILTIN_PAGE));
}

TEST_F(DocumentTest, GivesARecordWithItsLastReference) {
  Family* family = document.ensure(document.families, "F");
  auto* widget = document.ensure(family->widgets, document.widgets, "W");
  auto* page = document.ensure(family->pages, document.pages, "mine");
  document.remove(family->widgets, document.widgets, widget);
  document.remove(family->pages, document.pages, page);
  EXPECT_EQ(nullptr, document.widgets.find("W"));
  EXPECT_NE(nullptr, document.pages.find("mine"));
}

std::vector<const void*> told;

TEST_F(DocumentTest, TellsOfEachElementBeforeItGoes) {
  told.clear();
  WidgetDef* widget = document.ensure(document.widgets, "W");
  ResourceDef* resource = document.ensure(widget->resource_definitions, "r");
  document.on_removal = [](const void* element) { told.push_back(element); };
  document.remove(document.widgets, widget);
  EXPECT_EQ((std::vector<const void*>{widget, resource}), told);
  EXPECT_TRUE(document.widgets.empty());
}

// Several documents in a process.

/// A document with as many widgets as its number, one family, and all that goes with that.
void fill(Document& document, int number) {
  Family* family = document.ensure(document.families, "F");
  for (int i = 0; i < number; ++i) {
    auto* widget = document.ensure(family->widgets, document.widgets, document.keep(std::to_string(i).c_str()))->record;
    for (const char* resource : {"c", "a", "b"}) document.ensure(widget->resource_definitions, resource);
  }
}

void expect_filled(const Document& document, int number) {
  ASSERT_EQ(1u, document.families.size());
  EXPECT_EQ(static_cast<unsigned>(number), document.widgets.size());
  EXPECT_EQ(5u, document.pages.size());
  for (const WidgetDef& widget : document.widgets) {
    EXPECT_EQ((Names{"a", "b", "c"}), names_in(widget.resource_definitions));
    EXPECT_EQ(1, widget.uses);
  }
}

TEST(Documents, DoNotDisturbEachOther) {
  Document kept;
  fill(kept, 40);
  for (int number = 1; number < 30; ++number) {
    Document passing;
    fill(passing, number);
    expect_filled(passing, number);
    if (number % 2) passing.clear();
    expect_filled(kept, 40);
  }
}

TEST(Documents, OfTwoThreadsDoNotDisturbEachOther) {
  const auto work = [] {
    for (int number = 1; number < 60; ++number) {
      Document document;
      fill(document, number);
      expect_filled(document, number);
    }
  };
  std::thread other(work);
  work();
  other.join();
}

}  // namespace
