#ifndef VQC_CMD_MODEL_NAME_INDEX_H
#define VQC_CMD_MODEL_NAME_INDEX_H

#include <cstddef>
#include <memory>

#include "libkel/text.h"

namespace vqc {

/// Elements by name, of whatever type: lists of all types share this code.
class NameIndex {
 public:
  /// The name of an element.
  using NameOf = Text (*)(const void* element);

  /// With room for `size` elements.
  NameIndex(NameOf name_of, std::size_t size);
  NameIndex(const NameIndex&) = delete;
  NameIndex& operator=(const NameIndex&) = delete;
  ~NameIndex();

  /// Takes in an element whose name is new. Where memory is short, which is thrown, the index is as it was.
  void insert(void* element);
  void erase(const void* element);
  /// The element of that name, or null.
  void* find(Text name) const;

 private:
  class Table;
  std::unique_ptr<Table> table_;
};

}  // namespace vqc

#endif
