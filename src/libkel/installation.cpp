#include "libkel/installation.h"

#include <cstdlib>
#include <memory>

namespace vqc {

namespace {

std::string folder_of(const std::string& path) { return path.substr(0, path.rfind('/')); }

}  // namespace

// Programs lie in folders below it, or in the build folder itself.
std::string installation() {
  const std::unique_ptr<char, decltype(&std::free)> program(realpath("/proc/self/exe", nullptr), std::free);
  const std::string folder = folder_of(program ? program.get() : "");
  return folder.ends_with("/bin") || folder.ends_with("/libexec") ? folder_of(folder) : folder;
}

std::string installed(const char* file) { return installation() + '/' + file; }

}  // namespace vqc
