#ifndef VQC_CMD_TABLE_RESOURCE_TABLE_H
#define VQC_CMD_TABLE_RESOURCE_TABLE_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/model/document.h"

namespace vqc {

// The resources of many widgets as a table: a row for each, with what it says in columns.

enum class Column : std::uint8_t { widget, name, page, popup, counter, visible, free_get, free_set, access };

inline constexpr std::array all_columns = {Column::widget,   Column::name,     Column::page,
                                           Column::popup,    Column::counter,  Column::visible,
                                           Column::free_get, Column::free_set, Column::access};

/// The word for a column in a text, and the column of a word, in capitals or not.
std::string_view column_word(Column column);
std::optional<Column> column_of(std::string_view word);

/// A row: a resource of a widget. It is good as long as the document has both.
struct ResourceRow {
  WidgetDef* widget;
  ResourceDef* resource;

  bool operator==(const ResourceRow&) const = default;
};
using ResourceRows = std::vector<ResourceRow>;

/// The rows of a document, and of a family, in their order.
ResourceRows resource_rows(Document& document);
ResourceRows resource_rows(const Family& family);

/// What a row says in a column: flags and modes in the words of a document, and an access as words with blanks between
/// them, none where all is allowed because none is given. The text is the document's.
std::string_view cell(const ResourceRow& row, Column column);

/// The rows that match in a column what somebody has typed.
ResourceRows matching_rows(std::span<const ResourceRow> rows, Column column, std::string_view typed);

/// Sorts rows by a column. Rows that say the same there keep their order.
void sort_rows(ResourceRows& rows, Column column, bool descending = false);

/// Whether a column can be set: `widget` and `name` say which resource it is, and never are.
constexpr bool is_settable(Column column) { return column != Column::widget && column != Column::name; }

/// Whether a text is a value for a column that can be set. A flag may be in capitals, as spreadsheets have it.
bool is_value(Column column, std::string_view text);

/// The values that a column may have, where they are known; of an access all but that of none given.
std::vector<std::string> known_values(Column column);

/// Sets what a resource says in a column to a text that is a value for it, and marks the document as changed if that is
/// something else than before. Whether it is.
bool set_cell(Document& document, ResourceDef& resource, Column column, std::string_view text);

// What follows changes the document, and marks it as changed where anything becomes another. The page that a row
// gets then goes into all families that have its widget.

struct Changes {
  std::size_t added = 0;    // resources
  std::size_t changed = 0;  // of those that were there
};

/// Sets what rows say in a column, to a text that is a value for it.
Changes set_cells(Document& document, std::span<const ResourceRow> rows, Column column, std::string_view text);

/// Gives each of some widgets resources like those of the rows, new or in the place of its own of that name.
Changes copy_rows(Document& document, std::span<const ResourceRow> rows, std::span<WidgetDef* const> widgets);

/// Gives each family that has the widget of a row the page that it names.
void pages_into_families(Document& document, std::span<const ResourceRow> rows);

/// The widgets that a text names, with blanks between the names.
struct NamedWidgets {
  std::vector<WidgetDef*> widgets;
  std::string unknown;  // the first name that no widget has; empty for none
};
NamedWidgets widgets_named(Document& document, const std::string& text);

}  // namespace vqc

#endif
