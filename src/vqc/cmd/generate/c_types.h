#ifndef VQC_CMD_GENERATE_C_TYPES_H
#define VQC_CMD_GENERATE_C_TYPES_H

#include <span>
#include <string>

#include "vqc/cmd/generate/c_scanner.h"

namespace vqc::c {

/// The types that a head or a declaration states, written the same way however they are written there: without names,
/// layout and attributes, as "char*(char*,Widget)". Types that stubs do not have come out as something else, or as "?".
/// `head` are the numbers of its tokens, `name` is the one of the function's name.
std::string signature(const Code& code, std::span<const std::size_t> head, std::size_t name);

}  // namespace vqc::c

#endif
