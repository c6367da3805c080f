#ifndef VQC_CMD_EDITORS_DOCUMENT_CHECK_H
#define VQC_CMD_EDITORS_DOCUMENT_CHECK_H

// Keeps finding what is wrong with the document, while the user goes on.

#include <memory>
#include <optional>
#include <string>

#include "vqc/cmd/history/state.h"
#include "vqc/cmd/problems/find_problems.h"

namespace vqc::editors {

/// The document says that now, and belongs to the file of that path.
void check_document(std::shared_ptr<const State> state, const std::optional<std::string>& path);

/// What has been found last.
const std::shared_ptr<const Problems>& problems_found();
/// Hears when something else has been found; null for nobody.
inline void (*on_problems)() = nullptr;

}  // namespace vqc::editors

#endif
