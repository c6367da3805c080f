// Keeps a reserve of memory, and tells the user when it is needed.

#include "vqc/cmd/editors/kit/memory.h"

#include <malloc.h>

#include <cstddef>
#include <memory>

#include "libkel/message.h"

namespace vqc::editors {

namespace {

constexpr std::size_t kReserve = std::size_t{1024} * 1024;  // a message box takes a part of it

std::unique_ptr<char[]> reserve;
int depth = 0;

void keep_reserve() {
  if (!reserve) reserve.reset(new (std::nothrow) char[kReserve]);
}

/// Does not let the allocation try again: what is being done could use up the reserve.
[[noreturn]] void run_short() {
  reserve.reset();
  throw std::bad_alloc();
}

}  // namespace

void give_back_large_blocks() {
#ifdef M_MMAP_THRESHOLD
  constexpr int kLarge = 1024 * 1024;
  mallopt(M_MMAP_THRESHOLD, kLarge);
#endif
}

void survive_short_memory() {
  std::set_new_handler(run_short);
  keep_reserve();
}

void report_short_memory() {
  try {
    error_show("out_of_memory");
  } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch): not even for this is there any
  }
}

Guard::Guard() {
  if (depth++ == 0) keep_reserve();
}

Guard::~Guard() { --depth; }

}  // namespace vqc::editors
