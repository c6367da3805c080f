#ifndef VQC_TOOL_CHECKED_DOCUMENT_H
#define VQC_TOOL_CHECKED_DOCUMENT_H

#include <memory>
#include <string>
#include <vector>

#include "libkel/diagnostics.h"
#include "libkel/source.h"
#include "vqc/cmd/model/document.h"

namespace vqc {

/// A document that has been read to its end, and all that there is to say about it, in the order of its text.
struct CheckedDocument {
  std::shared_ptr<const Source> source;
  Document document;
  std::vector<Finding> findings;
};

/// The file of that name, "-" for standard input, as it is called in messages.
std::string display_name(const std::string& file);

/// Reads and checks a file, or standard input for "-". Null when it cannot be read, which is reported.
std::unique_ptr<CheckedDocument> check_file(const std::string& file, const std::vector<std::string>& include_folders);

}  // namespace vqc

#endif
