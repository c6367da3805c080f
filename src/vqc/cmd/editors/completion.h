#ifndef VQC_CMD_EDITORS_COMPLETION_H
#define VQC_CMD_EDITORS_COMPLETION_H

// Fields that name something can be completed from the document.

#include "vqc/cmd/editors/kit/edited_document.h"
#include "vqc/cmd/editors/kit/suggestions.h"
#include "vqc/cmd/lookup/completions.h"

namespace vqc::editors {

/// Lets a field that holds a value of a kind be completed.
inline void complete_value(Widget field, ValueKind kind) {
  complete_from(field, [kind] { return completions(edited_document, kind); });
}

/// The same of one that holds the name of a page.
inline void complete_page(Widget field) {
  complete_from(field, [] { return page_completions(edited_document); });
}

}  // namespace vqc::editors

#endif
