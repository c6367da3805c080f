#include "help/desk.h"

#include <X11/StringDefs.h>
#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "desktop/search_path.h"

using namespace vqc;

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds quiet{60};
constexpr milliseconds patience{20000};

std::vector<std::string> warnings;
bool in_test = false;

/// A viewer that quits ends the test's process with it, and that is no success.
void fail_in_test() {
  if (!in_test) return;
  std::fputs("the program has ended in the middle of the test\n", stderr);
  std::_Exit(1);
}

void keep_warning(String text) { warnings.emplace_back(text); }

int keep_error(Display*, XErrorEvent* error) {
  x_errors.push_back(error->error_code);
  return 0;
}

/// Serves one event, waiting a little for it. False when none has come.
bool serve_one() {
  XSync(display, False);
  pollfd connection{ConnectionNumber(display), POLLIN, 0};
  if (!XtAppPending(context)) poll(&connection, 1, 5);
  if (!XtAppPending(context)) return false;
  XtAppProcessEvent(context, XtIMAll);
  return true;
}

void strike(KeySym symbol, bool down) {
  XTestFakeKeyEvent(display, XKeysymToKeycode(display, symbol), down, CurrentTime);
}

bool needs_shift(KeySym symbol) {
  return XkbKeycodeToKeysym(display, XKeysymToKeycode(display, symbol), 0, 0) != symbol;
}

/// The window at `top` or below it that has that title.
Window titled(const std::string& title, Window top) {
  if (title_of(top) == title) return top;
  for (Window child : relatives(display, top).children) {
    if (const Window found = titled(title, child); found != None) return found;
  }
  return None;
}

/// Presses a mouse button at a point of a window.
void press_button(Window window, int x, int y, unsigned button) {
  Window child = None;
  int root_x = 0;
  int root_y = 0;
  XTranslateCoordinates(display, window, DefaultRootWindow(display), x, y, &root_x, &root_y, &child);
  XTestFakeMotionEvent(display, -1, root_x, root_y, CurrentTime);
  settle();
  XTestFakeButtonEvent(display, button, True, CurrentTime);
  XTestFakeButtonEvent(display, button, False, CurrentTime);
  settle();
}

}  // namespace

Desk::Desk() {
  in_test = true;
  std::atexit(fail_in_test);
  if (chdir(folder.path().c_str()) != 0) throw std::runtime_error("cannot enter the temporary folder");
  use_installation();
  XtSetLanguageProc(nullptr, nullptr, nullptr);
  XtToolkitInitialize();
  context = XtCreateApplicationContext();
  XtAppSetWarningHandler(context, keep_warning);
  int argc = 1;
  char name[] = "vqhelp";
  char* argv[] = {name, nullptr};
  display = XtOpenDisplay(context, nullptr, nullptr, "Vqhelp", nullptr, 0, &argc, argv);
  if (!display) throw std::runtime_error("there is no display");
  XSetErrorHandler(keep_error);
}

Desk::~Desk() {
  settle();
  EXPECT_EQ(std::vector<std::string>(), warnings);
  in_test = false;
}

bool wait_for(const std::function<bool()>& condition) {
  const auto end = Clock::now() + patience;
  while (!condition()) {
    if (Clock::now() > end) return false;
    serve_one();
  }
  return true;
}

void settle() {
  auto last = Clock::now();
  while (Clock::now() < last + quiet) {
    if (serve_one()) last = Clock::now();
  }
}

Window window_titled(const std::string& title) { return titled(title, DefaultRootWindow(display)); }

bool has_keyboard(Window window) {
  Window focus = None;
  int revert = 0;
  XGetInputFocus(display, &focus, &revert);
  return focus > PointerRoot && frame_of(display, focus) == frame_of(display, window);
}

void key(const std::string& combination) {
  std::vector<KeySym> held;
  std::istringstream words(combination);
  std::string word;
  while (std::getline(words, word, '+')) {
    if (word == "ctrl") held.push_back(XK_Control_L);
    if (word == "alt") held.push_back(XK_Alt_L);
    if (word == "shift") held.push_back(XK_Shift_L);
  }
  const KeySym symbol = XStringToKeysym(word.c_str());
  if (symbol == NoSymbol) throw std::runtime_error("no key is called " + word);
  if (needs_shift(symbol)) held.push_back(XK_Shift_L);
  for (KeySym each : held) strike(each, true);
  strike(symbol, true);
  strike(symbol, false);
  for (KeySym each : held) strike(each, false);
  settle();
}

void type(const std::string& text) {
  for (char c : text) key(c == ' ' ? "space" : std::string(1, c));
}

void click(Window window, int x, int y) { press_button(window, x, y, Button1); }

void turn_wheel(Window window, int x, int y, unsigned button) { press_button(window, x, y, button); }

void close_by_manager(Window window) {
  close_by_manager(display, window);
  settle();
}
