#ifndef VQC_CMD_EDITORS_KIT_COLUMNS_H
#define VQC_CMD_EDITORS_KIT_COLUMNS_H

// Columns in a text of which each character is as wide as one or two others.

#include <cstddef>
#include <string>

namespace vqc::editors {

/// How many columns a text takes.
std::size_t columns_of(const std::string& text);

/// The text with blanks behind it, or before it, up to so many columns.
std::string to_the_left(const std::string& text, std::size_t columns);
std::string to_the_right(const std::string& text, std::size_t columns);

}  // namespace vqc::editors

#endif
