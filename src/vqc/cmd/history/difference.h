#ifndef VQC_CMD_HISTORY_DIFFERENCE_H
#define VQC_CMD_HISTORY_DIFFERENCE_H

#include <cstddef>
#include <cstdint>
#include <vector>

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

}  // namespace vqc

#endif
