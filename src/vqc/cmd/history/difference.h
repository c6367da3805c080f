#ifndef VQC_CMD_HISTORY_DIFFERENCE_H
#define VQC_CMD_HISTORY_DIFFERENCE_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "vqc/cmd/history/changed_fields.h"
#include "vqc/cmd/history/state.h"
#include "vqc/cmd/model/part.h"

namespace vqc {

/// What has become of a part of a document.
enum class Verb : std::uint8_t { added, removed, changed, reordered };

/// One thing in which two states differ. The texts are theirs.
struct Difference {
  Verb verb;
  Part part;
  Text name = {};  // null for a part that has none
  Text of = {};    // the record that owns it, or the family that refers to it; null for none

  bool operator==(const Difference&) const = default;
};

/// What has been done between two states, what matters most first: a family that has gone comes before what has gone
/// with it.
std::vector<Difference> differences(const State& from, const State& to);

/// A difference, and the fields of what has changed.
struct RecordDifference : Difference {
  FieldChanges fields = {};

  bool operator==(const RecordDifference&) const = default;
};

/// The same by record and field.
std::vector<RecordDifference> field_differences(const State& from, const State& to);

/// How many parts of a kind have become the same.
struct DifferenceCount {
  Verb verb;
  Part part;
  int number;

  bool operator==(const DifferenceCount&) const = default;
};

/// Differences in numbers, in the order of the parts. A record that is in another order, and a family that refers to
/// something else, has changed, and counts once.
std::vector<DifferenceCount> count_differences(std::span<const Difference> all);

}  // namespace vqc

#endif
