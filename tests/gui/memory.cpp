#include "gui/memory.h"

#include <malloc.h>

#include <cstddef>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max() / 2;
std::size_t left = kUnlimited;

/// Throws, or the handler does, when there is not enough left.
void* take(std::size_t size, std::size_t alignment = alignof(std::max_align_t)) {
  const std::size_t whole = (size + alignment - 1) / alignment * alignment;
  void* memory = size <= left ? std::aligned_alloc(alignment, whole) : nullptr;
  if (memory) {
    left -= malloc_usable_size(memory);
    return memory;
  }
  if (auto* handler = std::get_new_handler()) handler();
  throw std::bad_alloc();
}

void give_back(void* memory) {
  if (memory) left += malloc_usable_size(memory);
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) { return take(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
  return take(size, static_cast<std::size_t>(alignment));
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept try {
  return ::operator new(size);
} catch (const std::bad_alloc&) {
  return nullptr;
}

void operator delete(void* memory) noexcept { give_back(memory); }
void operator delete(void* memory, std::size_t) noexcept { give_back(memory); }
void operator delete(void* memory, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { give_back(memory); }

ShortMemory::ShortMemory(std::size_t bytes) { left = bytes; }

ShortMemory::~ShortMemory() { left = kUnlimited; }
