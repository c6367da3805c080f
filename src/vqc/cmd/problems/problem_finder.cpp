// Finds problems beside what the user does.

#include "vqc/cmd/problems/problem_finder.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <new>
#include <utility>

namespace vqc {

namespace {

/// Who serves the user comes first. A system that knows no priority of a thread gives it that of its process.
void step_back() {
  constexpr int kNice = 10;
  setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kNice);
}

}  // namespace

ProblemFinder::ProblemFinder() {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
  out_ = Descriptor(ends[0]);
  in_ = Descriptor(ends[1]);
}

std::shared_ptr<const Problems> ProblemFinder::found() {
  char bytes[64];
  while (read(out_.get(), bytes, sizeof bytes) > 0) {
  }
  const std::scoped_lock lock(mutex_);
  return std::exchange(found_, nullptr);
}

void ProblemFinder::work(const DocumentToCheck& document, const std::stop_token& outdated) try {
  step_back();
  auto problems = std::make_shared<const Problems>(find_problems(document, outdated));
  if (outdated.stop_requested()) return;
  {
    const std::scoped_lock lock(mutex_);
    found_ = std::move(problems);
  }
  in_.write("!");
} catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch): what was found last stays
}

}  // namespace vqc
