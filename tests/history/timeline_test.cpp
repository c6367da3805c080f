#include "vqc/cmd/history/timeline.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "support/document.h"
#include "support/random_document.h"

using namespace vqc;

namespace {

class TimelineTest : public DocumentTest {
 protected:
  void describe(const std::string& text) {
    document.clear();
    read_document("VQconfig\n" + text);
    document.dirty = false;
  }
  std::string text() const { return saved(document); }
};

const char kDial[] =
    "widget 'Dial' { realise='make' resource_definitions='a', , , True, 'b', , 'p', True; }\n"
    "enumeration 'Mode' { enumentry 'fast' { code_symbol='FAST' } enumentry 'slow' { } }\n"
    "family 'F' { widget='Dial' enumeration='Mode' header='one.h' header='two.h' page='p' }\n"
    "family 'G' { widget='Dial' }\n";

TEST_F(TimelineTest, TakesEachStepBackAndDoesItAgain) {
  describe(kDial);
  Timeline timeline(document, {});
  std::vector<std::string> texts = {text()};
  const std::vector<std::function<void()>> steps = {
      [&] { document.widgets.find("Dial")->realise = "create"; },
      [&] { document.widgets.find("Dial")->can_manage = false; },
      [&] { document.widgets.find("Dial")->resource_definitions.find("b")->visible = false; },
      [&] { document.ensure(document.widgets.find("Dial")->resource_definitions, "c"); },
      [&] { remove(document, document.widgets.find("Dial")->resource_definitions, "a"); },
      [&] { document.enumerations.find("Mode")->type_name = "Modes"; },
      [&] { move_up(document.enumerations.find("Mode")->entries, "slow"); },
      [&] { move_up(document.families.find("F")->code_headers, "two.h"); },
      [&] { move_down(document.families.find("F")->pages, "display"); },
      [&] { move_up(document.families, "G"); },
      [&] { document.families.find("F")->family_init = ""; },
      [&] { document.families.find("F")->generate_family_init_vq = true; },
      [&] { document.excluded_classes = "A,B"; },
      [&] { document.names.popups.document = "my_popups"; },
      [&] { document.output_names.code = "c.c"; },
      [&] { remove(document, document.families.find("F")->enumerations, "Mode", document.enumerations); },
      [&] { remove(document, document.families, "F"); },
      [&] { remove(document, document.families, "G"); },
      [&] { document.ensure(document.families, "New"); },
      [&] { document.popups.find("vq_font_dialog_create")->dialog_init = "mine"; },
      [&] { document.clear(); },
      [&] { describe("alias 'A' { to_name='B' }\nconverter 'C' { add_in_vq=True }"); },
      [&] { document.converters.find("C")->add_in_vq = false; },
  };
  for (const auto& step : steps) {
    step();
    ASSERT_TRUE(timeline.note(document, {})) << text();
    texts.push_back(text());
  }
  for (int round = 0; round < 2; ++round) {
    for (std::size_t i = steps.size(); i > 0; --i) {
      ASSERT_TRUE(timeline.can_undo());
      timeline.undo(document);
      ASSERT_EQ(texts[i - 1], text()) << i;
    }
    EXPECT_FALSE(timeline.can_undo());
    for (std::size_t i = 1; i <= steps.size(); ++i) {
      ASSERT_TRUE(timeline.can_redo());
      timeline.redo(document);
      ASSERT_EQ(texts[i], text()) << i;
    }
    EXPECT_FALSE(timeline.can_redo());
  }
}

TEST_F(TimelineTest, WhatChangesNothingIsNoStep) {
  describe(kDial);
  Timeline timeline(document, {});
  EXPECT_FALSE(timeline.note(document, {}));
  document.dirty = true;
  EXPECT_FALSE(timeline.note(document, {}));
  EXPECT_TRUE(timeline.now().dirty);
  document.widgets.find("Dial")->realise = document.keep("make");  // the same in another place
  EXPECT_FALSE(timeline.note(document, {}));
  EXPECT_FALSE(timeline.can_undo());
}

TEST_F(TimelineTest, SomethingElseEndsWhatCouldBeDoneAgain) {
  describe(kDial);
  Timeline timeline(document, {});
  document.ensure(document.families, "H");
  timeline.note(document, {});
  timeline.undo(document);
  EXPECT_TRUE(timeline.can_redo());
  EXPECT_FALSE(timeline.note(document, {}));
  EXPECT_TRUE(timeline.can_redo());
  document.ensure(document.families, "I");
  EXPECT_TRUE(timeline.note(document, {}));
  EXPECT_FALSE(timeline.can_redo());
  timeline.undo(document);
  EXPECT_FALSE(document.families.find("I"));
}

TEST_F(TimelineTest, RecordsThatStayStandWhereTheyStood) {
  describe(kDial);
  Timeline timeline(document, {});
  const WidgetDef* dial = document.widgets.find("Dial");
  const ResourceDef* resource = dial->resource_definitions.find("a");
  const Family* family = document.families.find("G");
  document.widgets.find("Dial")->realise = "create";
  remove(document, document.families, "F");
  timeline.note(document, {});
  timeline.undo(document);
  EXPECT_EQ(dial, document.widgets.find("Dial"));
  EXPECT_EQ(resource, dial->resource_definitions.find("a"));
  EXPECT_EQ(family, document.families.find("G"));
}

TEST_F(TimelineTest, RecordsGoWithTheirLastUseAfterGoingBack) {
  describe(kDial);
  Timeline timeline(document, {});
  remove(document, document.families, "F");
  timeline.note(document, {});
  EXPECT_TRUE(document.widgets.find("Dial"));
  timeline.undo(document);
  remove(document, document.families, "F");
  EXPECT_TRUE(document.widgets.find("Dial"));
  EXPECT_FALSE(document.enumerations.find("Mode"));
  remove(document, document.families, "G");
  EXPECT_FALSE(document.widgets.find("Dial"));
}

TEST_F(TimelineTest, TheMarkOfChangeFollows) {
  describe(kDial);
  Timeline timeline(document, {"a.vqc"});
  document.ensure(document.families, "H");
  timeline.note(document, {"a.vqc"});
  timeline.undo(document);
  EXPECT_FALSE(document.dirty);
  timeline.redo(document);
  EXPECT_TRUE(document.dirty);
  document.dirty = false;
  timeline.saved(document, "a.vqc");
  timeline.undo(document);
  EXPECT_TRUE(document.dirty);
  timeline.redo(document);
  EXPECT_FALSE(document.dirty);
}

TEST_F(TimelineTest, PathsFollow) {
  describe(kDial);
  Timeline timeline(document, {"a.vqc"});
  document.ensure(document.families, "H");
  timeline.note(document, {"a.vqc"});
  document.clear();
  timeline.note(document, {});
  timeline.undo(document);
  EXPECT_EQ("a.vqc", timeline.now().path);
  timeline.saved(document, "b.vqc");
  timeline.undo(document);
  EXPECT_EQ("b.vqc", timeline.now().path);
  timeline.redo(document);
  timeline.redo(document);
  EXPECT_EQ(std::nullopt, timeline.now().path);
}

TEST_F(TimelineTest, NoTextIsGoneWithADocumentThatCannotComeBack) {
  const char shared[] = "header 'a header of some length.h'\nfamily 'a family of some length' { }\n";
  describe(shared);
  Timeline timeline(document, {"a.vqc"});
  describe(shared + std::string("alias 'B' { }\n"));
  timeline.note(document, {"b.vqc"});
  describe("alias 'C' { }\n");
  timeline.note(document, {"c.vqc"});
  timeline.undo(document);
  timeline.undo(document);
  const std::string before = text();
  document.excluded_classes = "A";
  timeline.note(document, {"a.vqc"});  // which forgets the other documents
  document.excluded_classes = nullptr;
  EXPECT_EQ(before, text());
}

TEST_F(TimelineTest, WhatWasSelectedLastIsKnownAgain) {
  describe(kDial);
  Timeline timeline(document, {});
  EXPECT_FALSE(timeline.note(document, {.selection = {"G"}}));
  remove(document, document.families, "G");
  EXPECT_TRUE(timeline.note(document, {.selection = {"F"}}));
  timeline.undo(document);
  EXPECT_EQ(std::vector<std::string>{"G"}, timeline.now().selection);
  timeline.redo(document);
  EXPECT_EQ(std::vector<std::string>{"F"}, timeline.now().selection);
}

/// Changes a document as its editors do, at random.
class RandomHand {
 public:
  RandomHand(Document& document, unsigned seed) : document_(document), random_(seed) {}

