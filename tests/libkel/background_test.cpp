#include "libkel/background.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>
#include <vector>

using namespace vqc;

namespace {

using namespace std::chrono_literals;

/// What has been worked on, and what of it was outdated in the end.
class Log {
 public:
  void add(int task) {
    const std::scoped_lock lock(mutex_);
    tasks_.push_back(task);
  }
  std::vector<int> tasks() const {
    const std::scoped_lock lock(mutex_);
    return tasks_;
  }

 private:
  mutable std::mutex mutex_;
  std::vector<int> tasks_;
};

template <class Condition>
bool wait_until(Condition condition) {
  const auto end = std::chrono::steady_clock::now() + 5s;
  while (!condition() && std::chrono::steady_clock::now() < end) std::this_thread::sleep_for(5ms);
  return condition();
}

TEST(Background, WorksInAThreadOfItsOwn) {
  Log log;
  std::thread::id worker;
  Background<int> background([&](int task, const std::stop_token&) {
    worker = std::this_thread::get_id();
    log.add(task);
  });
  background.take(1);
  EXPECT_TRUE(wait_until([&] { return log.tasks() == std::vector<int>{1}; }));
  background.stop();
  EXPECT_NE(std::this_thread::get_id(), worker);
}

TEST(Background, LeavesOutWhatStillWaits) {
  Log log;
  Background<int> background([&](int task, const std::stop_token&) { log.add(task); });
  for (int task = 1; task <= 3; ++task) background.take(task);
  EXPECT_TRUE(wait_until([&] { return !log.tasks().empty(); }));
  EXPECT_EQ((std::vector<int>{3}), log.tasks());
}

TEST(Background, TellsTheWorkThatSomethingNewerWaits) {
  Log log;
  std::atomic<bool> begun = false;
  Background<int> background([&](int task, const std::stop_token& outdated) {
    begun = true;
    if (task == 1) wait_until([&] { return outdated.stop_requested(); });
    log.add(outdated.stop_requested() ? -task : task);
  });
  background.take(1);
  EXPECT_TRUE(wait_until([&] { return begun.load(); }));
  background.take(2);
  EXPECT_TRUE(wait_until([&] { return log.tasks() == std::vector<int>{-1, 2}; }));
}

TEST(Background, EndsWithoutWhatStillWaits) {
  Log log;
  {
    Background<int> background([&](int task, const std::stop_token&) { log.add(task); });
    background.take(1);
  }
  EXPECT_EQ(std::vector<int>(), log.tasks());
}

TEST(Background, TellsTheWorkThatItEnds) {
  std::atomic<bool> begun = false;
  std::atomic<bool> told = false;
  {
    Background<int> background([&](int, const std::stop_token& outdated) {
      begun = true;
      told = wait_until([&] { return outdated.stop_requested(); });
    });
    background.take(1);
    EXPECT_TRUE(wait_until([&] { return begun.load(); }));
  }
  EXPECT_TRUE(told);
}

}  // namespace
