#include "gui/hands.h"

#include <X11/IntrinsicP.h>
#include <X11/RectObjP.h>
#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <Xm/List.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/Text.h>
#include <Xm/TextF.h>
#include <Xm/ToggleB.h>

#include <filesystem>
#include <sstream>
#include <stdexcept>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

#include "gui/looks.h"
#include "gui/parts.h"
#include "support/windows.h"
#include "vqc/cmd/editors/kit/shown_names.h"

using namespace vqc;

namespace {

struct Point {
  int x;
  int y;
};

Point on_screen(Widget w, int x, int y) {
  Position root_x = 0;
  Position root_y = 0;
  XtTranslateCoords(w, static_cast<Position>(x), static_cast<Position>(y), &root_x, &root_y);
  return {root_x, root_y};
}

/// The innermost window at a point of the screen, or this one if it is on the way there.
Window window_at(Point point, Window target) {
  const Window root = DefaultRootWindow(display);
  Window window = root;
  Window child = root;
  Point inside = point;
  while (child != None && window != target) {
    window = child;
    if (!XTranslateCoordinates(display, root, window, point.x, point.y, &inside.x, &inside.y, &child)) return None;
  }
  return window;
}

/// Whether a click at the point would reach this window.
bool reaches(Point point, Window target) { return window_at(point, target) == target; }

std::string name_of_window(Window window) {
  Widget w = XtWindowToWidget(display, window);
  return w ? XtName(w) : "a foreign window";
}

/// Moves the mouse to a point of a widget that can be seen there.
void point_at(Widget w, int x, int y) {
  Widget windowed = XtIsWidget(w) ? w : XtParent(w);
  if (!wait_for([&] { return is_viewable(windowed) && reaches(on_screen(w, x, y), XtWindow(windowed)); })) {
    throw std::runtime_error(std::string(XtName(w)) + " cannot be clicked on: above it is " +
                             name_of_window(window_at(on_screen(w, x, y), XtWindow(windowed))));
  }
  const Point point = on_screen(w, x, y);
  XTestFakeMotionEvent(display, -1, point.x, point.y, CurrentTime);
}

/// A point of the item at a place of a list, which is scrolled there if need be.
Point row_point(Widget list, int place) {
  Position x = 0;
  Position y = 0;
  Dimension width = 0;
  Dimension height = 0;
  if (!XmListPosToBounds(list, place, &x, &y, &width, &height)) XmListSetPos(list, place);
  XmListPosToBounds(list, place, &x, &y, &width, &height);
  return {x + 10, y + height / 2};
}

void press_mouse_button(unsigned button = Button1) {
  XTestFakeButtonEvent(display, button, True, CurrentTime);
  XTestFakeButtonEvent(display, button, False, CurrentTime);
}

void click_at(Widget w, int x, int y) {
  const std::string name = XtName(w);
  const long releases = events_seen(ButtonRelease);
  point_at(w, x, y);
  press_mouse_button();
  if (!wait_for([&] { return events_seen(ButtonRelease) > releases; })) {
    throw std::runtime_error("the click on " + name + " has not arrived");
  }
  settle();
}

void click_on(Widget w) {
  const auto* area = reinterpret_cast<RectObj>(w);  // in pixels, whatever the unit of the widget's resources
  click_at(w, area->rectangle.width / 2, area->rectangle.height / 2);
}

/// Clicks on what brings up a menu, and on an item of it. The toolkit leaves a menu down when it cannot grab the
/// mouse at that moment, so that a user has to click again.
void choose_from(Widget button, const std::string& item) {
  for (int attempt = 0; attempt < 5; ++attempt) {
    click_on(button);
    if (wait_for([&] { return is_viewable(widget(item)); }, 1)) break;
  }
  click(item);
}

/// A key, and whether Shift is needed for it.
struct Stroke {
  KeyCode code;
  bool shifted;
};

Stroke stroke_for(KeySym symbol) {
  const KeyCode code = XKeysymToKeycode(display, symbol);
  if (code == 0) throw std::runtime_error("the keyboard has no key for this");
  return {code, XkbKeycodeToKeysym(display, code, 0, 0) != symbol};
}

void send(KeyCode code, bool down) { XTestFakeKeyEvent(display, code, down, CurrentTime); }

void strike(Stroke stroke, const std::vector<KeySym>& modifiers) {
  const long presses = events_seen(KeyPress);  // not every widget is told of the release
  std::vector<KeyCode> held;
  for (KeySym modifier : modifiers) held.push_back(stroke_for(modifier).code);
  if (stroke.shifted) held.push_back(stroke_for(XK_Shift_L).code);
  for (KeyCode code : held) send(code, true);
  send(stroke.code, true);
  send(stroke.code, false);
  for (KeyCode code : held) send(code, false);
  const auto strokes = static_cast<long>(held.size()) + 1;
  wait_for([&] { return events_seen(KeyPress) >= presses + strokes || exit_status; });
}

/// Whether one of the program's windows has the keyboard.
bool keyboard_is_ours() {
  Window window = None;
  int revert = 0;
  XGetInputFocus(display, &window, &revert);
  return window > PointerRoot && XtWindowToWidget(display, window);
}

KeySym modifier_named(const std::string& name) {
  if (name == "ctrl") return XK_Control_L;
  if (name == "shift") return XK_Shift_L;
  if (name == "alt") return XK_Alt_L;
  throw std::runtime_error("no modifier is called " + name);
}

void strike_combination(const std::string& combination) {
  std::istringstream words(combination);
  std::vector<KeySym> modifiers;
  std::string word;
  while (std::getline(words, word, '+') && !words.eof()) modifiers.push_back(modifier_named(word));
  strike({stroke_for(XStringToKeysym(word.c_str())).code, false}, modifiers);
}

void close_shell(Widget shell) {
  const long messages = events_seen(ClientMessage);
  close_by_manager(display, XtWindow(shell));
  wait_for([&] { return events_seen(ClientMessage) > messages; });
  settle();
}

int position_of(const std::string& list_or_box, const std::string& item) {
  const int position = vqc::editors::list_position(list_in(list_or_box), item.c_str());
  if (position == 0) throw std::runtime_error(list_or_box + " does not show " + item);
  return position;
}

}  // namespace

