#ifndef HELP_VIEWER_MARKUP_H
#define HELP_VIEWER_MARKUP_H

// The tags and the texts that a page consists of.

#include <string>
#include <string_view>
#include <vector>

namespace help {

/// A tag of a page with its brackets, a comment, or the text between two of these.
struct Piece {
  enum class Kind { text, tag, comment };

  Kind kind;
  std::string_view source;
};

/// A page in pieces, which, joined, are the page again.
std::vector<Piece> pieces_of(std::string_view page);

/// The name of a tag, in lower case; that of an end tag begins with "/".
std::string name_of(std::string_view tag);

/// The value of a tag's attribute with its entities decoded; "" when it has none.
std::string attribute(std::string_view tag, std::string_view name);

}  // namespace help

#endif
