// Runs a command and writes to a file what it took: CPU seconds (user and system) and peak memory in kilobytes.
// Usage: measure RESULT COMMAND ARGUMENT...
// A process begins with the peak memory of the one that started it, so it is started from a program as small as this.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

namespace {

double seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Something that takes minutes of CPU time where others take seconds is stopped; its status then says so.
constexpr rlimit kPatience = {.rlim_cur = 300, .rlim_max = 300};

[[noreturn]] void run(char** command) {
  setrlimit(RLIMIT_CPU, &kPatience);
  const int nothing = open("/dev/null", O_RDWR);
  dup2(nothing, STDOUT_FILENO);
  execvp(command[0], command);
  std::perror(command[0]);
  _exit(127);
}

bool report(const char* path, int status, const rusage& usage) {
  std::FILE* out = std::fopen(path, "w");
  if (out == nullptr) return false;
  const int result = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  std::fprintf(out, "%d %.6f %ld\n", result, seconds(usage.ru_utime) + seconds(usage.ru_stime), usage.ru_maxrss);
  return std::fclose(out) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const pid_t child = fork();
  if (child == 0) run(argv + 2);
  int status = 0;
  rusage usage{};
  if (child < 0 || wait4(child, &status, 0, &usage) != child) {
    std::perror("measure");
    return 1;
  }
  return report(argv[1], status, usage) ? 0 : 1;
}
