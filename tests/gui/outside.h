#ifndef GUI_OUTSIDE_H
#define GUI_OUTSIDE_H

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "gui/session.h"

using namespace vqc;

// The program and its display as another process sees them.

/// Waits until a condition holds; false when it has not come true in time.
bool wait_until_true(const std::function<bool()>& condition);

/// What a session on a document leaves that is killed.
void leave_state(const std::string& document, const std::string& text);

/// The copy of a text by another program, one of those that know no other texts than STRING.
void copy_as_old_program(std::string text);
/// The text that another program gets when it pastes.
std::string pasted_outside();

/// The processes that run the file of a program on a display.
std::vector<pid_t> processes(const std::string& program, const std::string& display_name);

/// The program as a process; it is killed if it is left running.
class RunningProgram {
 public:
  /// Starts it on a display with these words after its name.
  RunningProgram(std::vector<std::string> words, const std::string& display_name,
                 const std::string& program = VQCONFIG_PROGRAM);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram();

  /// Its exit status, once it has ended; -1 when a signal ended it, -2 when it goes on.
  int wait();
  bool is_running();
  /// What it has written to standard error.
  std::string errors() const;

 private:
  TemporaryFolder streams_;
  pid_t process_ = 0;
  int status_ = 0;
};

/// An X server of its own, without a window manager, that can be lost.
class OtherDisplay {
 public:
  OtherDisplay();
  OtherDisplay(const OtherDisplay&) = delete;
  OtherDisplay& operator=(const OtherDisplay&) = delete;
  ~OtherDisplay();

  const std::string& name() const { return name_; }
  /// The window of that title, as soon as it is on the screen; 0 when it does not come.
  Window wait_for_window(const std::string& title);
  /// Gives the keyboard to it.
  void focus(const std::string& title);
  void type(const std::string& text);
  void key(const char* name, bool with_control = false);
  /// What a property of a window holds.
  std::string property_of(Window window, const char* name) const;
  /// Moves a window, and where its upper left corner is.
  void move(Window window, int x, int y);
  std::pair<int, int> corner(Window window) const;
  /// Asks a window to close.
  void close(Window window);
  /// Kills the server.
  void lose();

 private:
  TemporaryFolder folder_;
  pid_t server_ = 0;
  std::string name_;
  Display* connection_ = nullptr;
};

#endif
