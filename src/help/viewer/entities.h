#ifndef HELP_VIEWER_ENTITIES_H
#define HELP_VIEWER_ENTITIES_H

// The characters that mean something in a page, and what is written there instead of them.

#include <string>
#include <string_view>

#include "libkel/utf8.h"

namespace help {

/// The text with entities for "&", "<" and ">".
std::string escape(std::string_view text);

/// The character at the front of such a text, which is not empty, and the bytes that it takes there.
vqc::Decoded read_escaped(std::string_view text);

/// A page with each of its entities as a number and a semicolon, such as "&#228;". One of no character becomes
/// REPLACEMENT, and what is no known entity stands for itself.
std::string number_entities(std::string_view html);

}  // namespace help

#endif
