#ifndef VQC_CMD_HISTORY_KEPT_PATH_H
#define VQC_CMD_HISTORY_KEPT_PATH_H

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vqc {

/// The path of a file from the root and without links, be the file there or not: it is the same for all that lead to
/// that file. Empty for an empty one.
std::filesystem::path kept_path(const std::filesystem::path& path);

/// A path as ASCII text, whatever bytes it has: "%" and two hexadecimal digits stand for each that is no printable
/// character, and for a per-cent sign.
std::string text_of_path(const std::filesystem::path& path);

/// The path that a text stands for; nothing when it stands for none.
std::optional<std::filesystem::path> path_of_text(std::string_view text);

}  // namespace vqc

#endif
