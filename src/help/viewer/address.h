#ifndef HELP_VIEWER_ADDRESS_H
#define HELP_VIEWER_ADDRESS_H

// Where links lead.

#include <optional>
#include <string>
#include <string_view>

namespace help {

/// A page, and the place in it; "" for its beginning.
struct Address {
  std::string file;
  std::string place = {};

  bool operator==(const Address&) const = default;
};

/// Where a link on the page `from` leads: to a place of that page, or to a file beside it or in a folder on the way.
/// Nothing when it leads elsewhere, into the web for one.
std::optional<Address> resolve_link(const std::string& from, std::string_view link);

/// The file of that name in the folder that a page is in.
std::string replace_name(const std::string& page, std::string_view name);

}  // namespace help

#endif
