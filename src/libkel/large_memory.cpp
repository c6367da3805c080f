// Memory in huge pages.

#include "libkel/large_memory.h"

#include <sys/mman.h>

#include <cstddef>
#include <new>

namespace vqc {

namespace {

constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;

class LargeMemory : public std::pmr::memory_resource {
  void* do_allocate(std::size_t size, std::size_t alignment) override {
    if (size < kHugePage) return ::operator new (size, std::align_val_t{alignment});
    void* memory = ::operator new (size, std::align_val_t{kHugePage});
    madvise(memory, size, MADV_HUGEPAGE);  // where it fails, the memory is as good but for its pages
    return memory;
  }
  void do_deallocate(void* memory, std::size_t size, std::size_t alignment) override {
    ::operator delete (memory, std::align_val_t{size < kHugePage ? alignment : kHugePage});
  }
  bool do_is_equal(const memory_resource& other) const noexcept override { return this == &other; }
};

}  // namespace

std::pmr::memory_resource* large_memory() {
  static LargeMemory memory;
  return &memory;
}

}  // namespace vqc
