#ifndef HELP_ASKING_H
#define HELP_ASKING_H

#include "help/desk.h"

/// A test of a program that asks for help. Its window is in this process, and VQROOT leads to a folder of this test, in
/// whose bin/vqhelp the test puts what is to be launched.
class Asking : public Desk {
 protected:
  /// `root` is the name of the folder that VQROOT leads to.
  explicit Asking(const std::string& root = "root");

  /// Puts a viewer there that does nothing but note that it has been launched.
  void install_fake() const { install(""); }
  /// Puts the real one there, and notes that too.
  void install_real() const;
  void install(const std::string& command) const;

  /// The command lines with which viewers have been launched so far.
  std::vector<std::string> launches() const { return lines_of("launches"); }
  /// Waits until so many have been launched.
  bool wait_for_launches(std::size_t count) const;

  std::vector<std::string> lines_of(const std::string& note) const;

  std::string root;
  Widget shell = nullptr;
};

/// Announces a window on that of its client.
void announce(Display* by, Window viewer, Window client);

#endif
