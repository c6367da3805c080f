#include "libkel/installation.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

namespace {

std::string folder_of(const std::string& path) { return path.substr(0, path.rfind('/')); }

/// Where the program's files lie: what holds its `bin` folder, or the build folder that it lies in itself.
std::string installation() {
  const std::unique_ptr<char, decltype(&std::free)> program(realpath("/proc/self/exe", nullptr), std::free);
  const std::string folder = folder_of(program ? program.get() : "");
  return folder.ends_with("/bin") ? folder_of(folder) : folder;
}

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

std::string installed(const char* file) { return installation() + '/' + file; }
