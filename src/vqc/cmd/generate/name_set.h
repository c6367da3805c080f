#ifndef VQC_CMD_GENERATE_NAME_SET_H
#define VQC_CMD_GENERATE_NAME_SET_H

#include <cstddef>

#include "libkel/hash_set.h"
#include "libkel/text.h"

/// Names that have been dealt with.
class NameSet {
 public:
  void insert(const Text& name) { names_.insert(name); }
  /// True for a name that is not empty and was not there.
  bool add(const Text& name) { return !name.empty() && names_.insert(name); }
  bool contains(const Text& name) const { return names_.contains(name); }

 private:
  struct Hash {
    std::size_t operator()(const Text& name) const { return name.hash(); }
  };
  HashSet<Text, Hash> names_;
};

#endif
