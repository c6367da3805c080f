#include "libkel/blocks.h"

#include <sys/mman.h>

#include <cstdlib>
#include <utility>

namespace {

constexpr int kUsualBlocks = 64;  // as many as fill a huge page

/// Null when memory is short.
void* block_of_huge_page() {
  constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;
  static char* next = nullptr;
  static std::size_t left = 0;
  if (left == 0) {
    next = static_cast<char*>(std::aligned_alloc(kHugePage, kHugePage));
    if (!next) return nullptr;
    left = kHugePage;
    madvise(next, kHugePage, MADV_HUGEPAGE);  // where it fails, the memory is as good but for its pages
  }
  left -= kBlockSize;
  return std::exchange(next, next + kBlockSize);
}

}  // namespace

void* new_block(void* (*allocate)(std::size_t)) {
  static int usual = 0;
  if (usual < kUsualBlocks) {
    ++usual;
    return allocate(kBlockSize);
  }
  void* block = block_of_huge_page();
  return block ? block : allocate(kBlockSize);
}
