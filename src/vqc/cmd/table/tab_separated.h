#ifndef VQC_CMD_TABLE_TAB_SEPARATED_H
#define VQC_CMD_TABLE_TAB_SEPARATED_H

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "vqc/cmd/table/resource_table.h"

namespace vqc {

// Rows of resources as a text that spreadsheets read and write: a line for each, with tabs between its cells, and a
// first line that names the columns. A cell with a tab, a line break or a double quote in it stands in double quotes,
// which are doubled within.

/// The text of rows, with all columns.
std::string as_text(std::span<const ResourceRow> rows);

/// Why a text cannot be put into a document.
enum class TextError {
  unknown_column,   // of that word
  doubled_column,   // which another one has
  missing_column,   // of widget or name, which each line has to say
  number_of_cells,  // is not that of the first line
  unclosed_quote,   // in the line that begins here
  unknown_widget,   // of that name
  no_name,          // of a resource
  no_value,         // for the column: that cell
};
struct TextProblem {
  TextError error;
  std::size_t line;     // counted from 1
  std::string subject;  // the word, name or cell; empty for none

  bool operator==(const TextProblem&) const = default;
};

/// What has been put into a document, or why nothing has.
struct Pasted : Changes {
  std::vector<TextProblem> problems;
};

/// Puts the resources of a text into a document, each into the widget that its line names. Columns may stand in any
/// order, and what the text has no column for stays as it is. Either all of the text is taken or nothing.
Pasted paste_text(Document& document, std::string_view text);

}  // namespace vqc

#endif
