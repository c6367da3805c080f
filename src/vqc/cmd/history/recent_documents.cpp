// The documents that were used last, a path in each line.

#include "vqc/cmd/history/recent_documents.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string>

#include "vqc/cmd/history/kept_path.h"
#include "vqc/cmd/history/private_folder.h"

namespace vqc {

namespace {

namespace fs = std::filesystem;

constexpr const char* kFile = "recent";
constexpr const char* kLock = "recent.lock";

/// What a file says, without the lines that are no path.
std::vector<fs::path> paths_in(const PrivateFolder& folder) {
  std::vector<fs::path> paths;
  std::istringstream lines(folder ? folder.text(kFile).value_or("") : "");
  for (std::string line; std::getline(lines, line) && paths.size() < RecentDocuments::kMost;) {
    const std::optional<fs::path> path = path_of_text(line);
    if (path && path->is_absolute()) paths.push_back(*path);
  }
  return paths;
}

std::string text_of(const std::vector<fs::path>& paths) {
  std::string text;
  for (const fs::path& path : paths) text += text_of_path(path) + '\n';
  return text;
}

}  // namespace

std::vector<fs::path> RecentDocuments::paths() const { return paths_in(PrivateFolder::open(folder_)); }

std::error_code RecentDocuments::add(const fs::path& document) const {
  const fs::path added = kept_path(document);
  const PrivateFolder folder = PrivateFolder::make(folder_);
  const Descriptor lock = folder.lock(kLock);
  if (!lock) return last_error();
  std::vector<fs::path> paths = paths_in(folder);
  if (!paths.empty() && paths.front() == added) return {};
  std::erase(paths, added);
  paths.insert(paths.begin(), added);
  paths.resize(std::min(paths.size(), kMost));
  return folder.put(kFile, text_of(paths)) ? std::error_code() : last_error();
}

}  // namespace vqc
