// A folder whose files are for the user alone.

#include "vqc/cmd/history/private_folder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>
#include <memory>

#include "libkel/source.h"
#include "libkel/state_folder.h"

namespace vqc {

namespace {

constexpr mode_t kUserAlone = 0600;

/// Where a file is written before it takes its place.
std::string temporary_of(const std::string& name) { return name + ".new"; }

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

PrivateFolder PrivateFolder::open(const std::filesystem::path& path) {
  return PrivateFolder(Descriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)));
}

PrivateFolder PrivateFolder::make(const std::filesystem::path& path) {
  if (const std::error_code error = make_private_folder(path)) {
    errno = error.value();
    return PrivateFolder({});
  }
  return open(path);
}

Descriptor PrivateFolder::file(const std::string& name, int flags) const {
  return Descriptor(
      openat(folder_.get(), name.c_str(), flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, kUserAlone));
}

Descriptor PrivateFolder::lock(const std::string& name) const {
  if (!folder_) return {};
  Descriptor locked = file(name, O_RDWR | O_CREAT);
  if (locked) locked.lock();
  return locked;
}

std::optional<std::string> PrivateFolder::text(const std::string& name) const {
  const Descriptor open_file = file(name, O_RDONLY);
  const auto source = open_file ? Source::read(open_file.get(), name) : nullptr;
  if (!source) return std::nullopt;
  return std::string(source->text());
}

std::optional<std::size_t> PrivateFolder::size(const std::string& name) const {
  struct stat status {};
  const bool is_file =
      fstatat(folder_.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(status.st_mode);
  return is_file ? std::optional(static_cast<std::size_t>(status.st_size)) : std::nullopt;
}

std::vector<std::string> PrivateFolder::names() const {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, CloseFolder> folder(
      fdopendir(openat(folder_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
  while (const dirent* entry = folder ? readdir(folder.get()) : nullptr) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
  }
  return names;
}

bool PrivateFolder::write_beside(const std::string& temporary, const WriteText& write) const {
  Descriptor file_beside = file(temporary, O_WRONLY | O_CREAT | O_EXCL);
  const auto out = file_beside ? FileSink::to_descriptor(file_beside.get()) : nullptr;
  if (!out) return false;
  write(*out);
  return out->finish() && fsync(file_beside.get()) == 0 && file_beside.close();
}

bool PrivateFolder::put(const std::string& name, const WriteText& write) const {
  const std::string temporary = temporary_of(name);
  const int folder = folder_.get();
  unlinkat(folder, temporary.c_str(), 0);  // a killed writer may have left it
  const bool is_put = write_beside(temporary, write) &&
                      renameat(folder, temporary.c_str(), folder, name.c_str()) == 0 &&
                      (fsync(folder) == 0 || errno == EINVAL);  // not all file systems do that for folders
  const int error = errno;
  if (!is_put) unlinkat(folder, temporary.c_str(), 0);
  errno = error;
  return is_put;
}

void PrivateFolder::remove(const std::string& name) const {
  unlinkat(folder_.get(), name.c_str(), 0);
  unlinkat(folder_.get(), temporary_of(name).c_str(), 0);
}

}  // namespace vqc
