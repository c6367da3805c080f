#ifndef VQC_CMD_EDITORS_FACTS_H
#define VQC_CMD_EDITORS_FACTS_H

// What is so with the document, on the right of the status lines.

#include <memory>

#include "vqc/cmd/history/state.h"

namespace vqc::editors {

/// How many problems the document has.
void note_problems(int errors, int warnings);

/// Shows all of it, with what the document says now and what its file says, null where that is unknown.
void show_facts(const std::shared_ptr<const State>& now, const std::shared_ptr<const State>& in_file);

}  // namespace vqc::editors

#endif
