#include "vqc/cmd/lookup/uses.h"

#include <gtest/gtest.h>

#include <ostream>

#include "support/document.h"
#include "support/spots.h"
#include "vqc/cmd/savefile/fields.h"

using namespace vqc;

namespace vqc {

void PrintTo(const UseCounts& counts, std::ostream* out) {
  *out << counts.resources << " resources, " << counts.widgets << " widgets, " << counts.converters << " converters, "
       << counts.popups << " popups, " << counts.families << " families";
}

}  // namespace vqc

namespace {

class UsesTest : public DocumentTest {
 protected:
  UsesTest() {
    read_document(
        "VQconfig\n"
        "widget 'Dial' { include_filename='Dial.h' realise='make' abstract='make' pixmap_resource='face'\n"
        "resource_definitions='face', , 'look', True, 'items', 'chooser', 'look', True,\n"
        "'item', 'chooser', 'settings', True, VQC_FREE, VQC_FREE counter 'items'; }\n"
        "widget 'Knob' { largeiconheader='Dial.h' resource_definitions='face', , 'look', True; }\n"
        "enumeration 'Mode' { enumentry 'fast' { } }\n"
        "alias 'Also' { to_name='XtRMode' }\n"
        "converter 'XtRMode' { proc_name='add' dialog='chooser' }\n"
        "popup 'chooser' { dialog_init='init' dialog_update='make' }\n"
        "family 'F' { family_init='init' widget='Dial' enumeration='Mode' header='Dial.h' cheader='Dial.h'\n"
        "family_header='family.h' alias='Also' converter='XtRMode' popup='chooser' page='look' }\n"
        "family 'G' { widget='Dial' widget='Knob' header='Dial.h' }\n");
    EXPECT_TRUE(diagnostics.empty());
  }

  Spots uses(Part part, const char* name, const char* of = "") { return uses_of(document, {part, name, of}); }
};

TEST_F(UsesTest, OfAPageAreResourcesAndFamilies) {
  EXPECT_EQ((Spots{{Part::resource, "face", "Dial", "page"},
                   {Part::resource, "items", "Dial", "page"},
                   {Part::resource, "face", "Knob", "page"},
                   {Part::family, "F", "", "page"}}),
            uses(Part::page, "look"));
}

TEST_F(UsesTest, OfAPopupAreConvertersToo) {
  EXPECT_EQ((Spots{{Part::resource, "item", "Dial", "popup"},
                   {Part::resource, "items", "Dial", "popup"},
                   {Part::converter, "XtRMode", "", "dialog"},
                   {Part::family, "F", "", "popup"}}),
            uses(Part::popup, "chooser"));
}

TEST_F(UsesTest, OfAProcedureAreWhateverFieldsNameIt) {
  EXPECT_EQ((Spots{{Part::widget, "Dial", "", "realise"},
                   {Part::widget, "Dial", "", "abstract"},
                   {Part::popup, "chooser", "", "dialog_update"}}),
            uses(Part::procedure, "make"));
  EXPECT_EQ((Spots{{Part::popup, "chooser", "", "dialog_init"}, {Part::family, "F", "", "family_init"}}),
            uses(Part::procedure, "init"));
  EXPECT_EQ((Spots{{Part::converter, "XtRMode", "", "proc_name"}}), uses(Part::procedure, "add"));
}

TEST_F(UsesTest, OfWhatFamiliesListAreTheFamilies) {
  EXPECT_EQ((Spots{{Part::family, "F", "", "widget"}, {Part::family, "G", "", "widget"}}), uses(Part::widget, "Dial"));
  EXPECT_EQ((Spots{{Part::family, "F", "", "enumeration"}}), uses(Part::enumeration, "Mode"));
  EXPECT_EQ((Spots{{Part::family, "F", "", "alias"}}), uses(Part::alias, "Also"));
  EXPECT_EQ((Spots{{Part::family, "F", "", "converter"}}), uses(Part::converter, "XtRMode"));
  EXPECT_EQ((Spots{{Part::family, "F", "", "family_header"}}), uses(Part::family_header, "family.h"));
}

TEST_F(UsesTest, OfAHeaderAreWidgetsToo) {
  const Spots by_widgets = {{Part::widget, "Dial", "", "include_filename"},
                            {Part::widget, "Knob", "", "largeiconheader"}};
  Spots of_code = by_widgets;
  of_code.push_back({Part::family, "F", "", "header"});
  of_code.push_back({Part::family, "G", "", "header"});
  EXPECT_EQ(of_code, uses(Part::code_header, "Dial.h"));
  Spots of_config = by_widgets;
  of_config.push_back({Part::family, "F", "", "cheader"});
  EXPECT_EQ(of_config, uses(Part::config_header, "Dial.h"));
}

TEST_F(UsesTest, OfAResourceAreInItsWidget) {
  EXPECT_EQ((Spots{{Part::widget, "Dial", "", "pixmap_resource"}}), uses(Part::resource, "face", "Dial"));
  EXPECT_EQ((Spots{{Part::resource, "item", "Dial", "counter"}}), uses(Part::resource, "items", "Dial"));
  EXPECT_EQ(Spots{}, uses(Part::resource, "face", "Knob"));
}

TEST_F(UsesTest, AreNoneOfWhatNobodyNames) {
  EXPECT_EQ(Spots{}, uses(Part::page, "other"));
  EXPECT_EQ(Spots{}, uses(Part::family, "F"));
  EXPECT_EQ(Spots{}, uses(Part::entry, "fast", "Mode"));
  EXPECT_EQ(Spots{}, uses(Part::widget, "make"));
  EXPECT_EQ(Spots{}, uses(Part::page, ""));
}

TEST_F(UsesTest, AreCountedByTheirKind) {
  const auto counts = [&](Part part, const char* name) { return count_uses(document, {part, name}); };
  EXPECT_EQ((UseCounts{.resources = 3, .families = 1}), counts(Part::page, "look"));
  EXPECT_EQ((UseCounts{.resources = 2, .converters = 1, .families = 1}), counts(Part::popup, "chooser"));
  EXPECT_EQ((UseCounts{.widgets = 2, .popups = 1}), counts(Part::procedure, "make"));
  EXPECT_EQ((UseCounts{}), counts(Part::page, "other"));
  EXPECT_EQ(4, counts(Part::page, "look").all());
}

}  // namespace
