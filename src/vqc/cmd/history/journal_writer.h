#ifndef VQC_CMD_HISTORY_JOURNAL_WRITER_H
#define VQC_CMD_HISTORY_JOURNAL_WRITER_H

#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

#include "vqc/cmd/history/journal.h"
#include "vqc/cmd/history/state.h"

namespace vqc {

/// Writes states of a document into a journal while the session goes on, in a thread of its own: a state never changes.
class JournalWriter {
 public:
  /// How long a state waits for another one to come in its place.
  static constexpr std::chrono::milliseconds kRest{300};

  explicit JournalWriter(Journal journal) : journal_(std::move(journal)) {}
  /// Leaves what has been written, and nothing of what has not.
  ~JournalWriter();

  /// Has a state of that document written. One that still waits is left out.
  void take(std::shared_ptr<const State> state, std::filesystem::path document);
  /// Ends the session well: nothing is left of its journal.
  void end();

  /// Why the last state could not be written, if so.
  std::error_code failure() const;
  const Journal& journal() const { return journal_; }

 private:
  struct Task {
    std::shared_ptr<const State> state;
    std::filesystem::path document;
  };

  void work(const std::stop_token& stop);
  void write(const Task& task);
  void stop();

  Journal journal_;
  mutable std::mutex mutex_;
  std::condition_variable_any changed_;
  Task waiting_;  // its state is null when nothing waits
  std::error_code failure_;
  std::jthread thread_;  // begun with the first state
};

}  // namespace vqc

#endif
