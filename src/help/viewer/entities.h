#ifndef HELP_VIEWER_ENTITIES_H
#define HELP_VIEWER_ENTITIES_H

#include <string>
#include <string_view>

/// A text of a page with the characters that its entities stand for. What is no known entity stands for itself.
std::string decoded(std::string_view text);

/// The text with entities for the characters that mean something in a page.
std::string escaped(std::string_view text);

#endif
