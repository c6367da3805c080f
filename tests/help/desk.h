#ifndef HELP_DESK_H
#define HELP_DESK_H

#include <gtest/gtest.h>

// Before X's headers, which define None and Bool, come gtest's.
#include <X11/Intrinsic.h>

#include <functional>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/windows.h"

/// A test with a connection to the display, in a folder of its own. Fails when the toolkit prints a warning.
class Desk : public testing::Test {
 protected:
  Desk();
  ~Desk() override;

  TemporaryFolder folder;
};

inline XtAppContext context = nullptr;
inline Display* display = nullptr;

/// What X has complained about since the test began: the error codes.
inline std::vector<int> x_errors;

/// Serves the toolkit until the condition holds. False when it has not come true in time.
bool wait_for(const std::function<bool()>& condition);
/// Serves it until nothing more happens.
void settle();

// The windows of this display.
inline std::string property(Window window, const char* name) { return property(display, window, name); }
inline std::string title_of(Window window) { return title_of(display, window); }
inline Window announced_on(Window client) { return announced_on(display, client); }
inline bool is_viewable(Window window) { return is_viewable(display, window); }
inline bool is_above(Window upper, Window lower) { return is_above(display, upper, lower); }
/// The window of that title, whoever it belongs to; None when there is none.
Window window_titled(const std::string& title);

/// Whether a window, or one in it, has the keyboard.
bool has_keyboard(Window window);

/// Presses a key, such as "Return" or "ctrl+plus", and serves the toolkit until it has had its effect.
void key(const std::string& combination);
void type(const std::string& text);
/// Clicks into a window.
void click(Window window, int x, int y);
/// Turns the wheel there: button 4 is up, 5 is down.
void turn_wheel(Window window, int x, int y, unsigned button);
/// Closes a window as the window manager does.
void close_by_manager(Window window);

#endif
