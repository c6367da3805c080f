// Writes the journal of a session beside it.

#include "vqc/cmd/history/journal_writer.h"

#include <new>
#include <utility>

#include "vqc/cmd/savefile/save.h"

namespace vqc {

namespace {

/// Writes what a state says, as a document from which it can be read back.
void write_state(const State& state, Sink& out) {
  Document document;
  restore(document, {}, state);
  save_whole(document, out);
}

}  // namespace

void JournalWriter::take(std::shared_ptr<const State> state, std::filesystem::path document) {
  background_.take({std::move(state), std::move(document)});
}

void JournalWriter::end() {
  background_.stop();
  journal_.end();
}

std::error_code JournalWriter::failure() const {
  const std::scoped_lock lock(mutex_);
  return failure_;
}

void JournalWriter::write(const Task& task) {
  std::error_code failure;
  try {
    failure = journal_.set_document(task.document);
    const std::error_code unwritten = journal_.write([&](Sink& out) { write_state(*task.state, out); });
    if (unwritten) failure = unwritten;
  } catch (const std::bad_alloc&) {
    failure = std::make_error_code(std::errc::not_enough_memory);
  }
  const std::scoped_lock lock(mutex_);
  failure_ = failure;
}

}  // namespace vqc
