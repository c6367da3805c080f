#include "vqc/cmd/generate/file_finder.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>

#include "libkel/leafnm.h"

namespace {

constexpr int kWorthListing = 64;  // so many questions cost about as much as listing a folder

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string lower_case(std::string_view name) {
  std::string result(name.size(), '\0');
  std::transform(name.begin(), name.end(), result.begin(), lower);
  return result;
}

}  // namespace

bool FileFinder::exists(const char* path) {
  const std::string_view leaf = leafnm(path);
  if (asked_ >= kWorthListing && !leaf.empty()) {
    const Folder& in = folder({path, static_cast<std::size_t>(leaf.data() - path)});
    if (in.listed && !in.names.contains(lower_case(leaf))) return false;
  }
  ++asked_;
  return access(path, F_OK) == 0;
}

const FileFinder::Folder& FileFinder::folder(std::string_view path) {
  const auto [entry, is_new] = folders_.try_emplace(std::string(path));
  Folder& result = entry->second;
  if (!is_new) return result;
  const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(path.empty() ? "." : entry->first.c_str()), closedir);
  result.listed = stream || errno == ENOENT || errno == ENOTDIR;
  if (!stream) return result;
  while (const dirent* file = readdir(stream.get())) result.names.insert(lower_case(file->d_name));
  return result;
}
