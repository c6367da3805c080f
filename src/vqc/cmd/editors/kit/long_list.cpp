// Fills the list with the rows in view, and keeps what is selected, in view or not.

#include "vqc/cmd/editors/kit/long_list.h"

#include <X11/keysym.h>
#include <Xm/List.h>
#include <Xm/ScrollBar.h>
#include <Xm/ScrolledW.h>

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "vqc/cmd/editors/kit/compound.h"
#include "vqc/cmd/editors/kit/memory.h"
#include "vqc/cmd/editors/kit/shown_names.h"

namespace vqc::editors {

namespace {

struct LongList {
  Widget list;
  Widget bar;
  Rows rows = {};
  std::vector<bool> selected = {};
  std::size_t top = 0;      // the first row in view
  std::size_t filled = 0;   // how many there was room for when it was filled
  std::size_t current = 0;  // where the keyboard is
  std::size_t anchor = 0;   // where a range begins
  void (*when_selected)() = nullptr;
};

std::unordered_map<Widget, LongList>& all_lists() {
  static std::unordered_map<Widget, LongList> lists;
  return lists;
}

LongList& list_of(Widget list) { return all_lists().at(list); }

/// Below the heading.
std::size_t rows_in_view(const LongList& list) {
  int visible = 0;
  XtVaGetValues(list.list, XmNvisibleItemCount, &visible, nullptr);
  return static_cast<std::size_t>(std::max(visible - 1, 1));
}

std::size_t end_of_view(const LongList& list) { return std::min(list.top + rows_in_view(list), list.rows.count); }

// The positions of items are counted from 1, and the first is that of the heading.
constexpr int kFirstRow = 2;
int position_of(const LongList& list, std::size_t row) { return static_cast<int>(row - list.top) + kFirstRow; }
std::size_t row_at(const LongList& list, int position) {
  return list.top + static_cast<std::size_t>(position - kFirstRow);
}

CompoundString item(const std::string& text, const char* rendition) {
  return CompoundString::of_lines(displayable_line(text).c_str(), rendition);
}

void fill_items(const LongList& list) {
  std::vector<CompoundString> strings;
  strings.push_back(item(list.rows.heading, "long_list_heading"));
  for (std::size_t row = list.top; row < end_of_view(list); ++row) {
    strings.push_back(item(list.rows.text(row), "long_list_row"));
  }
  std::vector<XmString> items(strings.begin(), strings.end());
  XmListDeselectAllItems(list.list);
  XtVaSetValues(list.list, XmNitems, items.data(), XmNitemCount, static_cast<int>(items.size()), nullptr);
}

void mark_selected(const LongList& list) {
  std::vector<int> positions;
  for (std::size_t row = list.top; row < end_of_view(list); ++row) {
    if (list.selected[row]) positions.push_back(position_of(list, row));
  }
  XmListDeselectAllItems(list.list);
  XtVaSetValues(list.list, XmNselectedPositions, positions.data(), XmNselectedPositionCount,
                static_cast<int>(positions.size()), nullptr);
  const bool is_in_view = list.current >= list.top && list.current < end_of_view(list);
  if (is_in_view) XmListSetKbdItemPos(list.list, position_of(list, list.current));
}

void set_bar(const LongList& list) {
  const auto rows = static_cast<int>(rows_in_view(list));
  const int count = std::max(static_cast<int>(list.rows.count), 1);
  XtVaSetValues(list.bar, XmNmaximum, count, XmNsliderSize, std::min(rows, count), XmNpageIncrement, rows, XmNvalue,
                static_cast<int>(list.top), nullptr);
}

void fill(LongList& list) {
  list.filled = rows_in_view(list);
  list.top = std::min(list.top, list.rows.count - std::min(list.filled, list.rows.count));
  fill_items(list);
  mark_selected(list);
  set_bar(list);
}

void bring_into_view(LongList& list, std::size_t row) {
  const std::size_t rows = rows_in_view(list);
  const std::size_t top = std::clamp(list.top, row + 1 - std::min(rows, row + 1), row);
  if (top == list.top) return mark_selected(list);
  list.top = top;
  fill(list);
}

void select_none(LongList& list) { list.selected.assign(list.rows.count, false); }

/// Selects all from the anchor to a row.
void select_range(LongList& list, std::size_t row) {
  const auto [first, last] = std::minmax({list.anchor, row});
  for (std::size_t each = first; each <= last; ++each) list.selected[each] = true;
}

/// Selects of the rows in view those that the widget shows as selected.
void take_marks(LongList& list, const XmListCallbackStruct& call) {
  for (std::size_t row = list.top; row < end_of_view(list); ++row) list.selected[row] = false;
  for (int i = 0; i < call.selected_item_count; ++i) {
    const int position = call.selected_item_positions[i];
    if (position >= kFirstRow) list.selected[row_at(list, position)] = true;
  }
}

unsigned modifiers_of(const XEvent* event) {
  if (!event) return 0;
  return event->type == KeyPress || event->type == KeyRelease ? event->xkey.state : event->xbutton.state;
}

void tell(const LongList& list) {
  if (list.when_selected) list.when_selected();
}

/// The widget knows what is in view only: a range may begin outside of it.
void take_selection(LongList& list, const XmListCallbackStruct& call) {
  const unsigned modifiers = modifiers_of(call.event);
  if (call.item_position < kFirstRow) return mark_selected(list);
  list.current = row_at(list, call.item_position);
  if (!(modifiers & ControlMask)) select_none(list);
  if (modifiers & ShiftMask) {
    select_range(list, list.current);
  } else {
    take_marks(list, call);
    list.anchor = list.current;
  }
  mark_selected(list);
  tell(list);
}

void rows_chosen(Widget w, XtPointer, XtPointer call) {
  guarded([&] { take_selection(list_of(w), *static_cast<XmListCallbackStruct*>(call)); });
}

/// Where a key leads from the current row; none for a key that leads nowhere.
std::optional<std::size_t> target_of(const LongList& list, KeySym key) {
  const std::size_t last = list.rows.count - 1;
  const auto back = [&](std::size_t step) { return list.current - std::min(list.current, step); };
  const auto on = [&](std::size_t step) { return std::min(list.current + step, last); };
  switch (key) {
    case XK_Up:
    case XK_KP_Up:
      return back(1);
    case XK_Down:
    case XK_KP_Down:
      return on(1);
    case XK_Page_Up:
    case XK_KP_Page_Up:
      return back(rows_in_view(list));
    case XK_Page_Down:
    case XK_KP_Page_Down:
      return on(rows_in_view(list));
    case XK_Home:
    case XK_KP_Home:
      return 0;
    case XK_End:
    case XK_KP_End:
      return last;
    default:
      return std::nullopt;
  }
}

/// With Ctrl the keyboard goes elsewhere and leaves the selection as it is.
void go_to_row(LongList& list, std::size_t row, unsigned modifiers) {
  list.current = row;
  if (!(modifiers & ControlMask)) {
    select_none(list);
    if (!(modifiers & ShiftMask)) list.anchor = row;
    select_range(list, row);
  }
  bring_into_view(list, row);
  tell(list);
}

/// Selects the current row alone or, with Ctrl, as well or no longer.
void choose_current(LongList& list, unsigned modifiers) {
  const bool was_selected = list.selected[list.current];
  if (!(modifiers & ControlMask)) select_none(list);
  list.selected[list.current] = !(modifiers & ControlMask) || !was_selected;
  list.anchor = list.current;
  bring_into_view(list, list.current);
  tell(list);
}

/// Does what a double click does, with the current row where none is selected.
void act_on_selection(LongList& list, XEvent* event) {
  if (std::ranges::find(list.selected, true) == list.selected.end()) choose_current(list, 0);
  XmListCallbackStruct call{};
  call.reason = XmCR_DEFAULT_ACTION;
  call.event = event;
  XtCallCallbacks(list.list, XmNdefaultActionCallback, &call);
}

/// Does what a key does. False when that is nothing.
bool act_on(LongList& list, KeySym key, XEvent* event) {
  const unsigned modifiers = event->xkey.state;
  if (const auto row = target_of(list, key)) {
    go_to_row(list, *row, modifiers);
  } else if (key == XK_space || key == XK_KP_Space) {
    choose_current(list, modifiers);
  } else if (key == XK_Return || key == XK_KP_Enter) {
    act_on_selection(list, event);
  } else {
    return false;
  }
  return true;
}

/// The widget knows what is in view only, and would select what this does not.
void key_pressed(Widget w, XtPointer, XEvent* event, Boolean* goes_on) {
  LongList& list = list_of(w);
  if (list.rows.count == 0) return;
  KeySym key = NoSymbol;
  XLookupString(&event->xkey, nullptr, 0, &key, nullptr);
  guarded([&] {
    if (act_on(list, key, event)) *goes_on = False;
  });
}

/// The widget does it only where a click meets an item.
void take_keyboard(Widget w, XtPointer, XEvent*, Boolean*) { XmProcessTraversal(w, XmTRAVERSE_CURRENT); }

void scrolled(Widget, XtPointer of_list, XtPointer call) {
  LongList& list = list_of(static_cast<Widget>(of_list));
  list.top = static_cast<std::size_t>(static_cast<XmScrollBarCallbackStruct*>(call)->value);
  guarded([&] { fill(list); });
}

/// Filling may bring the other bar or take it away, which changes the size again.
void resized(Widget w, XtPointer, XEvent* event, Boolean*) {
  LongList& list = list_of(w);
  if (event->type == ConfigureNotify && list.filled != rows_in_view(list)) guarded([&] { fill(list); });
}

void destroyed(Widget w, XtPointer, XtPointer) { all_lists().erase(w); }

Widget create_list(Widget parent, char* name) {
  Arg arguments[] = {{const_cast<char*>(XmNselectionPolicy), XmEXTENDED_SELECT},
                     {const_cast<char*>(XmNlistSizePolicy), XmCONSTANT}};
  Widget list = XmCreateScrolledList(parent, name, arguments, XtNumber(arguments));
  XtAddCallback(list, XmNextendedSelectionCallback, rows_chosen, nullptr);
  XtAddCallback(list, XmNdestroyCallback, destroyed, nullptr);
  XtInsertEventHandler(list, KeyPressMask, False, key_pressed, nullptr, XtListHead);
  XtAddEventHandler(list, StructureNotifyMask, False, resized, nullptr);
  XtAddEventHandler(list, ButtonPressMask, False, take_keyboard, nullptr);
  return list;
}

Widget create_bar(Widget parent, Widget list) {
  Widget bar = XtVaCreateManagedWidget("long_list_bar", xmScrollBarWidgetClass, parent, XmNorientation, XmVERTICAL,
                                       XmNtraversalOn, False, nullptr);
  for (const char* moved : {XmNvalueChangedCallback, XmNdragCallback}) XtAddCallback(bar, moved, scrolled, list);
  return bar;
}

}  // namespace

Widget create_long_list(Widget parent, char* name, ArgList, Cardinal) {
  Arg arguments[] = {{const_cast<char*>(XmNscrollingPolicy), XmAPPLICATION_DEFINED},
                     {const_cast<char*>(XmNvisualPolicy), XmVARIABLE},
                     {const_cast<char*>(XmNscrollBarDisplayPolicy), XmSTATIC}};
  Widget area = XmCreateScrolledWindow(parent, const_cast<char*>("long_list"), arguments, XtNumber(arguments));
  Widget list = create_list(area, name);
  Widget bar = create_bar(area, list);
  XtVaSetValues(area, XmNworkWindow, XtParent(list), XmNverticalScrollBar, bar, nullptr);
  all_lists().insert_or_assign(list, LongList{list, bar});
  XtManageChild(area);
  return list;
}

void show_rows(Widget list, Rows rows) {
  LongList& shown = list_of(list);
  shown.rows = std::move(rows);
  shown.current = shown.anchor = std::min(shown.current, shown.rows.count - std::min<std::size_t>(shown.rows.count, 1));
  select_none(shown);
  fill(shown);
}

std::vector<std::size_t> selected_rows(Widget list) {
  const LongList& shown = list_of(list);
  std::vector<std::size_t> rows;
  for (std::size_t row = 0; row < shown.selected.size(); ++row) {
    if (shown.selected[row]) rows.push_back(row);
  }
  return rows;
}

void select_rows(Widget list, const std::vector<std::size_t>& rows) {
  LongList& shown = list_of(list);
  select_none(shown);
  for (const std::size_t row : rows) shown.selected[row] = true;
  if (!rows.empty()) shown.current = shown.anchor = rows.front();
  mark_selected(shown);
}

void select_all_rows(Widget list) {
  LongList& shown = list_of(list);
  shown.selected.assign(shown.rows.count, true);
  mark_selected(shown);
}

void when_rows_selected(Widget list, void (*selected)()) { list_of(list).when_selected = selected; }

std::optional<std::size_t> count_rows(Widget list) {
  const auto found = all_lists().find(list);
  return found == all_lists().end() ? std::nullopt : std::optional(found->second.rows.count);
}

}  // namespace vqc::editors
