// Where text goes: a file, or a string.

#include "libkel/sink.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace vqc {

namespace {

constexpr int kNotOpen = -1;
constexpr mode_t kReadWriteAll = 0666;  // less what the user's umask takes

}  // namespace

Sink::Sink() : buffer_(new char[kSize]) {}

bool Sink::finish() {
  note(take({buffer_.get(), std::exchange(used_, 0)}));
  note(end());
  if (error_ != 0) errno = error_;
  return error_ == 0;
}

void Sink::write_through(std::string_view text) {
  note(take({buffer_.get(), std::exchange(used_, 0)}));
  if (text.size() > kSize) return note(take(text));
  write(text);
}

void Sink::note(bool success) {
  if (!success && error_ == 0) error_ = errno;
}

std::unique_ptr<FileSink> FileSink::open(const char* path) {
  const int descriptor = ::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kReadWriteAll);
  return descriptor == kNotOpen ? nullptr : std::unique_ptr<FileSink>(new FileSink(descriptor, true));
}

std::unique_ptr<FileSink> FileSink::to_descriptor(int descriptor) {
  return std::unique_ptr<FileSink>(new FileSink(descriptor, false));
}

FileSink::~FileSink() { end(); }

bool FileSink::take(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor_, text.data(), text.size());
    if (written < 0 && errno != EINTR) return false;
    if (written > 0) text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool FileSink::end() {
  const int descriptor = std::exchange(descriptor_, kNotOpen);
  return descriptor == kNotOpen || !closes_ || close(descriptor) == 0;
}

bool StringSink::take(std::string_view text) {
  text_ += text;
  return true;
}

}  // namespace vqc
