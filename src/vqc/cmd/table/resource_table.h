#ifndef VQC_CMD_TABLE_RESOURCE_TABLE_H
#define VQC_CMD_TABLE_RESOURCE_TABLE_H

#include <array>
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

/// The word for a column in a text, and the column of a word.
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
/// them, none where all is allowed because none is given.
std::string cell(const ResourceRow& row, Column column);

/// The rows that match in a column what somebody has typed.
ResourceRows matching_rows(std::span<const ResourceRow> rows, Column column, std::string_view typed);

/// Sorts rows by a column. Rows that say the same there keep their order.
void sort_rows(ResourceRows& rows, Column column, bool descending = false);

/// Whether a text is a value for a column. Those of `widget` and `name` say which resource it is, and are never set.
bool is_value(Column column, std::string_view text);

/// Sets what a resource says in a column to a text that is a value for it, and marks the document as changed if that is
/// something else than before. Whether it is.
bool set_cell(Document& document, ResourceDef& resource, Column column, std::string_view text);

/// Gives a widget a resource like this one, new or in the place of its own of that name. Whether it was another before.
bool copy_resource(Document& document, const ResourceFields& resource, WidgetDef& widget);

}  // namespace vqc

#endif
