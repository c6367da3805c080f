#ifndef LIBKEL_BACKGROUND_H
#define LIBKEL_BACKGROUND_H

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>

namespace vqc {

/// Works on what it is given in a thread of its own, while the program goes on. Only the newest task matters.
template <class Task>
class Background {
 public:
  /// How long a task waits for another one to come in its place.
  static constexpr std::chrono::milliseconds kRest{300};

  /// `work` is called in the thread. Its token says when it is done for nothing, as another task waits.
  explicit Background(std::function<void(const Task& task, const std::stop_token& outdated)> work)
      : work_(std::move(work)) {}
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;
  /// Ends the work. A task that still waits is left out.
  ~Background() { stop(); }

  /// Has a task worked on. One that still waits is left out.
  void take(Task task) {
    {
      const std::scoped_lock lock(mutex_);
      waiting_ = std::move(task);
      outdated_.request_stop();
    }
    changed_.notify_one();
    if (!thread_.joinable()) begin();
  }

  /// Ends the work before the destructor does.
  void stop() {
    if (!thread_.joinable()) return;
    thread_.request_stop();
    {
      const std::scoped_lock lock(mutex_);
      outdated_.request_stop();
    }
    thread_.join();
  }

 private:
  void begin() try {
    thread_ = std::jthread([this](const std::stop_token& stop) { serve(stop); });
  } catch (const std::system_error&) {  // NOLINT(bugprone-empty-catch): the next task tries again
  }

  /// Signals are for the thread that serves the user.
  static void take_no_signals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
  }

  void serve(const std::stop_token& stop) {
    take_no_signals();
    std::unique_lock lock(mutex_);
    while (changed_.wait(lock, stop, [this] { return waiting_.has_value(); })) {
      changed_.wait_for(lock, stop, kRest, [] { return false; });
      if (stop.stop_requested()) return;
      const Task task = *std::exchange(waiting_, std::nullopt);
      outdated_ = {};
      const std::stop_token outdated = outdated_.get_token();
      lock.unlock();
      work_(task, outdated);
      lock.lock();
    }
  }

  const std::function<void(const Task&, const std::stop_token&)> work_;
  std::mutex mutex_;
  std::condition_variable_any changed_;
  std::optional<Task> waiting_;
  std::stop_source outdated_;  // what is being worked on
  std::jthread thread_;        // begun with the first task
};

}  // namespace vqc

#endif