  void act() {
    switch (random_() % 8) {
      case 0:
        return read(random_() % 8 == 0);
      case 1:
        if (Family* family = one_of(document_.families)) document_.remove(document_.families, family);
        return;
      case 2:
        document_.ensure(document_.families, name());
        return;
      case 3:
        return change_widget();
      case 4:
        if (EnumDef* enumeration = one_of(document_.enumerations)) change_list(enumeration->entries);
        return;
      default:
        return change_family();
    }
  }

 private:
  Text name() { return document_.keep(Text(std::string_view("ABCDEFGHIJ").substr(random_() % 10, 1))); }

  template <class List>
  typename List::Element* one_of(const List& list) {
    if (list.empty()) return nullptr;
    auto element = list.begin();
    for (std::size_t place = random_() % list.size(); place > 0; --place) ++element;
    return &*element;
  }

  void read(bool fresh) {
    if (fresh) document_.clear();
    Diagnostics findings;
    load(Source::from_text(RandomDocument(static_cast<unsigned>(random_())).text()), document_, findings);
  }

  void change_widget() {
    WidgetDef* widget = one_of(document_.widgets);
    if (!widget) return;
    change_list(widget->resource_definitions);
    widget->realise = name();
    if (ResourceDef* resource = one_of(widget->resource_definitions)) resource->page = name();
  }

