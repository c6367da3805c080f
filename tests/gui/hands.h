#ifndef GUI_HANDS_H
#define GUI_HANDS_H

#include <functional>
#include <string>
#include <vector>

#include "gui/session.h"

using namespace vqc;

// What a user does: with real mouse and keyboard, and, where that is not the point, by what they lead to.

/// Presses a mouse button in the middle of a widget, which must be there to be seen.
void click(const std::string& name);
/// The same where the window manager lets no click through.
void click_in_vain(const std::string& name);
/// Clicks on an item of a list.
void click_item(const std::string& list_or_box, const std::string& item);
/// Clicks on the item at a place of a list, counted from 1.
void click_row(const std::string& list_or_box, int place);
/// The same twice, fast enough for a session that has been started with a longer multiClickTime.
void double_click_row(const std::string& list_or_box, int place);
/// Opens the menu of the cascade button, and clicks on its item.
void choose_menu(const std::string& cascade, const std::string& item);
/// Types a text into whatever has the keyboard.
void type(std::string_view text);
/// Presses a key, such as "Return" or "ctrl+shift+s".
void key(const std::string& combination);
/// Presses the keys of these letters with a modifier held, such as "ctrl" or "ctrl+shift". Motif forgets some memory
/// for each that a field refuses.
void type_with(const std::string& modifiers, std::string_view letters);
/// Gives a window the keyboard, as a click on its frame does.
void turn_to(Widget shell);
/// Switches Caps Lock or Num Lock, on or off.
void switch_lock(const char* name);
/// Moves the keyboard from field to field until the one of that name has it, in the window that `inside` is in.
void tab_to(const std::string& inside, const std::string& name);
/// Does something while a modifier such as "shift" is held.
void hold(const std::string& modifier, const std::function<void()>& action);
/// Presses the key that pastes. Motif forgets some memory then.
void paste();
/// Moves a dialog away from what it covers.
void move_aside(const std::string& shell);
/// Turns the mouse wheel where the mouse is, or at a point of a widget.
enum WheelTurn : unsigned { WHEEL_UP = 4, WHEEL_DOWN = 5, WHEEL_LEFT = 6, WHEEL_RIGHT = 7 };
void turn_wheel(WheelTurn turn);
void turn_wheel(Widget w, int x, int y, WheelTurn turn);
/// Closes a shell as the window manager's menu does.
void close(const std::string& shell);
void close_main_window();

/// Presses a button, by its callbacks. An error when it is insensitive.
void press(const std::string& button);
/// Presses the buttons of a selection box.
void press_ok(const std::string& box);
void press_apply(const std::string& box);
void press_cancel(const std::string& box);
/// Writes into a text field, or into the name field of a selection box.
void enter(const std::string& field_or_box, const std::string& text);
/// Selects an item of a list.
void select(const std::string& list_or_box, const std::string& item);
/// Selects one more item, as a list allows that lets several be selected.
void select_too(const std::string& list_or_box, const std::string& item);
/// Sets a toggle or unsets it.
void toggle(const std::string& name, bool on);
/// Chooses a button of an option menu.
void choose_option(const std::string& option_menu, const std::string& button);

/// Writes a name into a file selection box and presses OK.
void choose_file(const std::string& box, const std::string& path);
/// File/Save As, Open and Read, of a path in the working directory or elsewhere.
void save_as(const std::string& path);
void open_file(const std::string& path);
void read_into(const std::string& path);

/// Adds a family, and opens the family dialog on it.
void add_family(const std::string& name);
void edit_family(const std::string& name);
/// Opens the widget editor, or the enumeration editor, from the family dialog.
void edit_widget(const std::string& name);
void edit_enumeration(const std::string& name);

/// The document as the program's own Save writes it.
std::string saved();
/// What stands in it from a line that begins like this up to the "}" that ends the item; "" when there is none.
std::string saved_item(const std::string& beginning);
/// The names that a family lists there under a keyword.
std::vector<std::string> saved_names(const std::string& family, const std::string& keyword);

#endif
