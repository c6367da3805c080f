// Shows the list below a text field, and takes the keys that are meant for it.

#include "vqc/cmd/editors/kit/dropdown.h"

#include <X11/Shell.h>
#include <X11/keysym.h>
#include <Xm/List.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "vqc/cmd/editors/kit/dialog.h"
#include "vqc/cmd/editors/kit/on_screen.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/kit/shown_names.h"
#include "vqc/cmd/editors/kit/widgets.h"

namespace vqc::editors {

namespace {

constexpr int kMostRows = 10;

/// The list that is there.
struct Dropdown {
  Widget field;
  Widget list;
  TakeItem take;
  std::function<void()> escaped;
};
std::optional<Dropdown> open_list;

/// Takes an item. The list goes first, since what is done with the item may need another one.
void take(std::size_t place) {
  const TakeItem take_item = std::move(open_list->take);
  hide_dropdown();
  take_item(place);
}

void escape() {
  const std::function<void()> escaped = std::move(open_list->escaped);
  hide_dropdown();
  if (escaped) escaped();
}

void item_clicked(Widget, XtPointer, XtPointer call) {
  if (open_list) take(static_cast<std::size_t>(static_cast<XmListCallbackStruct*>(call)->item_position) - 1);
}

int selected_place() { return list_selected_place(open_list->list); }

void move_selection(int rows) { list_select_place(open_list->list, selected_place() + rows); }

/// Does what a key does in the list. False when that is nothing.
bool act_on(KeySym key) {
  switch (key) {
    case XK_Down:
    case XK_KP_Down:
      move_selection(1);
      return true;
    case XK_Up:
    case XK_KP_Up:
      move_selection(-1);
      return true;
    case XK_Page_Down:
      move_selection(kMostRows);
      return true;
    case XK_Page_Up:
      move_selection(-kMostRows);
      return true;
    case XK_Return:
    case XK_KP_Enter:
    case XK_Tab:
      act_for_user([] { take(static_cast<std::size_t>(selected_place()) - 1); });
      return true;
    case XK_Escape:
      escape();
      return true;
    default:
      return false;
  }
}

/// The toolkit is not told of keys that are meant for the list: Return would press a button, and Escape another.
void key_pressed(Widget, XtPointer, XEvent* event, Boolean* go_on) {
  if (open_list && act_on(plain_key(event))) *go_on = False;
}

void focus_lost(Widget, XtPointer, XtPointer) { hide_dropdown(); }

/// The list would stay where it is when its window is moved or closed.
void window_changed(Widget, XtPointer, XEvent* event, Boolean*) {
  if (event->type == ConfigureNotify || event->type == UnmapNotify) hide_dropdown();
}

void watch(Widget field) {
  XtInsertEventHandler(field, KeyPressMask, False, key_pressed, nullptr, XtListHead);
  XtAddCallback(field, XmNlosingFocusCallback, focus_lost, nullptr);
  XtAddEventHandler(shell_around(field), StructureNotifyMask, False, window_changed, nullptr);
}

void unwatch(Widget field) {
  XtRemoveEventHandler(field, KeyPressMask, False, key_pressed, nullptr);
  XtRemoveCallback(field, XmNlosingFocusCallback, focus_lost, nullptr);
  XtRemoveEventHandler(shell_around(field), StructureNotifyMask, False, window_changed, nullptr);
}

/// The list of a window's fields, which is made when it is first needed. It belongs to the window, so that a modal one
/// lets it be clicked in.
Widget list_in(Widget window) {
  if (Widget made = XtNameToWidget(window, "dropdown*dropdown_list")) return made;
  Widget shell = XtVaCreatePopupShell("dropdown", overrideShellWidgetClass, window, XmNallowShellResize, True, nullptr);
  Arg keeps_keyboard_away[] = {{const_cast<char*>(XmNtraversalOn), False},
                               {const_cast<char*>(XmNlistSizePolicy), XmVARIABLE}};
  Widget list = XmCreateScrolledList(shell, const_cast<char*>("dropdown_list"), keeps_keyboard_away,
                                     XtNumber(keeps_keyboard_away));
  for (const char* bar : {XmNverticalScrollBar, XmNhorizontalScrollBar}) {
    Widget scroll_bar = nullptr;
    XtVaGetValues(XtParent(list), bar, &scroll_bar, nullptr);
    if (scroll_bar) XtVaSetValues(scroll_bar, XmNtraversalOn, False, nullptr);
  }
  add_callback(list, XmNbrowseSelectionCallback, item_clicked, nullptr);
  XtManageChild(list);
  XtRealizeWidget(shell);
  return list;
}

/// Below the field, and as wide as that at least; above it where there is no room.
void place_below(Widget field, Widget list) {
  const ScreenArea screen = screen_of(field);
  const ScreenArea above = window_area(field);
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(XtParent(list), XmNwidth, &width, XmNheight, &height, nullptr);
  ScreenArea area{above.x, above.bottom(), std::max<int>(width, above.width), height};
  if (area.bottom() > screen.bottom()) area.y = above.y - area.height;
  area = moved_into(area, screen);
  XtVaSetValues(shell_around(list), XmNx, area.x, XmNy, area.y, XmNwidth, area.width, XmNheight, area.height, nullptr);
}

}  // namespace

void show_dropdown(Widget field, const std::vector<std::string>& items, TakeItem take_item,
                   std::function<void()> escaped) {
  if (!has_dropdown(field) || items.empty()) hide_dropdown();
  if (items.empty()) return;
  Widget list = list_in(shell_around(field));
  XtVaSetValues(list, XmNvisibleItemCount, std::min(static_cast<int>(items.size()), kMostRows), nullptr);
  list_show(list, items);
  place_below(field, list);
  if (!open_list) watch(field);
  open_list = {field, list, std::move(take_item), std::move(escaped)};
  list_select_place(list, 1);
  XtPopup(shell_around(list), XtGrabNone);
}

void hide_dropdown() {
  if (!open_list) return;
  const Dropdown closed = std::move(*open_list);
  open_list.reset();
  unwatch(closed.field);
  XtPopdown(shell_around(closed.list));
}

bool has_dropdown(Widget field) { return open_list && open_list->field == field; }

}  // namespace vqc::editors
