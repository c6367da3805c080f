#ifndef SUPPORT_FILES_H
#define SUPPORT_FILES_H

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include <unistd.h>

// Files that tests read and write.

inline std::string read_file(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

inline void write_file(const std::string& path, std::string_view text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  if (!file.flush()) throw std::runtime_error("cannot write " + path);
}

/// A new empty folder, which goes with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vqconfig-test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a temporary folder");
    path_ = name;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& path() const { return path_; }
  /// The path of `leaf` in it.
  std::string operator/(std::string_view leaf) const { return path_ + "/" + std::string(leaf); }
  /// The same, after writing `text` there.
  std::string with(std::string_view leaf, std::string_view text) const {
    std::string path = *this / leaf;
    write_file(path, text);
    return path;
  }

 private:
  std::string path_;
};

/// Works in a folder for a while.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::string& path) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(path);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;
  ~WorkingFolder() { std::filesystem::current_path(before_); }

 private:
  std::filesystem::path before_;
};

#endif
