// Open files.

#include "libkel/descriptor.h"

#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace vqc {

namespace {

/// Goes on when a signal comes in between.
bool change_lock(int descriptor, int operation) {
  int result = 0;
  do {
    result = flock(descriptor, operation);
  } while (result != 0 && errno == EINTR);
  return result == 0;
}

}  // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  std::swap(number_, other.number_);
  return *this;
}

bool Descriptor::write(std::string_view text) const {
  while (!text.empty()) {
    const ssize_t written = ::write(number_, text.data(), text.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool Descriptor::is_at(const char* path, int folder) const {
  struct stat open_file {};
  struct stat there {};
  return fstat(number_, &open_file) == 0 && fstatat(folder, path, &there, AT_SYMLINK_NOFOLLOW) == 0 &&
         open_file.st_dev == there.st_dev && open_file.st_ino == there.st_ino;
}

void Descriptor::lock() const { change_lock(number_, LOCK_EX); }

bool Descriptor::try_lock() const { return change_lock(number_, LOCK_EX | LOCK_NB); }

bool Descriptor::is_locked() const {
  if (!change_lock(number_, LOCK_SH | LOCK_NB)) return true;
  change_lock(number_, LOCK_UN);
  return false;
}

bool Descriptor::close() {
  const int number = std::exchange(number_, kNone);
  return number < 0 || ::close(number) == 0;
}

}  // namespace vqc
