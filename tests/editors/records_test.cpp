#include <gtest/gtest.h>

#include "editors/list_kinds.h"

using namespace vqc;

namespace {

// What a new record of each kind holds.

class NewRecord : public EditedDocumentTest {};

TEST_F(NewRecord, OfAWidgetHasItsThreePermissionsOnly) {
  widget_add("W");
  const WidgetDef& widget = *widget_ptr("W");
  EXPECT_EQ("W", widget.name);
  EXPECT_TRUE(widget.can_create);
  EXPECT_TRUE(widget.can_edit_abstract);
  EXPECT_TRUE(widget.can_manage);
  EXPECT_FALSE(widget.disablefgswap);
  EXPECT_FALSE(widget.disablegoto);
  EXPECT_FALSE(widget.generate_initialise);
  EXPECT_FALSE(widget.default_is_dont_free);
}

TEST_F(NewRecord, OfAWidgetHasNoTextsAndNoResources) {
  widget_add("W");
  const WidgetDef& widget = *widget_ptr("W");
  for (Text WidgetDef::*text :
       {&WidgetDef::include_filename, &WidgetDef::defined_name, &WidgetDef::realise, &WidgetDef::abstract,
        &WidgetDef::can_add_child, &WidgetDef::appropriate_parent, &WidgetDef::largeicon, &WidgetDef::smallicon,
        &WidgetDef::largeiconheader, &WidgetDef::smalliconheader, &WidgetDef::pixmap_resource, &WidgetDef::widget_doc,
        &WidgetDef::widget_tag, &WidgetDef::dialogue_doc, &WidgetDef::dialogue_tag}) {
    EXPECT_EQ(Text(), (widget.*text));
  }
  EXPECT_TRUE(widget.resource_definitions.empty());
  EXPECT_EQ(0, widget.uses);
}

TEST_F(NewRecord, OfAResourceIsVisibleAndFreesByDefault) {
  widget_add("W");
  we_resource_add("r", widget_ptr("W"));
  const ResourceDef& resource = *resource_ptr(widget_ptr("W"), "r");
  EXPECT_EQ("r", resource.name);
  EXPECT_EQ(Text(), resource.popup);
  EXPECT_EQ(Text(), resource.page);
  EXPECT_EQ(Text(), resource.counter);
  EXPECT_TRUE(resource.visible);
  EXPECT_EQ(FreeMode::by_default, resource.free_get);
  EXPECT_EQ(FreeMode::by_default, resource.free_set);
  EXPECT_EQ(-1, resource.access);
  EXPECT_FALSE(resource.mfc_compatible);
  EXPECT_FALSE(resource.java_compatible);
}

TEST_F(NewRecord, OfAnEnumerationHasNoTypeAndNoEntries) {
  enum_add("E");
  const EnumDef& enumeration = *enum_ptr("E");
  EXPECT_EQ("E", enumeration.name);
  EXPECT_EQ(Text(), enumeration.type_name);
  EXPECT_TRUE(enumeration.entries.empty());
}

TEST_F(NewRecord, OfAnEnumerationEntryHasNoSymbols) {
  enum_add("E");
  enumentry_add("e", enum_ptr("E"));
  const EnumEntry& entry = *enumentry_ptr(enum_ptr("E"), "e");
  EXPECT_EQ("e", entry.name);
  EXPECT_EQ(Text(), entry.code_symbol);
  EXPECT_EQ(Text(), entry.resfile_symbol);
}

TEST_F(NewRecord, OfAnAliasNamesNoType) {
  alias_add("A");
  const AliasDef& alias = *alias_ptr("A");
  EXPECT_EQ("A", alias.name);
  EXPECT_EQ(Text(), alias.to_name);
}

TEST_F(NewRecord, OfAConverterIsAddedNowhere) {
  converter_add("C");
  const ConverterDef& converter = *converter_ptr("C");
  EXPECT_EQ("C", converter.name);
  EXPECT_EQ(Text(), converter.proc_name);
  EXPECT_EQ(Text(), converter.dialog);
  EXPECT_FALSE(converter.add_in_vq);
  EXPECT_FALSE(converter.add_in_code);
}

TEST_F(NewRecord, OfAPopupHasNoProcedures) {
  popup_add("P");
  const PopupDef& popup = *popup_ptr("P");
  EXPECT_EQ("P", popup.name);
  EXPECT_EQ(Text(), popup.dialog_init);
  EXPECT_EQ(Text(), popup.dialog_update);
}

TEST_F(NewRecord, OfAPageHasItsNameOnly) {
  page_add("p");
  EXPECT_EQ("p", page_ptr("p")->name);
}

TEST_F(NewRecord, OfAHeaderHasItsNameOnly) {
  codeheader_add("a.h");
  EXPECT_EQ("a.h", codeheader_ptr("a.h")->name);
  EXPECT_EQ(0, codeheader_ptr("a.h")->uses);
}

TEST(FreeModes, AreNumberedAsInTheGeneratedFiles) {
  EXPECT_EQ(0, static_cast<int>(FreeMode::by_default));
  EXPECT_EQ(1, static_cast<int>(FreeMode::free));
  EXPECT_EQ(2, static_cast<int>(FreeMode::dont_free));
}

TEST(AccessBits, AreCreateGetAndSet) {
  EXPECT_EQ(-1, ACCESS_NOT_GIVEN);
  EXPECT_EQ(1, ACCESS_CREATE);
  EXPECT_EQ(2, ACCESS_GET);
  EXPECT_EQ(4, ACCESS_SET);
}

}  // namespace
