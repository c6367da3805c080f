// What generated files are made from, for make and ninja.

#include "libkel/depfile.h"

#include <cstddef>
#include <string_view>

namespace vqc {

namespace {

bool can_be_named(std::string_view path) { return !path.empty() && path.find_first_of("\r\n") == path.npos; }

/// A path as a rule has it. What make and ninja both take specially is marked; backslashes count only before that.
std::string escaped(std::string_view path) {
  std::string escaped;
  std::size_t backslashes = 0;
  for (const char c : path) {
    const bool marked = c == ' ' || c == '\t' || c == '#' || c == ':';
    if (marked) escaped.append(backslashes + 1, '\\');
    if (c == '$') escaped += '$';
    escaped += c;
    backslashes = c == '\\' ? backslashes + 1 : 0;
  }
  return escaped.append(backslashes, '\\');
}

/// The paths that can be named, each between two texts.
std::string listed(std::string_view before, std::span<const std::string> paths, std::string_view after) {
  std::string list;
  for (const std::string& path : paths) {
    if (can_be_named(path)) list.append(before).append(escaped(path)).append(after);
  }
  return list;
}

}  // namespace

std::string depfile(std::span<const std::string> targets, std::span<const std::string> sources,
                    std::span<const std::string> headers) {
  std::string made = listed("", targets, " ");
  if (made.empty()) return "";
  made.back() = ':';
  constexpr std::string_view kNextLine = " \\\n ";
  return made + listed(kNextLine, sources, "") + listed(kNextLine, headers, "") + "\n" + listed("\n", headers, ":\n");
}

}  // namespace vqc
