#ifndef APPLICATION_RUN_PROGRAM_H
#define APPLICATION_RUN_PROGRAM_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/files.h"

/// What the program left behind.
struct Outcome {
  int status = -1;  // -1 when a signal ended it
  std::string out;
  std::string err;

  bool operator==(const Outcome&) const = default;
};

inline void PrintTo(const Outcome& outcome, std::ostream* stream) {
  *stream << "status " << outcome.status << "\nstandard output:\n" << outcome.out << "standard error:\n" << outcome.err;
}

/// Where the standard streams of the program lead, and what it finds in its environment.
struct Surroundings {
  std::vector<std::string> environment = {};  // "NAME=value"; otherwise no display, no home and no resource files
  bool out_closed = false;
  bool err_closed = false;
  int memory = 0;  // kilobytes that it may use; 0 for any number
};

/// The instructions by which a process is made.
class SpawnActions {
 public:
  explicit SpawnActions(const std::string& folder) {
    posix_spawn_file_actions_init(&actions_);
    posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());
  }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  ~SpawnActions() { posix_spawn_file_actions_destroy(&actions_); }

  void close(int descriptor) { posix_spawn_file_actions_addclose(&actions_, descriptor); }
  void open(int descriptor, const std::string& path, int flags) {
    posix_spawn_file_actions_addopen(&actions_, descriptor, path.c_str(), flags, 0600);
  }
  const posix_spawn_file_actions_t* get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

/// The words as exec wants them. They must outlive the result.
inline std::vector<char*> pointers_to(std::vector<std::string>& words) {
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

/// This process's environment without what tells of a display, a user or resources.
inline std::vector<std::string> bare_environment() {
  std::vector<std::string> kept;
  for (char** entry = environ; *entry; ++entry) {
    const std::string_view name = std::string_view(*entry).substr(0, std::string_view(*entry).find('='));
    const bool dropped = name == "DISPLAY" || name == "HOME" || name == "VQROOT" || name == "USER_WIDGETS" ||
                         name == "XENVIRONMENT" || name == "XAPPLRESDIR" || name == "XUSERFILESEARCHPATH" ||
                         name == "XFILESEARCHPATH";
    if (!dropped) kept.emplace_back(*entry);
  }
  return kept;
}

/// A test that runs the program in a working directory of its own.
class ProgramTest : public testing::Test {
 protected:
  /// Runs it with these words after its name.
  Outcome run(std::vector<std::string> words, const Surroundings& surroundings = {}) const {
    SpawnActions actions(folder.path());
    actions.open(STDIN_FILENO, "/dev/null", O_RDONLY);
    redirect(actions, STDOUT_FILENO, streams_ / "out", surroundings.out_closed);
    redirect(actions, STDERR_FILENO, streams_ / "err", surroundings.err_closed);
    words.insert(words.begin(), program_name);
    std::string file = program;
    if (surroundings.memory != 0) {
      words.front() = program;
      file = "/bin/sh";
      words.insert(words.begin(), {"sh", "-c", "ulimit -v $0 && exec \"$@\"", std::to_string(surroundings.memory)});
    }
    std::vector<std::string> environment = bare_environment();
    environment.insert(environment.end(), surroundings.environment.begin(), surroundings.environment.end());
    const int status = wait_for(spawn(file, actions, words, environment));
    return {status, surroundings.out_closed ? "" : read_file(streams_ / "out"),
            surroundings.err_closed ? "" : read_file(streams_ / "err")};
  }

  /// The names of the files in the working directory, sorted.
  std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  bool exists(std::string_view name) const { return std::filesystem::exists(folder / name); }

  TemporaryFolder folder;
  std::string program = VQCONFIG_PROGRAM;  // the file that is run
  std::string program_name = "vqconfig";   // what the program is told to be its name

 private:
  static void redirect(SpawnActions& actions, int descriptor, const std::string& path, bool closed) {
    if (closed) {
      actions.close(descriptor);
    } else {
      actions.open(descriptor, path, O_WRONLY | O_CREAT | O_TRUNC);
    }
  }

  static pid_t spawn(const std::string& file, const SpawnActions& actions, std::vector<std::string>& words,
                     std::vector<std::string>& environment) {
    pid_t process = 0;
    const int error = posix_spawnp(&process, file.c_str(), actions.get(), nullptr, pointers_to(words).data(),
                                   pointers_to(environment).data());
    if (error != 0) throw std::runtime_error(std::string("cannot run the program: ") + std::strerror(error));
    return process;
  }

  static int wait_for(pid_t process) {
    int status = 0;
    if (waitpid(process, &status, 0) != process) throw std::runtime_error("lost the program");
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  TemporaryFolder streams_;
};

#endif
