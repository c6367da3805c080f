// Where text goes: a file, or a string.

#include "libkel/sink.h"

#include <fcntl.h>

#include <cerrno>
#include <utility>

namespace vqc {

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
  Descriptor file(::open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kReadWriteAll));
  return file ? std::unique_ptr<FileSink>(new FileSink(std::move(file))) : nullptr;
}

std::unique_ptr<FileSink> FileSink::to_descriptor(int descriptor) {
  return std::unique_ptr<FileSink>(new FileSink(Descriptor(fcntl(descriptor, F_DUPFD_CLOEXEC, 0))));
}

bool StringSink::take(std::string_view text) {
  text_ += text;
  return true;
}

}  // namespace vqc
