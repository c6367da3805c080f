#ifndef VQC_CMD_CHECK_HEADER_FILES_H
#define VQC_CMD_CHECK_HEADER_FILES_H

#include <filesystem>
#include <optional>

#include "libkel/text.h"
#include "vqc/cmd/check/check_options.h"

namespace vqc {

/// The file that a header of that name is, in the include folders or beside the document.
std::optional<std::filesystem::path> find_header(const CheckOptions& options, Text name);

/// Whether a header can be included twice: it looks first whether it has been. Unless the file is found, that is what
/// all headers do but bitmaps.
bool has_guard(const CheckOptions& options, Text name);

}  // namespace vqc

#endif
