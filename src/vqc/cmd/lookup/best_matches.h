#ifndef VQC_CMD_LOOKUP_BEST_MATCHES_H
#define VQC_CMD_LOOKUP_BEST_MATCHES_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vqc {

/// The names among others that match what somebody has typed.
struct Matches {
  std::vector<std::size_t> places;  // of the best of them, the best first; of equals, the one that comes first
  std::size_t count = 0;            // of all
};

/// Finds them; at most `most` places are given. All names match where nothing has been typed.
Matches best_matches(std::string_view typed, std::span<const std::string> names, std::size_t most);

}  // namespace vqc

#endif
