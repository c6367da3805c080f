#ifndef VQC_CMD_EDITORS_KIT_LONG_LIST_H
#define VQC_CMD_EDITORS_KIT_LONG_LIST_H

// Lists of very many rows: only what is in view are items of the widget. The first item is a heading, which stays there
// while the rows below it are scrolled. Any number of rows can be selected, with the mouse and keys of other lists.
// Rows are counted from 0.

#include <Xm/Xm.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vqc::editors {

/// What the rows of a list say, each asked for when it comes into view.
struct Rows {
  std::string heading;
  std::size_t count = 0;
  std::function<std::string(std::size_t row)> text;
};

/// Makes a list inside of a "long_list", which layout attaches. The list is what the functions below take.
Widget create_long_list(Widget parent, char* name, ArgList, Cardinal);

/// Shows these rows, none of them selected, and as far down as those before.
void show_rows(Widget list, Rows rows);

std::vector<std::size_t> selected_rows(Widget list);
/// Selects rows in the place of others; the list stays as far down as it is. Calls nobody.
void select_rows(Widget list, const std::vector<std::size_t>& rows);
void select_all_rows(Widget list);
/// Calls a procedure whenever the user has selected rows.
void when_rows_selected(Widget list, void (*selected)());

/// How many rows a list has; none for a list of another kind.
std::optional<std::size_t> count_rows(Widget list);

}  // namespace vqc::editors

#endif
