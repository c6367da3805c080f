#include "gui/session.h"

#include <Xm/TextF.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <sstream>
#include <stdexcept>

#include "desktop/search_path.h"
#include "gui/hands.h"
#include "gui/looks.h"
#include "vqc/cmd/application/command_line.h"
#include "vqc/cmd/editors/dialogs/family_dialog.h"
#include "vqc/cmd/editors/kit/session_hooks.h"
#include "vqc/cmd/editors/program/session.h"

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
  wait_for([] { return is_viewable(main_shell()); });
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

Widget main_shell() { return family_dialog[FAMILY_SHELL]; }

Widget find_widget(const std::string& name) { return XtNameToWidget(main_shell(), ("*" + name).c_str()); }

Widget widget(const std::string& name) {
  Widget found_widget = find_widget(name);
  if (!found_widget) throw std::runtime_error("there is no widget " + name);
  return found_widget;
}

Widget shell_of(Widget w) {
  while (!XtIsShell(w)) w = XtParent(w);
  return w;
}

std::string saved() {
  if (save_file) {
    press("family_saveb");
  } else {
    save_as("saved.vqc");
  }
  return read_file(save_file.c_str());
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
