#ifndef VQC_CMD_GENERATE_INCLUDES_H
#define VQC_CMD_GENERATE_INCLUDES_H

#include <span>
#include <string>
#include <vector>

#include "vqc/cmd/generate/walk.h"

namespace vqc {

/// The name the program goes by in what it generates.
inline constexpr std::string_view kProgramName = "vqconfig";

inline constexpr Template include_line = "#include <@FILE@>\n";

// The beginning of every generated file: who made it, the fixed includes, and the headers of the families.

void write_config_includes(Run& run);
void write_code_includes(Run& run);

/// The headers of the families that are files for the current directory, each once. The others stand before them in
/// the generated files.
std::vector<std::string> found_headers(std::span<const Family* const> families);

}  // namespace vqc

#endif
