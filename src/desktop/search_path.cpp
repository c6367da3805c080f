#include "desktop/search_path.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <string_view>

#include "libkel/installation.h"

namespace vqc {

namespace {

/// Whether a search path names any folder that there is. One that does not says: no resource files.
bool leads_somewhere(std::string_view path) {
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(':'), path.size());
    const std::string_view folder = path.substr(0, path.substr(0, end).find('%'));
    const bool toolkits_own = folder.empty() && end > 0;  // begins with a substitution
    if (toolkits_own || access(std::string(folder).c_str(), F_OK) == 0) return true;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return false;
}

/// A folder for each language, as the locale names it in full or in short, and one for all others.
std::string resource_files(const std::string& root) {
  const std::string folder = root + "/lib/X11/";
  return folder + "%L/%T/%N%S:" + folder + "%l/%T/%N%S:" + folder + "%T/%N%S";
}

}  // namespace

void use_installation() {
  const std::string root = installation();
  const char* path = std::getenv("XFILESEARCHPATH");
  if (!path) {
    setenv("XFILESEARCHPATH", ("%D:" + resource_files(root)).c_str(), 1);
  } else if (leads_somewhere(path)) {
    setenv("XFILESEARCHPATH", (std::string(path) + ":" + resource_files(root)).c_str(), 1);
  }
  setenv("VQROOT", root.c_str(), 0);
}

}  // namespace vqc
