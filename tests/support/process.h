#ifndef SUPPORT_PROCESS_H
#define SUPPORT_PROCESS_H

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>

#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// What a process may do, and processes that end early.

/// Runs as a user to whom permissions apply.
class AsSomebody {
 public:
  explicit AsSomebody(const std::string& owned_folder) {
    if (!is_root_) return;
    if (chown(owned_folder.c_str(), kNobody, kNobody) != 0 || seteuid(kNobody) != 0) std::abort();
  }
  AsSomebody(const AsSomebody&) = delete;
  AsSomebody& operator=(const AsSomebody&) = delete;
  ~AsSomebody() {
    if (is_root_ && seteuid(0) != 0) std::abort();
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool is_root_ = geteuid() == 0;
};

/// While it is there, no file becomes larger.
class RoomForFiles {
 public:
  explicit RoomForFiles(rlim_t most_bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &usual_);
    const rlimit small{most_bytes, usual_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
  }
  RoomForFiles(const RoomForFiles&) = delete;
  RoomForFiles& operator=(const RoomForFiles&) = delete;
  ~RoomForFiles() {
    setrlimit(RLIMIT_FSIZE, &usual_);
    std::signal(SIGXFSZ, signal_);
  }

 private:
  void (*signal_)(int);
  rlimit usual_{};
};

/// Runs something in a process of its own, which ends with 0, or 1 after an exception. Gives the process.
inline pid_t in_process(const std::function<void()>& what) {
  const pid_t process = fork();
  if (process != 0) return process;
  try {
    what();
  } catch (const std::exception&) {
    _exit(1);
  }
  _exit(0);
}

/// Runs something in a process of its own, which is killed when it stops for the n-th time: before or after each call
/// of the system. False when it had come to its end.
inline bool killed_at_stop(int n, const std::function<void()>& what) {
  const pid_t process = in_process([&] {
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) throw std::runtime_error("cannot be traced");
    raise(SIGSTOP);
    what();
  });
  int status = 0;
  waitpid(process, &status, 0);
  EXPECT_TRUE(WIFSTOPPED(status)) << "the process cannot be traced";
  for (int stops = 0; WIFSTOPPED(status) && stops < n; ++stops) {
    ptrace(PTRACE_SYSCALL, process, nullptr, nullptr);
    waitpid(process, &status, 0);
  }
  if (!WIFSTOPPED(status)) return false;
  kill(process, SIGKILL);
  waitpid(process, &status, 0);
  return true;
}

#endif
