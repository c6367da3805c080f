#ifndef VQC_CMD_SAVEFILE_PLACES_H
#define VQC_CMD_SAVEFILE_PLACES_H

#include <optional>
#include <unordered_map>

#include "libkel/source.h"
#include "libkel/text.h"

namespace vqc {

/// Where the parts of a document stand in the source that it was read from. Most texts are views of the source and show
/// that themselves; other texts, definitions and references are noted as they are read.
class Places {
 public:
  /// The source must outlive the places.
  explicit Places(const Source& source) : source_(source) {}

  /// Notes where a text that is no view of the source was read.
  void note(Text text, Range range) { note(static_cast<const void*>(text.view().data()), range); }
  /// Notes where a record of a pool or a family is defined, or where a family names a record. The first place counts.
  void note(const void* part, Range range) { noted_.emplace(part, range); }

  /// Where a text stands, without its quotes unless there is an escape in it. None where it was not read from the
  /// source.
  std::optional<Range> of(Text text) const;
  /// Where a record, a family or a reference stands as its name does. None where the source does not say it.
  std::optional<Range> of(const void* part) const;

 private:
  const Source& source_;
  std::unordered_map<const void*, Range> noted_;  // by the address of the part or of the text's characters
};

}  // namespace vqc

#endif
