#ifndef VQC_CMD_MODEL_C_NAMES_H
#define VQC_CMD_MODEL_C_NAMES_H

#include <cstddef>
#include <string>

#include "vqc/cmd/model/records.h"

namespace vqc {

/// What the identifiers of a family begin with: its name if that is letters and underscores only, else what comes
/// before the first other character (a digit too) and the family's number among those that take part.
std::string identifier_base(const Family& family, std::size_t index);

}  // namespace vqc

#endif
