#ifndef VQC_CMD_MODEL_IN_BLOCKS_H
#define VQC_CMD_MODEL_IN_BLOCKS_H

#include <cstddef>
#include <new>

#include "libkel/blocks.h"

/// Null when memory is short and the program's new handler, if there is one, returns.
inline void* allocate_for_records(std::size_t size) { return ::operator new(size, std::nothrow); }
inline void release_records(void* memory) { ::operator delete(memory); }

/// Base of the records: they are made in blocks.
struct InBlocks {
  using Memory = Blocks<allocate_for_records, release_records>;

  static void* operator new(std::size_t size, const std::nothrow_t& /*null when memory is short*/) noexcept {
    return Memory::take(size);
  }
  static void operator delete(void* memory, std::size_t size) noexcept { Memory::give_back(memory, size); }
};

#endif
