#ifndef VQC_CMD_GENERATE_NAME_SET_H
#define VQC_CMD_GENERATE_NAME_SET_H

#include <cstddef>
#include <string_view>

#include "libkel/hash_set.h"
#include "libkel/text.h"

namespace vqc {

/// Names that have been dealt with. The names must outlive the set.
class NameSet {
 public:
  /// True for a name that is not empty and was not there.
  bool add(Text name) { return !name.empty() && names_.insert(name.view()); }
  bool contains(Text name) const { return names_.contains(name.view()); }

 private:
  struct Hash {
    std::size_t operator()(std::string_view name) const { return hash_of(name); }
  };
  HashSet<std::string_view, Hash> names_;
};

/// Names that have been given places in a table.
class Numbering {
 public:
  /// Gives a name the next place, from 0.
  int add(Text name) {
    numbers_.insert({name.view(), next_});
    return next_++;
  }
  /// The place of a name, or -1.
  int of(Text name) const {
    const Entry* found = numbers_.find(name.view());
    return found ? found->number : -1;
  }

 private:
  struct Entry {
    std::string_view name;
    int number;
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const { return hash_of(name); }
    std::size_t operator()(const Entry& entry) const { return (*this)(entry.name); }
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Entry& a, const Entry& b) const { return a.name == b.name; }
    bool operator()(const Entry& a, std::string_view b) const { return a.name == b; }
  };

  HashSet<Entry, Hash, Equal> numbers_;
  int next_ = 0;
};

}  // namespace vqc

#endif
