#ifndef LIBKEL_NEAREST_H
#define LIBKEL_NEAREST_H

#include <span>
#include <string_view>

namespace vqc {

/// The candidate that a misspelt word was perhaps meant to be: the nearest by single letters that are missing, too
/// many, wrong or swapped. Empty when none is near.
std::string_view nearest(std::string_view word, std::span<const std::string_view> candidates);

}  // namespace vqc

#endif
