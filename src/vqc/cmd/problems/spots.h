#ifndef VQC_CMD_PROBLEMS_SPOTS_H
#define VQC_CMD_PROBLEMS_SPOTS_H

#include <optional>
#include <span>
#include <vector>

#include "libkel/diagnostics.h"
#include "vqc/cmd/model/document.h"
#include "vqc/cmd/model/part.h"
#include "vqc/cmd/savefile/places.h"

namespace vqc {

/// The spot of each finding: the last name or value of the document that begins before the finding ends. None for what
/// stands before all of them.
std::vector<std::optional<Spot>> spots_of(std::span<const Finding> findings, const Document& document,
                                          const Places& places);

}  // namespace vqc

#endif
