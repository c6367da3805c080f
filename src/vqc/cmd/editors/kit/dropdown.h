#ifndef VQC_CMD_EDITORS_KIT_DROPDOWN_H
#define VQC_CMD_EDITORS_KIT_DROPDOWN_H

// The list that drops down from a text field. The field keeps the keyboard: while the list is there, Up and Down go
// from item to item, Return and Tab take the selected one, as a click does, and Escape puts the list away. So does
// leaving the field.

#include <Xm/Xm.h>

#include <functional>
#include <string>
#include <vector>

namespace vqc::editors {

/// Called with the place of the item that the user has taken, from 0.
using TakeItem = std::function<void(std::size_t place)>;

/// Puts the list away, whichever field it belongs to.
void hide_dropdown();

/// Shows these items below a field, the first one selected, in the place of the list that is there. No items, no list.
/// `escaped` is called when Escape has put it away.
void show_dropdown(Widget field, const std::vector<std::string>& items, TakeItem take,
                   std::function<void()> escaped = {});

/// Whether the list of a field is there.
bool has_dropdown(Widget field);

}  // namespace vqc::editors

#endif
