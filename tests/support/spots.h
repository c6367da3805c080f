#ifndef SUPPORT_SPOTS_H
#define SUPPORT_SPOTS_H

#include <ostream>
#include <vector>

#include "vqc/cmd/model/part.h"

using namespace vqc;

using Spots = std::vector<Spot>;

namespace vqc {

/// Shows a spot in what a test says.
inline void PrintTo(const Spot& spot, std::ostream* out) {
  *out << "part " << static_cast<int>(spot.part) << " '" << spot.name << "' of '" << spot.of << "', " << spot.field;
}

}  // namespace vqc

#endif
