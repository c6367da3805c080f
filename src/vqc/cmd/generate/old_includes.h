#ifndef VQC_CMD_GENERATE_OLD_INCLUDES_H
#define VQC_CMD_GENERATE_OLD_INCLUDES_H

#include "vqc/cmd/generate/old_stubs.h"

namespace vqc {

/// The lines that include those headers of the families which an earlier stubs file includes nowhere.
std::string missing_includes(const Document& document, std::span<const Family* const> families, const OldStubs& old);

/// Where such lines belong: behind the last include at the top of the file.
std::size_t place_for_includes(const OldStubs& old);

}  // namespace vqc

#endif