  void change_family() {
    Family* family = one_of(document_.families);
    if (!family) return;
    std::size_t chosen = random_() % 9;
    each_family_list([&](auto list, auto pool) {
      if (chosen-- == 0) change_list(family->*list, document_.*pool);
    });
  }

  template <class List, class... Pool>
  void change_list(List& list, Pool&... pool) {
    auto* element = one_of(list);
    switch (random_() % 4) {
      case 0:
        document_.ensure(list, pool..., name());
        return;
      case 1:
        if (element) document_.remove(list, pool..., element);
        return;
      case 2:
        if (element) list.move_up(element);
        return;
      default:
        if (element) list.move_down(element);
    }
  }

  Document& document_;
  std::minstd_rand random_;
};

TEST_F(TimelineTest, RandomWalkGivesTheSameBytesThereAndBack) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    document.clear();
    read_document(RandomDocument(seed).text());
    Timeline timeline(document, {});
    RandomHand hand(document, seed);
    std::vector<std::string> texts = {text()};
    for (int i = 0; i < 100; ++i) {
      hand.act();
      if (timeline.note(document, {})) texts.push_back(text());
      if (text() != texts.back()) FAIL() << "what changes the file is a step";
    }
    for (std::size_t i = texts.size(); i-- > 1;) {
      timeline.undo(document);
      ASSERT_EQ(texts[i - 1], text()) << seed;
    }
    ASSERT_FALSE(timeline.can_undo());
    for (std::size_t i = 1; i < texts.size(); ++i) {
      timeline.redo(document);
      ASSERT_EQ(texts[i], text()) << seed;
    }
    ASSERT_FALSE(timeline.can_redo());
  }
}

}  // namespace
