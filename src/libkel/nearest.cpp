// Finds what a misspelt word was meant to be.

#include "libkel/nearest.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <vector>

namespace vqc {

namespace {

constexpr std::size_t kLongest = 64;  // no longer word is a misspelt one

/// How many letters have to be added, taken away, replaced or swapped with their neighbour to make `a` of `b`.
std::size_t distance(std::string_view a, std::string_view b) {
  std::array<std::vector<std::size_t>, 3> rows;  // the last two, and the one that is made
  rows.fill(std::vector<std::size_t>(b.size() + 1));
  std::iota(rows[1].begin(), rows[1].end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    auto& [before_last, last, row] = rows;
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) row[j] = std::min(row[j], before_last[j - 2] + 1);
    }
    std::rotate(rows.begin(), rows.begin() + 1, rows.end());
  }
  return rows[1].back();
}

}  // namespace

std::string_view nearest(std::string_view word, std::span<const std::string_view> candidates) {
  std::string_view best;
  if (word.size() > kLongest) return best;
  std::size_t least = std::min<std::size_t>(3, word.size() / 3) + 1;
  for (std::string_view candidate : candidates) {
    const auto [shorter, longer] = std::minmax({word.size(), candidate.size()});
    if (longer - shorter >= least) continue;
    const std::size_t letters = distance(word, candidate);
    if (letters >= least) continue;
    least = letters;
    best = candidate;
  }
  return best;
}

}  // namespace vqc
