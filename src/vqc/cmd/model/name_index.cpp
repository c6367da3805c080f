// Finds the elements of long lists by their names.

#include "vqc/cmd/model/name_index.h"

#include "libkel/hash_set.h"

namespace vqc {

namespace {

struct Hash {
  using is_transparent = void;
  NameIndex::NameOf name_of;
  std::size_t operator()(Text name) const { return hash_of(name.view()); }
  std::size_t operator()(const void* element) const { return (*this)(name_of(element)); }
};

struct Equal {
  using is_transparent = void;
  NameIndex::NameOf name_of;
  bool operator()(const void* a, const void* b) const { return a == b; }
  bool operator()(const void* a, Text name) const { return name_of(a) == name; }
};

}  // namespace

class NameIndex::Table : public HashSet<void*, Hash, Equal> {
  using HashSet::HashSet;
};

NameIndex::NameIndex(NameOf name_of, std::size_t size)
    : table_(std::make_unique<Table>(size, Hash{name_of}, Equal{name_of})) {}

NameIndex::~NameIndex() = default;

void NameIndex::insert(void* element) { table_->insert(element); }

void NameIndex::erase(const void* element) { table_->erase(element); }

void* NameIndex::find(Text name) const {
  void* const* found = table_->find(name);
  return found ? *found : nullptr;
}

}  // namespace vqc
