#ifndef VQC_CMD_GENERATE_C_LINES_H
#define VQC_CMD_GENERATE_C_LINES_H

#include "vqc/cmd/generate/c_scanner.h"

namespace vqc::c {

// Lines as the preprocessor sees them: continued ones are one, and there is no end of a line in a token.

/// Where the line of a token begins. Nothing when there is more before the token than comments.
std::optional<std::size_t> line_begin(const Code& code, std::size_t token);

/// Behind the line feed of the line of a token, whatever follows there.
std::size_t line_end(const Code& code, std::size_t token);

/// Whether nothing but comments follows a token on its line.
bool ends_line(const Code& code, std::size_t token);

/// Whether what is put in at a place begins a line.
bool begins_line(std::string_view text, std::size_t place);

/// Whether a token is all that stands on its line.
bool is_line(const Code& code, std::size_t token);

}  // namespace vqc::c

#endif
