#ifndef LIBKEL_DEPFILE_H
#define LIBKEL_DEPFILE_H

#include <span>
#include <string>

namespace vqc {

/// The text of a file that tells make and ninja what targets are made from: a rule without a recipe. Each of the
/// headers is also a target of its own, so that the build goes on when it is gone.
///
/// A path with a line break is left out: a rule cannot name it.
std::string depfile(std::span<const std::string> targets, std::span<const std::string> sources,
                    std::span<const std::string> headers);

}  // namespace vqc

#endif
