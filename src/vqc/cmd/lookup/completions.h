#ifndef VQC_CMD_LOOKUP_COMPLETIONS_H
#define VQC_CMD_LOOKUP_COMPLETIONS_H

#include <string>
#include <vector>

#include "vqc/cmd/model/document.h"
#include "vqc/cmd/savefile/fields.h"

namespace vqc {

/// The names that a document has for values of a kind, in alphabetical order, each once: what stands in fields of the
/// kind, and the popups or headers that the document lists.
std::vector<std::string> completions(const Document& document, ValueKind kind);

/// The names of its pages, in alphabetical order.
std::vector<std::string> page_completions(const Document& document);

}  // namespace vqc

#endif
