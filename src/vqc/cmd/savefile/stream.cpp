#include "vqc/cmd/savefile/stream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace {

constexpr int kNotOpen = -1;
constexpr mode_t kReadWriteAll = 0666;  // less what the user's umask takes

bool is_folder(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::unique_ptr<Stream> Stream::open(const char* path, const char* mode) {
  const int flags = *mode == 'w' ? O_WRONLY | O_CREAT | O_TRUNC : O_RDONLY;
  const int descriptor = ::open(path, flags | O_CLOEXEC, kReadWriteAll);
  if (descriptor == kNotOpen) return nullptr;
  std::unique_ptr<Stream> stream(new Stream(descriptor));
  if (!is_folder(descriptor)) return stream;
  stream.reset();
  errno = EISDIR;  // the system opens a folder, and only refuses to read it
  return nullptr;
}

Stream::Stream(int descriptor) : descriptor_(descriptor), buffer_(new char[kSize + kNulsBehind]) {}

Stream::~Stream() { close(); }

std::string_view Stream::read() {
  ssize_t got = 0;
  do {
    got = ::read(descriptor_, buffer_.get(), kSize);
  } while (got < 0 && errno == EINTR);
  const std::size_t size = got > 0 ? static_cast<std::size_t>(got) : 0;
  std::fill_n(buffer_.get() + size, kNulsBehind, '\0');
  return {buffer_.get(), size};
}

bool Stream::close() {
  if (descriptor_ == kNotOpen) return true;
  const bool flushed = flush();
  const int flush_error = errno;
  const bool closed = ::close(descriptor_) == 0;
  descriptor_ = kNotOpen;
  if (!flushed) errno = flush_error;
  return flushed && closed;
}

bool Stream::write_through(std::string_view text) {
  const bool flushed = flush();
  if (text.size() < kSize) return write(text) && flushed;
  return write_all(text) && flushed;
}

bool Stream::flush() {
  const std::size_t used = used_;
  used_ = 0;
  return write_all({buffer_.get(), used});
}

bool Stream::write_all(std::string_view text) const {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor_, text.data(), text.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}
