#ifndef VQC_CMD_CHECK_CHECK_OPTIONS_H
#define VQC_CMD_CHECK_CHECK_OPTIONS_H

#include <string>
#include <vector>

namespace vqc {

/// What a check goes by beside the document.
struct CheckOptions {
  std::vector<std::string> include_folders;  // in which the compiler finds headers; without any, none is looked for
  std::string document_folder;               // in which the document lies; empty for the working folder
};

}  // namespace vqc

#endif
