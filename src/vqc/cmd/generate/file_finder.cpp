#include "vqc/cmd/generate/file_finder.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "libkel/leafnm.h"

namespace {

constexpr int kWorthListing = 64;  // so many questions about one folder cost about as much as listing it

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string lower_case(std::string_view name) {
  std::string result(name.size(), '\0');
  std::transform(name.begin(), name.end(), result.begin(), lower);
  return result;
}

bool is_missing(const std::string& folder) {
  return !folder.empty() && access(folder.c_str(), F_OK) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

}  // namespace

bool FileFinder::exists(const char* path) {
  const std::string_view leaf = leafnm(path);
  auto& [in, folder] = folder_named({path, static_cast<std::size_t>(leaf.data() - path)});
  if (++folder.asked == 1) folder.listed = is_missing(in);
  if (folder.asked == kWorthListing && !folder.listed) list(folder, in.empty() ? "." : in.c_str());
  const bool ruled_out = folder.listed && (folder.names.empty() || !folder.names.contains(lower_case(leaf)));
  return (!ruled_out || leaf.empty()) && access(path, F_OK) == 0;
}

/// Mostly that is the same as the last.
FileFinder::Folders::value_type& FileFinder::folder_named(std::string_view name) {
  if (!last_ || last_->first != name) last_ = &*folders_.try_emplace(std::string(name)).first;
  return *last_;
}

/// A folder that cannot be read to its end counts as not listed.
void FileFinder::list(Folder& folder, const char* path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(path), closedir);
  if (!stream) return;
  errno = 0;
  while (const dirent* file = readdir(stream.get())) folder.names.insert(lower_case(file->d_name));
  folder.listed = errno == 0;
}
