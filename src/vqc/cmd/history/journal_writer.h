#ifndef VQC_CMD_HISTORY_JOURNAL_WRITER_H
#define VQC_CMD_HISTORY_JOURNAL_WRITER_H

#include <filesystem>
#include <memory>
#include <mutex>
#include <system_error>

#include "libkel/background.h"
#include "vqc/cmd/history/journal.h"
#include "vqc/cmd/history/state.h"

namespace vqc {

/// Writes states of a document into a journal while the session goes on, in a thread of its own: a state never changes.
class JournalWriter {
 public:
  explicit JournalWriter(Journal journal) : journal_(std::move(journal)) {}

  /// Has a state of that document written. One that still waits is left out, and so it is when the session is gone.
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

  void write(const Task& task);

  Journal journal_;
  mutable std::mutex mutex_;
  std::error_code failure_;
  Background<Task> background_{[this](const Task& task, const std::stop_token&) { write(task); }};
};

}  // namespace vqc

#endif
