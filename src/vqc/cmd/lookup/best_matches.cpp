// Picks the names that match best.

#include "vqc/cmd/lookup/best_matches.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "vqc/cmd/lookup/match.h"

namespace vqc {

Matches best_matches(std::string_view typed, std::span<const std::string> names, std::size_t most) {
  const Pattern pattern(typed);
  std::vector<std::pair<int, std::size_t>> ranked;
  for (std::size_t place = 0; place < names.size(); ++place) {
    if (const std::optional<int> rank = pattern.rank(names[place])) ranked.emplace_back(*rank, place);
  }
  Matches matches{{}, ranked.size()};
  const std::size_t given = std::min(most, ranked.size());
  std::ranges::partial_sort(ranked, ranked.begin() + static_cast<std::ptrdiff_t>(given));
  for (std::size_t i = 0; i < given; ++i) matches.places.push_back(ranked[i].second);
  return matches;
}

}  // namespace vqc