void click(const std::string& name) { click_on(widget(name)); }

void click_in_vain(const std::string& name) {
  const auto* area = reinterpret_cast<RectObj>(widget(name));
  point_at(widget(name), area->rectangle.width / 2, area->rectangle.height / 2);
  press_mouse_button();
  settle();
}

void click_item(const std::string& list_or_box, const std::string& item) {
  click_row(list_or_box, position_of(list_or_box, item));
}

void click_row(const std::string& list_or_box, int place) {
  const Point point = row_point(list_in(list_or_box), place);
  click_at(list_in(list_or_box), point.x, point.y);
}

void double_click_row(const std::string& list_or_box, int place) {
  const Point point = row_point(list_in(list_or_box), place);
  point_at(list_in(list_or_box), point.x, point.y);
  press_mouse_button();
  click_at(list_in(list_or_box), point.x, point.y);
}

void choose_menu(const std::string& cascade, const std::string& item) { choose_from(widget(cascade), item); }

void type(std::string_view text) {
  wait_for(keyboard_is_ours);
  for (char c : text) strike(stroke_for(static_cast<KeySym>(static_cast<unsigned char>(c))), {});
  settle();
}

void key(const std::string& combination) {
  wait_for(keyboard_is_ours);
  strike_combination(combination);
  settle();
}

void type_with(const std::string& modifiers, std::string_view letters) {
#ifdef __SANITIZE_ADDRESS__
  const __lsan::ScopedDisabler overlooking;
#endif
  wait_for(keyboard_is_ours);
  for (char letter : letters) strike_combination(modifiers + '+' + letter);
  settle();
}

void turn_to(Widget shell) {
  wait_for([shell] { return is_viewable(shell); });
  XRaiseWindow(display, XtWindow(shell));
  XSetInputFocus(display, XtWindow(shell), RevertToPointerRoot, CurrentTime);
  has_keyboard(shell);
  settle();
}

void switch_lock(const char* name) {
  const KeyCode code = XKeysymToKeycode(display, XStringToKeysym(name));
  send(code, true);
  send(code, false);
  settle();
}

void tab_to(const std::string& inside, const std::string& name) {
  for (int i = 0; i < 50 && focus(inside) != name; ++i) key("Tab");
  if (focus(inside) != name) throw std::runtime_error("Tab does not come to " + name);
}

