#ifndef GUI_LOOKS_H
#define GUI_LOOKS_H

#include <string>
#include <vector>

#include "gui/session.h"

using namespace vqc;

// What a user sees.

using Items = std::vector<std::string>;

std::string plain_text(XmString compound);

/// The names in a list, or in the list of a selection box.
Items items(const std::string& list_or_box);
/// Those of them that are selected.
Items selected(const std::string& list_or_box);
/// The first item that can be seen, and how many can; from 1.
int first_row(const std::string& list_or_box);
int rows(const std::string& list_or_box);
/// Whether an item can be seen.
bool is_in_view(const std::string& list_or_box, const std::string& item);

/// What stands in a text field, or in the name field of a selection box.
std::string text(const std::string& field_or_box);
/// The label of a label or button.
std::string label(Widget w);
std::string label(const std::string& name);
/// What a message box says.
std::string message(const std::string& box);
/// What the error box says, "" while it is not shown.
std::string error_shown();
/// What the status line of a window says has happened, and what is so. The window is named by its form or box.
std::string said(const std::string& window = "family_form");
std::string so(const std::string& window = "family_form");
/// The title of a dialog, or of the main window.
std::string title(const std::string& shell);
std::string title();

/// The text of a message in the resource file, and the same with its one argument; null for the text of "none".
std::string resource_text(const std::string& name);
std::string filled(const std::string& name, const char* argument);

bool is_set(const std::string& toggle);
bool is_sensitive(const std::string& name);
/// Whether a selection box offers its OK, Apply and Cancel.
std::vector<bool> buttons_sensitive(const std::string& box);
/// Whether a window is on the screen at this moment, with all that it is in.
bool is_viewable(Widget w);
/// Whether the dialog with this shell is up; waits for the window manager to show it.
bool is_shown(const std::string& shell);
/// Whether the dialog with this shell is up and the keyboard goes to it.
bool has_keyboard(const std::string& shell);
bool has_keyboard(Widget shell);
/// The same widgets in the order in which they stand on the screen.
std::vector<std::string> left_to_right(std::vector<std::string> names);
std::vector<std::string> top_to_bottom(std::vector<std::string> names);
/// The label of the button that an option menu shows.
std::string chosen(const std::string& option_menu);
/// The widget that has the keyboard in the window that `inside` is or is in, by name.
std::string focus(const std::string& inside);

#endif
