#ifndef VQC_TOOL_PROGRESS_H
#define VQC_TOOL_PROGRESS_H

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace vqc {

/// A line on a terminal that says what is being done, for who waits longer than a moment. Nothing on what is none.
class Progress {
 public:
  explicit Progress(int terminal, std::chrono::milliseconds moment = std::chrono::seconds(1));
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  /// Takes the line away.
  ~Progress() { show(""); }

  /// Says what is being done from now on. Nothing takes the line away, so that something else can be written.
  void show(std::string what);

 private:
  void wait(const std::stop_token& stop, std::chrono::milliseconds moment);
  void draw() const;

  int terminal_;
  std::mutex mutex_;  // of what follows
  std::string what_;
  bool due_ = false;
  std::condition_variable_any end_;
  std::jthread waiter_;
};

}  // namespace vqc

#endif