void hold(const std::string& modifier, const std::function<void()>& action) {
  const KeyCode code = stroke_for(modifier_named(modifier)).code;
  send(code, true);
  action();
  send(code, false);
  settle();
}

void paste() {
#ifdef __SANITIZE_ADDRESS__
  const __lsan::ScopedDisabler overlooking;
#endif
  key("ctrl+v");
}

void move_aside(const std::string& shell) {
  XtVaSetValues(widget(shell), XmNx, 800, XmNy, 500, nullptr);
  settle();
}

void turn_wheel(WheelTurn turn) {
  press_mouse_button(turn);
  settle();
}

void turn_wheel(Widget w, int x, int y, WheelTurn turn) {
  point_at(w, x, y);
  turn_wheel(turn);
}

void close(const std::string& shell) { close_shell(widget(shell)); }

void close_main_window() { close_shell(main_shell()); }

void press(const std::string& button) {
  Widget w = widget(button);
  EXPECT_TRUE(XtIsSensitive(w)) << button << " cannot be pressed";
  XEvent event{};
  event.xbutton.type = ButtonRelease;
  event.xbutton.display = display;
  event.xbutton.window = XtWindowOfObject(w);
  XmPushButtonCallbackStruct call{XmCR_ACTIVATE, &event, 1};
  XtCallCallbacks(w, XmNactivateCallback, &call);
  settle();
}

void press_ok(const std::string& box) { press(box + ".OK"); }
void press_apply(const std::string& box) { press(box + ".Apply"); }
void press_cancel(const std::string& box) { press(box + ".Cancel"); }

void enter(const std::string& field_or_box, const std::string& text) {
  Widget field = field_in(field_or_box);
  auto* value = const_cast<char*>(text.c_str());
  if (XmIsTextField(field)) {
    XmTextFieldSetString(field, value);
  } else {
    XmTextSetString(field, value);
  }
}

void select(const std::string& list_or_box, const std::string& item) {
  XmListSelectPos(list_in(list_or_box), position_of(list_or_box, item), True);
  settle();
}

void select_too(const std::string& list_or_box, const std::string& item) {
  Widget list = list_in(list_or_box);
  XtVaSetValues(list, XmNselectionPolicy, XmMULTIPLE_SELECT, nullptr);
  XmListSelectPos(list, position_of(list_or_box, item), False);
}

void toggle(const std::string& name, bool on) {
  XmToggleButtonSetState(widget(name), on, True);
  settle();
}

void choose_option(const std::string& option_menu, const std::string& button) {
  choose_from(XmOptionButtonGadget(widget(option_menu)), button);
}

void choose_file(const std::string& box, const std::string& path) {
  enter(box, std::filesystem::absolute(path));
  press_ok(box);
}

void save_as(const std::string& path) {
  press("family_saveasb");
  choose_file("save_fsb", path);
}

void open_file(const std::string& path) {
  press("family_openb");
  choose_file("open_fsb", path);
}

void read_into(const std::string& path) {
  press("family_readb");
  choose_file("read_fsb", path);
}

void add_family(const std::string& name) {
  enter("family_selection", name);
  press_apply("family_selection");
}

void edit_family(const std::string& name) {
  enter("family_selection", name);
  press_ok("family_selection");
}

void edit_widget(const std::string& name) {
  enter("widgetlist_selection", name);
  press_ok("widgetlist_selection");
}

void edit_enumeration(const std::string& name) {
  enter("enumlist_selection", name);
  press_ok("enumlist_selection");
}

std::string saved() {
  if (save_file) {
    press("family_saveb");
  } else {
    save_as("saved.vqc");
  }
  return read_file(save_file->c_str());
}

std::string saved_item(const std::string& beginning) {
  const std::string document = saved();
  const std::size_t line_end = document.find("\n" + beginning);
  if (line_end == std::string::npos) return "";
  return document.substr(line_end + 1, document.find("\n}\n", line_end) + 2 - line_end);
}

std::vector<std::string> saved_names(const std::string& family, const std::string& keyword) {
  std::istringstream lines(saved_item("family '" + family + "' {"));
  const std::string beginning = "\t" + keyword + "='";
  std::vector<std::string> names;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(beginning)) names.push_back(line.substr(beginning.size(), line.size() - beginning.size() - 1));
  }
  return names;
}
