#ifndef VQC_CMD_EDITORS_GENERATED_PATHS_H
#define VQC_CMD_EDITORS_GENERATED_PATHS_H

#include <optional>
#include <string>

#include "vqc/cmd/generate/generate.h"

namespace vqc::editors {

/// Where the document's generated file of a kind is: under the name that the document remembers, or that a run without
/// a user gives it. A name without a folder is one in the document's. Nothing for a document that has neither.
std::optional<std::string> generated_path(FileKind kind);

}  // namespace vqc::editors

#endif
