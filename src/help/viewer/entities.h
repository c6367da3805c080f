#ifndef HELP_VIEWER_ENTITIES_H
#define HELP_VIEWER_ENTITIES_H

// The characters that mean something in a page, and what is written there instead of them.

#include <string>
#include <string_view>

namespace help {

/// A text of a page with the characters that its entities stand for. What is no known entity stands for itself.
std::string decoded(std::string_view text);

/// The text with entities for the characters that mean something in a page.
std::string escaped(std::string_view text);

}  // namespace help

#endif
