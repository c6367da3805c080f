#ifndef HELP_VIEWER_WINDOW_H
#define HELP_VIEWER_WINDOW_H

// The window of the help viewer.

#include <X11/Intrinsic.h>

#include <string>

namespace help {

/// The widgets of the window that are spoken to.
struct HelpWindow {
  Widget shell;
  Widget back;
  Widget forward;
  Widget page;
  Widget find;
  Widget status;
};
inline HelpWindow window;

/// Brings the window before the user: on the screen, out of its icon, in front of others.
void show_window();

/// The bar beside the page, and what the page is painted on.
Widget find_scroll_bar();
Widget find_work_window();

/// Paints the page afresh. The HTML widget itself paints what scrolling brings into sight, and leaves lines cut that
/// were half in sight before.
void repaint_page();

/// Gives the keyboard to the page.
void focus_on_page();

void set_title(const std::string& title);
void set_status(const std::string& message);

/// The text of that name in the resource file; the name itself when it has none.
std::string look_up_text(const char* name);

}  // namespace help

#endif
