#include "gui/session.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>

#include "desktop/search_path.h"
#include "support/windows.h"
#include "vqc/cmd/application/command_line.h"

using namespace vqc::editors;

using namespace vqc;

std::optional<int> exit_status;
std::vector<std::string> warnings;

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds kQuiet{40};

std::array<long, LASTEvent> event_counts;

XtAppContext context() { return XtDisplayToApplicationContext(display); }

void serve_one() {
  if (XtAppPending(context()) & XtIMXEvent) {
    XEvent event;
    XtAppNextEvent(context(), &event);
    if (event.type < LASTEvent) ++event_counts[static_cast<std::size_t>(event.type)];
    XtDispatchEvent(&event);
  } else {
    XtAppProcessEvent(context(), XtIMTimer | XtIMAlternateInput | XtIMSignal);
  }
}

/// Serves what there is, then waits a little for more. False when nothing came.
bool serve(milliseconds patience) {
  const auto end = Clock::now() + patience;
  do {
    XSync(display, False);
    if (XtAppPending(context())) {
      serve_one();
      return true;
    }
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    poll(&connection, 1, 5);
  } while (Clock::now() < end);
  return false;
}

void keep_warning(String text) { warnings.emplace_back(text); }

/// The words as main() has them, for as long as the process runs.
std::vector<char*>& command_line(std::vector<std::string>& words) {
  static std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

Session::Session() {
  if (chdir(folder.path().c_str()) != 0) throw std::runtime_error("cannot enter the temporary folder");
}

Session::~Session() {
  if (display) settle();
  EXPECT_EQ(std::vector<std::string>(), warnings);
}

void Session::start(std::vector<std::string> words) {
  if (display) throw std::runtime_error("a process has one session: run each test alone, as ctest does");
  static std::vector<std::string> all{"vqconfig", "-xrm", "*multiClickTime: 1"};
  all.insert(all.end(), words.begin(), words.end());
  std::vector<char*>& argv = command_line(all);
  int argc = static_cast<int>(all.size());
  use_installation();
  if (const char* obstacle = open_display(&argc, argv.data())) throw std::runtime_error(obstacle);
  XtAppSetWarningHandler(context(), keep_warning);
  parse_command_line(argc, argv.data());
  if (!start_session(argc, argv.data())) throw std::runtime_error("the session does not start");
  session_hooks.end = [](int status) { exit_status = status; };
  wait_for([] { return is_viewable(display, XtWindow(main_shell())); });
  settle();
}

void Session::open_document(std::string_view text) { start({folder.with("document.vqc", text)}); }

void settle() {
  while (serve(kQuiet)) {
  }
}

bool wait_for(const std::function<bool()>& condition, double seconds) {
  const auto end = Clock::now() + std::chrono::duration<double>(seconds);
  while (!condition()) {
    if (Clock::now() > end) return false;
    serve(milliseconds(10));
  }
  return true;
}

long events_seen(int type) { return event_counts[static_cast<std::size_t>(type)]; }

Widget find_widget(const std::string& name) { return XtNameToWidget(main_shell(), ("*" + name).c_str()); }

Widget widget(const std::string& name) {
  Widget found_widget = find_widget(name);
  if (!found_widget) throw std::runtime_error("there is no widget " + name);
  return found_widget;
}
