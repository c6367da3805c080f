#include "vqc/cmd/editors/kit/arrowlist.h"

#include <Xm/List.h>

#include "vqc/cmd/editors/kit/compound.h"

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
  XmString* items = nullptr;
  int count = 0;
  XtVaGetValues(list, XmNitems, &items, XmNitemCount, &count, nullptr);
  const int new_position = moved_position(position, count, down, wrap);
  if (new_position == 0) return 0;
  const Text name = text_of(items[position - 1]);
  if (move(name, wrap) != 0) return 0;
  XmListDeletePos(list, position);
  XmListAddItem(list, CompoundString(name), new_position);
  XmListSelectPos(list, new_position, False);
  keep_in_sight(list, new_position, down);
  return 1;
}
