#ifndef LIBKEL_UNIFIED_DIFF_H
#define LIBKEL_UNIFIED_DIFF_H

#include <optional>
#include <string>
#include <string_view>

namespace vqc {

/// What a file's text changes from and to, as `patch -p1` and `git apply` take it; "" when nothing changes. No old text
/// is that of a new file.
std::string unified_diff(std::string_view path, std::optional<std::string_view> old_text, std::string_view new_text);

}  // namespace vqc

#endif
