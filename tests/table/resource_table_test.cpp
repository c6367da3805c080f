#include "vqc/cmd/table/resource_table.h"

#include <gtest/gtest.h>

#include "support/document.h"

using namespace vqc;

namespace {

using Texts = std::vector<std::string>;

class ResourceTable : public DocumentTest {
 protected:
  ResourceTable() {
    read_document(
        "VQconfig\n"
        "widget 'Dial' {\nresource_definitions='face', 'face_popup', 'faces', True, VQC_FREE, VQC_FREE_DEFAULT"
        " access 3 counter 'count',\n'value', , 'settings', False, VQC_DONT_FREE, VQC_FREE;\n}\n"
        "widget 'Knob' {\nresource_definitions='face', , 'faces', True;\n}\n"
        "widget 'Lamp' { }\nwidget 'two words' { }\n"
        "family 'F' {\nwidget='Knob'\n}\nfamily 'G' {\nwidget='Lamp'\n}\n");
    document.dirty = false;
  }

  /// What rows say in a column.
  static Texts in(Column column, const ResourceRows& rows) {
    Texts texts;
    for (const ResourceRow& row : rows) texts.emplace_back(cell(row, column));
    return texts;
  }
  ResourceRow row(const char* widget, const char* name) {
    WidgetDef* found = document.widgets.find(Text(widget));
    return {found, found->resource_definitions.find(Text(name))};
  }
};

TEST_F(ResourceTable, HasARowForEachResource) {
  const ResourceRows rows = resource_rows(document);
  EXPECT_EQ((Texts{"Dial", "Dial", "Knob"}), in(Column::widget, rows));
  EXPECT_EQ((Texts{"face", "value", "face"}), in(Column::name, rows));
  EXPECT_EQ((Texts{"faces", "settings", "faces"}), in(Column::page, rows));
  EXPECT_EQ((Texts{"face_popup", "", ""}), in(Column::popup, rows));
  EXPECT_EQ((Texts{"count", "", ""}), in(Column::counter, rows));
  EXPECT_EQ((Texts{"True", "False", "True"}), in(Column::visible, rows));
  EXPECT_EQ((Texts{"create get", "", ""}), in(Column::access, rows));
}

TEST_F(ResourceTable, HasTheFreeModesInTheWordsOfADocument) {
  for (const char* word : {"VQC_FREE_DEFAULT", "VQC_FREE", "VQC_DONT_FREE"}) {
    set_cell(document, *row("Knob", "face").resource, Column::free_get, word);
    EXPECT_EQ(word, cell(row("Knob", "face"), Column::free_get));
  }
}

TEST_F(ResourceTable, OfAFamilyHasItsWidgetsAlone) {
  EXPECT_EQ(Texts{"Knob"}, in(Column::widget, resource_rows(*document.families.find(Text("F")))));
}

TEST_F(ResourceTable, IsFilteredByColumn) {
  const ResourceRows rows = resource_rows(document);
  EXPECT_EQ((Texts{"Dial", "Knob"}), in(Column::widget, matching_rows(rows, Column::name, "FAC")));
  EXPECT_EQ(Texts{"value"}, in(Column::name, matching_rows(rows, Column::visible, "false")));
  EXPECT_EQ(rows, matching_rows(rows, Column::page, ""));
}

TEST_F(ResourceTable, IsSortedByColumn) {
  ResourceRows rows = resource_rows(document);
  sort_rows(rows, Column::name, true);
  EXPECT_EQ((Texts{"value", "face", "face"}), in(Column::name, rows));
  EXPECT_EQ((Texts{"Dial", "Dial", "Knob"}), in(Column::widget, rows));  // equals keep their order
  sort_rows(rows, Column::page);
  EXPECT_EQ((Texts{"faces", "faces", "settings"}), in(Column::page, rows));
}

TEST_F(ResourceTable, SetsACell) {
  const ResourceRow dial = row("Dial", "value");
  const std::pair<Column, const char*> cells[] = {
      {Column::page, "other"},        {Column::popup, "dialog"},
      {Column::counter, "n"},         {Column::visible, "True"},
      {Column::free_get, "VQC_FREE"}, {Column::free_set, "VQC_DONT_FREE"},
      {Column::access, "create set"}, {Column::page, ""},
  };
  for (const auto& [column, text] : cells) {
    document.dirty = false;
    EXPECT_TRUE(set_cell(document, *dial.resource, column, text));
    EXPECT_EQ(text, cell(dial, column));
    EXPECT_TRUE(document.dirty);
    document.dirty = false;
    EXPECT_FALSE(set_cell(document, *dial.resource, column, text));  // which it says already
    EXPECT_FALSE(document.dirty);
  }
  EXPECT_EQ(ACCESS_CREATE | ACCESS_SET, dial.resource->access);
  EXPECT_FALSE(dial.resource->page);  // an empty text is none
}

TEST_F(ResourceTable, SetsNothingThatIsNoValue) {
  const ResourceRow dial = row("Dial", "face");
  const ResourceFields before = *dial.resource;
  const std::pair<Column, const char*> cells[] = {
      {Column::visible, "yes"}, {Column::visible, ""},     {Column::free_get, "FREE"},
      {Column::access, "make"}, {Column::name, "another"}, {Column::widget, "Knob"},
  };
  for (const auto& [column, text] : cells) {
    EXPECT_FALSE(is_value(column, text)) << text;
    EXPECT_FALSE(set_cell(document, *dial.resource, column, text)) << text;
  }
  EXPECT_EQ(before, static_cast<const ResourceFields&>(*dial.resource));
  EXPECT_FALSE(document.dirty);
}

TEST_F(ResourceTable, TellsNoAccessFromNoneGiven) {
  const ResourceRow dial = row("Dial", "face");
  set_cell(document, *dial.resource, Column::access, "none");
  EXPECT_EQ(0, dial.resource->access);
  EXPECT_EQ("none", cell(dial, Column::access));
  set_cell(document, *dial.resource, Column::access, "");
  EXPECT_EQ(ACCESS_NOT_GIVEN, dial.resource->access);
}

TEST_F(ResourceTable, CopiesRowsToOtherWidgets) {
  WidgetDef* const widgets[] = {document.widgets.find(Text("Knob")), document.widgets.find(Text("Lamp"))};
  const ResourceRow dial[] = {row("Dial", "face"), row("Dial", "value")};
  Changes changes = copy_rows(document, dial, widgets);
  EXPECT_EQ(3U, changes.added);
  EXPECT_EQ(1U, changes.changed) << "Knob has a face, another one";
  EXPECT_TRUE(document.dirty);
  EXPECT_EQ("face_popup", cell(row("Knob", "face"), Column::popup));
  EXPECT_EQ("settings", cell(row("Lamp", "value"), Column::page));
  changes = copy_rows(document, dial, widgets);
  EXPECT_EQ(0U, changes.added + changes.changed) << "they have them all";
}

TEST_F(ResourceTable, SetsACellOfManyRows) {
  const ResourceRows rows = resource_rows(document);
  EXPECT_EQ(1U, set_cells(document, rows, Column::page, "faces").changed) << "two say so already";
  EXPECT_EQ((Texts{"faces", "faces", "faces"}), in(Column::page, rows));
}

TEST_F(ResourceTable, PutsThePagesOfRowsIntoTheFamiliesOfTheirWidgets) {
  const auto has_page = [this](const char* family, const char* page) {
    return document.families.find(Text(family))->pages.find(Text(page)) != nullptr;
  };
  set_cells(document, resource_rows(document), Column::counter, "n");
  EXPECT_FALSE(has_page("F", "faces")) << "no page has been set";
  set_cells(document, resource_rows(document), Column::page, "new");
  EXPECT_TRUE(has_page("F", "new"));
  EXPECT_FALSE(has_page("G", "new")) << "it has none of the widgets";
  WidgetDef* const lamp[] = {document.widgets.find(Text("Lamp"))};
  copy_rows(document, resource_rows(document), lamp);
  EXPECT_TRUE(has_page("G", "new"));
}

TEST_F(ResourceTable, FindsWidgetsByTheirNames) {
  EXPECT_EQ(2U, widgets_named(document, " Dial  Lamp ").widgets.size());
  EXPECT_EQ("Piano", widgets_named(document, "Dial Piano").unknown);
  EXPECT_TRUE(widgets_named(document, "Dial Piano").widgets.empty());
  EXPECT_TRUE(widgets_named(document, "").widgets.empty());
  EXPECT_EQ(1U, widgets_named(document, "two words").widgets.size()) << "a name may have a blank in it";
}

TEST_F(ResourceTable, KnowsTheValuesOfColumnsThatTakeNoOthers) {
  for (const Column column : all_columns) {
    for (const std::string& value : known_values(column)) EXPECT_TRUE(is_value(column, value)) << value;
  }
  EXPECT_EQ((Texts{"False", "True"}), known_values(Column::visible));
  EXPECT_EQ(3U, known_values(Column::free_set).size());
  EXPECT_EQ(8U, known_values(Column::access).size());
  EXPECT_EQ(Texts(), known_values(Column::page));
}

TEST_F(ResourceTable, TakesCapitalsAsSpreadsheetsHaveThem) {
  const ResourceRow dial = row("Dial", "face");
  EXPECT_TRUE(set_cell(document, *dial.resource, Column::visible, "FALSE"));
  EXPECT_EQ("False", cell(dial, Column::visible));
  EXPECT_EQ(Column::free_get, column_of("Free_Get"));
}

TEST_F(ResourceTable, TakesTheWordsOfAnAccessInAnyOrderWithAnyBlanks) {
  const ResourceRow dial = row("Dial", "face");
  EXPECT_TRUE(set_cell(document, *dial.resource, Column::access, " set  get "));
  EXPECT_EQ("get set", cell(dial, Column::access));
}

TEST_F(ResourceTable, NamesItsColumns) {
  for (const Column column : all_columns) EXPECT_EQ(column, column_of(column_word(column)));
  EXPECT_EQ(std::nullopt, column_of("colour"));
}

}  // namespace
