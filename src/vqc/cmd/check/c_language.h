#ifndef VQC_CMD_CHECK_C_LANGUAGE_H
#define VQC_CMD_CHECK_C_LANGUAGE_H

#include <string_view>

namespace vqc {

/// Whether a text is a keyword of C, as the generated files are compiled (up to C17, with the extensions of GNU).
bool is_c_keyword(std::string_view text);

/// Whether a text has the form of an identifier of C; a keyword has it too.
bool is_identifier(std::string_view text);

/// Why a text can be no expression of C; empty if nothing speaks against it. Macros are not known, so that much has to
/// be taken for one that is none.
std::string_view fault_of_expression(std::string_view text);

}  // namespace vqc

#endif
