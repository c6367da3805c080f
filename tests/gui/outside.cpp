#include "gui/outside.h"

#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <thread>

#include "support/windows.h"
#include "vqc/cmd/editors/safety_net.h"
#include "vqc/cmd/history/journal.h"

using namespace vqc;

namespace {

void pause_a_little() { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }

/// Starts a program whose standard error, and descriptor 3, lead to files.
pid_t start_process(std::vector<std::string> words, const std::string& errors, const std::string& third) {
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  const pid_t process = fork();
  if (process != 0) return process;
  dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
  dup2(open(third.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 3);
  execvp(pointers[0], pointers.data());
  _exit(127);
}

Window window_titled(Display* connection, const std::string& title) {
  for (Window window : relatives(connection, DefaultRootWindow(connection)).children) {
    if (property(connection, window, "WM_NAME") == title && is_viewable(connection, window)) return window;
  }
  return None;
}

/// Whether a process has been started with that setting. False for one that has ended.
bool has_setting(const std::filesystem::path& process, const std::string& setting) {
  std::ifstream environment(process / "environ");
  for (std::string each; std::getline(environment, each, '\0');) {
    if (each == setting) return true;
  }
  return false;
}

}  // namespace

void leave_state(const std::string& document, const std::string& text) {
  const pid_t child = fork();
  if (child == 0) {
    Journal journal(journals_folder(), document);
    _exit(journal.write(text) ? 1 : 0);
  }
  int status = -1;
  waitpid(child, &status, 0);
  if (status != 0) throw std::runtime_error("no state could be left");
}

namespace {

std::string text_of_old_program;

/// What a program of old knows of selections.
Boolean give_string(Widget, Atom*, Atom* target, Atom* type, XtPointer* value, unsigned long* length, int* format) {
  if (*target != XA_STRING) return False;
  *value = XtNewString(text_of_old_program.data());
  *length = text_of_old_program.size();
  *type = XA_STRING;
  *format = 8;
  return True;
}

}  // namespace

void copy_as_old_program(std::string text) {
  text_of_old_program = std::move(text);
  XtOwnSelection(main_shell(), XInternAtom(XtDisplay(main_shell()), "CLIPBOARD", False),
                 XtLastTimestampProcessed(XtDisplay(main_shell())), give_string, nullptr, nullptr);
}

std::string pasted_outside() {
  const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(XDisplayString(XtDisplay(main_shell()))),
                                                               XCloseDisplay);
  Display* display = connection.get();
  const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
  const Atom text = XInternAtom(display, "UTF8_STRING", False);
  XConvertSelection(display, XInternAtom(display, "CLIPBOARD", False), text, text, window, CurrentTime);
  XFlush(display);
  XEvent event;
  if (!wait_for([&] { return XCheckTypedWindowEvent(display, window, SelectionNotify, &event) != False; })) return {};
  return property(display, window, "UTF8_STRING");
}

std::vector<pid_t> processes(const std::string& program, const std::string& display_name) {
  std::vector<pid_t> result;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const bool runs_it = std::filesystem::read_symlink(entry.path() / "exe", none) == program;
    if (!runs_it || !has_setting(entry.path(), "DISPLAY=" + display_name)) continue;
    result.push_back(std::stoi(entry.path().filename()));
  }
  return result;
}

bool wait_until_true(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    pause_a_little();
  }
  return true;
}

RunningProgram::RunningProgram(std::vector<std::string> words, const std::string& display_name,
                               const std::string& program) {
  words.insert(words.begin(), {"env", "DISPLAY=" + display_name, program});
  process_ = start_process(words, streams_ / "err", "/dev/null");
}

RunningProgram::~RunningProgram() {
  if (is_running()) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
}

bool RunningProgram::is_running() {
  if (process_ == 0) return false;
  if (waitpid(process_, &status_, WNOHANG) != process_) return true;
  process_ = 0;
  return false;
}

int RunningProgram::wait() {
  if (!wait_until_true([this] { return !is_running(); })) return -2;
  return WIFEXITED(status_) ? WEXITSTATUS(status_) : -1;
}

std::string RunningProgram::errors() const { return read_file(streams_ / "err"); }

OtherDisplay::OtherDisplay() {
  const std::string number = folder_ / "display";
  server_ = start_process({"Xvfb", "-displayfd", "3", "-screen", "0", "1024x768x24", "-nolisten", "tcp"}, "/dev/null",
                          number);
  wait_until_true([&] { return std::filesystem::exists(number) && read_file(number).ends_with('\n'); });
  name_ = ":" + read_file(number);
  name_.pop_back();
  connection_ = XOpenDisplay(name_.c_str());
  if (!connection_) throw std::runtime_error("there is no display " + name_);
  XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // windows may go while they are looked at
}

OtherDisplay::~OtherDisplay() { lose(); }

Window OtherDisplay::wait_for_window(const std::string& title) {
  Window window = None;
  wait_until_true([&] { return (window = window_titled(connection_, title)) != None; });
  return window;
}

void OtherDisplay::focus(const std::string& title) {
  const Window window = wait_for_window(title);
  XSetInputFocus(connection_, window, RevertToParent, CurrentTime);
  XTestFakeMotionEvent(connection_, -1, 0, 0, CurrentTime);
  XSync(connection_, False);
}

void OtherDisplay::type(const std::string& text) {
  for (char c : text) key(std::string(1, c).c_str());
}

void OtherDisplay::key(const char* name, bool with_control) {
  const KeyCode code = XKeysymToKeycode(connection_, XStringToKeysym(name));
  const KeyCode control = XKeysymToKeycode(connection_, XK_Control_L);
  if (with_control) XTestFakeKeyEvent(connection_, control, True, CurrentTime);
  XTestFakeKeyEvent(connection_, code, True, CurrentTime);
  XTestFakeKeyEvent(connection_, code, False, CurrentTime);
  if (with_control) XTestFakeKeyEvent(connection_, control, False, CurrentTime);
  XSync(connection_, False);
}

std::string OtherDisplay::property_of(Window window, const char* name) const {
  return property(connection_, window, name);
}

void OtherDisplay::move(Window window, int x, int y) {
  XMoveWindow(connection_, window, x, y);
  XSync(connection_, False);
}

std::pair<int, int> OtherDisplay::corner(Window window) const {
  XWindowAttributes attributes{};
  XGetWindowAttributes(connection_, window, &attributes);
  return {attributes.x, attributes.y};
}

void OtherDisplay::close(Window window) { close_by_manager(connection_, window); }

void OtherDisplay::lose() {
  if (server_ == 0) return;
  XCloseDisplay(connection_);
  kill(server_, SIGTERM);
  waitpid(server_, nullptr, 0);
  server_ = 0;
}
