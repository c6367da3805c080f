#ifndef VQC_CMD_SAVEFILE_PLACES_H
#define VQC_CMD_SAVEFILE_PLACES_H

#include <vector>

#include "libkel/source.h"

namespace vqc {

/// Where the parts of a document stand in its source, in the order in which they were read. A part is named by its
/// address: a record or a reference stands where its name does, a member where its value does. What is said twice
/// stands in two places.
class Places {
 public:
  struct Entry {
    const void* part;
    Range range;
  };

  void note(const void* part, Range range) { entries_.push_back({part, range}); }
  const std::vector<Entry>& entries() const { return entries_; }

 private:
  std::vector<Entry> entries_;
};

}  // namespace vqc

#endif
