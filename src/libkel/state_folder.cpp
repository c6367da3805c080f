// The user's state folder.

#include "libkel/state_folder.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>

namespace vqc {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kUserAlone = 0700;

/// The path that a variable of the environment gives; empty where it gives none from the root.
fs::path path_in(const char* variable) {
  const char* path = std::getenv(variable);
  return path && *path == '/' ? fs::path(path) : fs::path();
}

}  // namespace

fs::path state_folder() {
  if (const fs::path state = path_in("XDG_STATE_HOME"); !state.empty()) return state / "vqconfig";
  const fs::path home = path_in("HOME");
  return home.empty() ? home : home / ".local/state/vqconfig";
}

std::error_code make_private_folder(const fs::path& folder) {
  fs::path made;
  for (const fs::path& part : folder) {
    made /= part;
    if (mkdir(made.c_str(), kUserAlone) != 0 && errno != EEXIST) return {errno, std::generic_category()};
  }
  std::error_code error;
  if (fs::is_directory(folder, error)) return {};
  return error ? error : make_error_code(std::errc::not_a_directory);
}

}  // namespace vqc
