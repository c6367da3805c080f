// Writes the journal of a session beside it.

#include "vqc/cmd/history/journal_writer.h"

#include <csignal>
#include <new>
#include <utility>

#include "vqc/cmd/savefile/save.h"

namespace vqc {

namespace {

/// What a state says, as a document from which it can be read back.
std::string text_of(const State& state) {
  Document document;
  restore(document, {}, state);
  StringSink text;
  save_whole(document, text);
  text.finish();
  return text.text();
}

/// Signals are for the thread that serves the user.
void take_no_signals() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

}  // namespace

JournalWriter::~JournalWriter() { stop(); }

void JournalWriter::take(std::shared_ptr<const State> state, std::filesystem::path document) {
  {
    const std::scoped_lock lock(mutex_);
    waiting_ = {std::move(state), std::move(document)};
  }
  changed_.notify_one();
  if (!thread_.joinable()) thread_ = std::jthread([this](const std::stop_token& stop) { work(stop); });
}

void JournalWriter::end() {
  stop();
  journal_.end();
}

std::error_code JournalWriter::failure() const {
  const std::scoped_lock lock(mutex_);
  return failure_;
}

void JournalWriter::work(const std::stop_token& stop) {
  take_no_signals();
  std::unique_lock lock(mutex_);
  while (changed_.wait(lock, stop, [this] { return waiting_.state != nullptr; })) {
    changed_.wait_for(lock, stop, kRest, [] { return false; });
    if (stop.stop_requested()) return;
    const Task task = std::exchange(waiting_, {});
    lock.unlock();
    write(task);
    lock.lock();
  }
}

void JournalWriter::write(const Task& task) {
  std::error_code failure;
  try {
    failure = journal_.set_document(task.document);
    const std::error_code unwritten = journal_.write(text_of(*task.state));
    if (unwritten) failure = unwritten;
  } catch (const std::bad_alloc&) {
    failure = std::make_error_code(std::errc::not_enough_memory);
  }
  const std::scoped_lock lock(mutex_);
  failure_ = failure;
}

void JournalWriter::stop() {
  if (!thread_.joinable()) return;
  thread_.request_stop();
  thread_.join();
}

}  // namespace vqc
