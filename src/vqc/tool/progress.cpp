// Says on a terminal what is being done.

#include "vqc/tool/progress.h"

#include <unistd.h>

#include <utility>

#include "libkel/sink.h"

namespace vqc {

Progress::Progress(int terminal, std::chrono::milliseconds moment) : terminal_(terminal) {
  if (!isatty(terminal)) return;
  waiter_ = std::jthread([this, moment](const std::stop_token& stop) { wait(stop, moment); });
}

void Progress::show(std::string what) {
  const std::scoped_lock lock(mutex_);
  const bool changed = what != what_;
  what_ = std::move(what);
  if (changed) draw();
}

void Progress::wait(const std::stop_token& stop, std::chrono::milliseconds moment) {
  std::unique_lock lock(mutex_);
  if (end_.wait_for(lock, stop, moment, [&] { return stop.stop_requested(); })) return;
  due_ = true;
  if (!what_.empty()) draw();
}

void Progress::draw() const {
  constexpr const char* kEmptyLine = "\r\033[K";
  if (!due_) return;
  const auto out = FileSink::to_descriptor(terminal_);
  out->write(kEmptyLine);
  out->write(what_);
  out->finish();
}

}  // namespace vqc
