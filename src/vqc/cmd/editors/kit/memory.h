#ifndef VQC_CMD_EDITORS_KIT_MEMORY_H
#define VQC_CMD_EDITORS_KIT_MEMORY_H

// A session that is short of memory goes on: what the user asked for is dropped, and he is told. A little memory is set
// aside for telling him.

#include <new>

namespace vqc::editors {

/// From now on large blocks go back to the system when they are freed. The C library would keep as much as each thread
/// has ever had.
void give_back_large_blocks();

/// From now on an allocation that fails throws std::bad_alloc.
void survive_short_memory();

/// Tells the user that memory is short.
void report_short_memory();

/// For as long as something is done. Before the outermost of what is done within each other, memory that has been used
/// is set aside again.
class Guard {
 public:
  Guard();
  Guard(const Guard&) = delete;
  Guard& operator=(const Guard&) = delete;
  ~Guard();
};

/// Does `work`; when memory runs out, drops the rest of it and says so. Nothing may be thrown into the toolkit.
template <class Work>
void guarded(Work work) {
  const Guard guard;
  try {
    work();
  } catch (const std::bad_alloc&) {
    report_short_memory();
  }
}

}  // namespace vqc::editors

#endif
