#include "vqc/cmd/lookup/directory.h"

#include <gtest/gtest.h>

#include "support/document.h"
#include "support/spots.h"

using namespace vqc;

namespace {

class DirectoryTest : public DocumentTest {
 protected:
  DirectoryTest() {
    read_document(
        "VQconfig\n"
        "widget 'Dial' { realise='make_dial' abstract='make_dial'\n"
        "resource_definitions='XtNlabel', , , True, 'XtNlabelString', , , True; }\n"
        "widget 'AsciiClock' { resource_definitions='XtNlabel', , , True; }\n"
        "enumeration 'Mode' { enumentry 'fast' { } }\n"
        "alias 'Also' { to_name='XtRMode' }\n"
        "converter 'XtRColour' { }\n"
        "popup 'chooser' { }\n"
        "family 'Dial' { page='look' header='code.h' cheader='config.h' family_header='family.h' }\n");
    EXPECT_TRUE(diagnostics.empty());
  }

  Spots found(std::string_view typed) { return Directory(document).find(typed, 100).best; }
};

TEST_F(DirectoryTest, FindsThingsOfEachKind) {
  EXPECT_EQ((Spots{{Part::widget, "AsciiClock"}}), found("asc"));
  EXPECT_EQ((Spots{{Part::enumeration, "Mode"}}), found("mode"));
  EXPECT_EQ((Spots{{Part::entry, "fast", "Mode"}}), found("fast"));
  EXPECT_EQ((Spots{{Part::alias, "Also"}}), found("also"));
  EXPECT_EQ((Spots{{Part::converter, "XtRColour"}}), found("rcol"));
  EXPECT_EQ((Spots{{Part::popup, "chooser"}}), found("choo"));
  EXPECT_EQ((Spots{{Part::page, "look"}}), found("loo"));
  EXPECT_EQ((Spots{{Part::code_header, "code.h"}}), found("code"));
  EXPECT_EQ((Spots{{Part::family_header, "family.h"}}), found("fam"));
  EXPECT_EQ((Spots{{Part::config_header, "config.h"}}), found("conf"));
}

TEST_F(DirectoryTest, FindsAProcedureOnce) { EXPECT_EQ((Spots{{Part::procedure, "make_dial"}}), found("make")); }

TEST_F(DirectoryTest, FindsAllThatHaveAName) {
  EXPECT_EQ((Spots{{Part::resource, "XtNlabel", "AsciiClock"},
                   {Part::resource, "XtNlabel", "Dial"},
                   {Part::resource, "XtNlabelString", "Dial"}}),
            found("label"));
}

TEST_F(DirectoryTest, FindsTheBestFirst) {
  EXPECT_EQ((Spots{{Part::family, "Dial"}, {Part::widget, "Dial"}, {Part::procedure, "make_dial"}}),
            Directory(document).find("dial", 3).best);
}

TEST_F(DirectoryTest, FindsNothingWhereNothingIsTyped) {
  EXPECT_EQ(Spots{}, found(""));
  EXPECT_EQ(Spots{}, found(" "));
  EXPECT_EQ(Spots{}, found("dialx"));
}

TEST_F(DirectoryTest, SaysHowManyThereAre) {
  Directory directory(document);
  const Directory::Hits hits = directory.find("label", 2);
  EXPECT_EQ(3U, hits.count);
  EXPECT_EQ((Spots{{Part::resource, "XtNlabel", "AsciiClock"}, {Part::resource, "XtNlabel", "Dial"}}), hits.best);
  EXPECT_EQ(3U, directory.find("label", 0).count);
}

TEST_F(DirectoryTest, FindsTheSameWhateverWasTypedBefore) {
  Directory directory(document);
  const std::string_view typed[] = {"", "l", "la", "lab", "la", "lab",   "label",  "labels",
                                    "", " ", " d", "d",   "di", "dial ", "dial m", "x"};
  for (const std::string_view text : typed) {
    const Directory::Hits hits = directory.find(text, 100);
    EXPECT_EQ(found(text), hits.best) << text;
    EXPECT_EQ(hits.best.size(), hits.count) << text;
  }
}

TEST_F(DirectoryTest, StaysAsTheDocumentWas) {
  Directory directory(document);
  document.clear();
  EXPECT_EQ((Spots{{Part::page, "look"}}), directory.find("look", 100).best);
}

}  // namespace
