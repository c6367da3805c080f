#ifndef GUI_MEMORY_H
#define GUI_MEMORY_H

#include <cstddef>

/// While it lives, the program gets no more than `bytes` of new memory for its own things, besides what it gives back.
/// The toolkit, which allocates in its own way, is not limited.
class ShortMemory {
 public:
  explicit ShortMemory(std::size_t bytes);
  ShortMemory(const ShortMemory&) = delete;
  ShortMemory& operator=(const ShortMemory&) = delete;
  ~ShortMemory();
};

#endif
