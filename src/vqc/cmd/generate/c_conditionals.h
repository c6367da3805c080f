#ifndef VQC_CMD_GENERATE_C_CONDITIONALS_H
#define VQC_CMD_GENERATE_C_CONDITIONALS_H

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "vqc/cmd/generate/c_scanner.h"

namespace vqc::c {

/// Tokens, from `first` up to and with `last`.
struct TokenRange {
  std::size_t first;
  std::size_t last;

  bool holds(std::size_t token) const { return first <= token && token <= last; }
};

enum class Step : std::uint8_t { begin, further, end };  // #if..., #else or #elif..., #endif

/// A directive of a conditional.
struct Branch {
  std::size_t token;
  Step step;
  std::size_t conditional;
};

/// What stands from an #if to its #endif.
struct Conditional {
  TokenRange tokens;
  bool never = false;        // it is an "#if 0"
  bool has_further = false;  // it has an #else or an #elif
};

struct Conditionals {
  std::vector<Conditional> all;     // in the order in which they begin
  std::vector<Branch> branches;     // in the order of the text
  std::optional<Fault> fault = {};  // one that does not close, or is closed without having begun

  /// The first branch at a token or behind it.
  std::span<const Branch> branches_from(std::size_t token) const;
};

Conditionals find_conditionals(const Code& code);

/// The tokens that are compiled where every conditional takes its first branch, but that of an "#if 0". Without
/// comments and directives.
std::vector<std::size_t> followed_tokens(const Code& code, const Conditionals& conditionals, TokenRange range);

/// The range with all of each conditional of which it has a part. Nothing when that brings along more than comments.
std::optional<TokenRange> with_whole_conditionals(const Code& code, const Conditionals& conditionals, TokenRange range);

}  // namespace vqc::c

#endif
