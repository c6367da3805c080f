// Open files.

#include "libkel/descriptor.h"

#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace vqc {

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

bool Descriptor::close() {
  const int number = std::exchange(number_, kNone);
  return number < 0 || ::close(number) == 0;
}

}  // namespace vqc
