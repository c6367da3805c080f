// Moves the selected item of a list, in the model first.

#include "vqc/cmd/editors/kit/arrowlist.h"

#include <Xm/List.h>

#include "vqc/cmd/editors/kit/shown_names.h"

namespace vqc::editors {

namespace {

/// The place of the selected item, counted from 1; 0 unless exactly one is selected.
int selected_position(Widget list) {
  int* positions = nullptr;
  int count = 0;
  if (!XmListGetSelectedPos(list, &positions, &count)) return 0;
  const int position = count == 1 ? positions[0] : 0;
  XtFree(reinterpret_cast<char*>(positions));
  return position;
}

int moved_position(int position, int count, bool down, bool wrap) {
  const bool at_edge = position == (down ? count : 1);
  if (!at_edge) return position + (down ? 1 : -1);
  if (!wrap) return 0;
  return down ? 1 : count;
}

/// Scrolls no further than the item needs.
void keep_in_sight(Widget list, int position, bool down) {
  int top = 0;
  int visible = 0;
  XtVaGetValues(list, XmNtopItemPosition, &top, XmNvisibleItemCount, &visible, nullptr);
  if (down && position == top + visible) {
    XmListSetBottomPos(list, position);
  } else if (top > position) {
    XmListSetPos(list, position);
  }
}

}  // namespace

int arrowlist_action(Widget list, Move move, bool down, bool wrap) {
  const int position = selected_position(list);
  if (position == 0) return 0;
  const std::vector<std::string>& names = list_names(list);
  const int new_position = moved_position(position, static_cast<int>(names.size()), down, wrap);
  if (new_position == 0 || move(names[static_cast<std::size_t>(position) - 1], wrap) != 0) return 0;
  list_move(list, position, new_position);
  XmListSelectPos(list, new_position, False);
  keep_in_sight(list, new_position, down);
  return 1;
}

}  // namespace vqc::editors
