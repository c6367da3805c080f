#ifndef VQC_CMD_MODEL_IN_BLOCKS_H
#define VQC_CMD_MODEL_IN_BLOCKS_H

#include <cstddef>
#include <cstdlib>
#include <new>

#include "libkel/blocks.h"

/// Base of the records: they are made in blocks.
struct InBlocks {
  using Memory = Blocks<std::malloc, std::free>;

  static void* operator new(std::size_t size, const std::nothrow_t& /*null when memory is short*/) noexcept {
    return Memory::take(size);
  }
  static void operator delete(void* memory, std::size_t size) noexcept { Memory::give_back(memory, size); }
};

#endif
