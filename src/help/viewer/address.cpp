// Follows links from page to page.

#include "help/viewer/address.h"

#include <charconv>
#include <filesystem>

namespace help {

namespace {

/// The character that "%41" stands for; nothing when the text does not begin like that.
std::optional<char> read_escape(std::string_view escape) {
  unsigned code = 0;
  if (escape.size() < 3 || escape[0] != '%') return std::nullopt;
  const auto [end, error] = std::from_chars(escape.data() + 1, escape.data() + 3, code, 16);
  if (error != std::errc() || end != escape.data() + 3 || code == 0) return std::nullopt;
  return static_cast<char>(code);
}

std::string unescape(std::string_view link) {
  std::string result;
  for (std::size_t i = 0; i < link.size(); ++i) {
    const std::optional<char> character = read_escape(link.substr(i, 3));
    result += character.value_or(link[i]);
    if (character) i += 2;
  }
  return result;
}

/// Whether a link names a scheme, a host or a path from the root.
bool leads_away(std::string_view link) {
  return link.starts_with('/') || link.substr(0, link.find_first_of("/?#")).find(':') != std::string_view::npos;
}

}  // namespace

std::optional<Address> resolve_link(const std::string& from, std::string_view link) {
  if (leads_away(link)) return std::nullopt;
  const std::size_t hash = link.find('#');
  const std::string place = hash == std::string_view::npos ? "" : unescape(link.substr(hash + 1));
  const std::string_view path = link.substr(0, link.find_first_of("?#"));
  return Address{path.empty() ? from : replace_name(from, unescape(path)), place};
}

std::string replace_name(const std::string& page, std::string_view name) {
  return (std::filesystem::path(page).parent_path() / name).lexically_normal();
}

}  // namespace help
