// A text that is read whole, and the places in it.

#include "libkel/source.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "libkel/utf8.h"

namespace vqc {

namespace {

/// Bytes that grow while they are read.
struct Growing {
  explicit Growing(std::size_t first_room) : bytes(first_room), room(first_room) {}

  Bytes bytes;
  std::size_t size = 0;
  std::size_t room;

  void make_room(std::size_t wanted) {
    Bytes larger(wanted);
    std::copy_n(bytes.get(), size, larger.get());
    bytes = std::move(larger);
    room = wanted;
  }
};

/// How many bytes a file says it has; pipes and the like say nothing.
std::size_t size_of(int descriptor) {
  struct stat status {};
  return fstat(descriptor, &status) == 0 && status.st_size > 0 ? static_cast<std::size_t>(status.st_size) : 0;
}

/// What one read gives: 0 at the end, less on failure.
ssize_t read_some(int descriptor, char* to, std::size_t most) {
  ssize_t got = 0;
  do {
    got = ::read(descriptor, to, most);
  } while (got < 0 && errno == EINTR);
  return got;
}

constexpr std::size_t kLeast = 4096;  // what is left free when a read begins

/// All that a file has. False when it cannot be read; errno says why.
bool read_all(int descriptor, Growing& read) {
  for (;;) {
    if (read.room - read.size < kLeast) read.make_room(read.room * 2);
    const ssize_t got = read_some(descriptor, read.bytes.get() + read.size, read.room - read.size - 1);
    if (got <= 0) return got == 0;
    read.size += static_cast<std::size_t>(got);
  }
}

class CountingSink : public Sink {
 public:
  std::size_t size() const { return size_; }

 private:
  bool take(std::string_view text) override {
    size_ += text.size();
    return true;
  }

  std::size_t size_ = 0;
};

class BytesSink : public Sink {
 public:
  explicit BytesSink(char* to) : to_(to) {}

 private:
  bool take(std::string_view text) override {
    to_ += text.copy(to_, text.size());
    return true;
  }

  char* to_;
};

}  // namespace

std::shared_ptr<const Source> Source::read(const char* path) {
  const int descriptor = open(path, O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  auto source = read(descriptor, path);
  const int error = errno;
  close(descriptor);
  errno = error;
  return source;
}

std::shared_ptr<const Source> Source::read_regular(const char* path) {
  struct stat file {};
  const bool is_regular = stat(path, &file) == 0 && S_ISREG(file.st_mode);
  return is_regular ? read(path) : nullptr;
}

std::shared_ptr<const Source> Source::read(int descriptor, std::string name) {
  Growing read(size_of(descriptor) + kLeast);
  if (!read_all(descriptor, read)) return nullptr;
  return std::shared_ptr<const Source>(new Source(std::move(name), std::move(read.bytes), read.size));
}

std::shared_ptr<const Source> Source::from_text(std::string_view text, std::string name) {
  Bytes bytes(text.size() + 1);
  text.copy(bytes.get(), text.size());
  return std::shared_ptr<const Source>(new Source(std::move(name), std::move(bytes), text.size()));
}

std::shared_ptr<const Source> Source::written_by(const WriteText& write) {
  CountingSink count;
  write(count);
  count.finish();
  Bytes bytes(count.size() + 1);
  BytesSink out(bytes.get());
  write(out);
  out.finish();
  return std::shared_ptr<const Source>(new Source({}, std::move(bytes), count.size()));
}

Source::Source(std::string name, Bytes bytes, std::size_t size)
    : name_(std::move(name)), bytes_(std::move(bytes)), size_(size) {
  bytes_.get()[size_] = '\0';
}

const std::vector<std::size_t>& Source::line_starts() const {
  if (!line_starts_.empty()) return line_starts_;
  line_starts_.push_back(0);
  for (std::size_t i = text().find('\n'); i != std::string_view::npos; i = text().find('\n', i + 1)) {
    line_starts_.push_back(i + 1);
  }
  return line_starts_;
}

Place Source::place(std::size_t offset) const {
  const auto& starts = line_starts();
  const auto after = std::ranges::upper_bound(starts, std::min(offset, size_));
  Counted counted{*(after - 1), {.line = static_cast<std::size_t>(after - starts.begin())}};
  if (counted_.place.line == counted.place.line && counted_.offset <= offset) counted = counted_;
  for (std::string_view before = text({counted.offset, offset}); !before.empty(); ++counted.place.column) {
    before.remove_prefix(first_character(before).size);
  }
  const bool in_character = offset < size_ && (static_cast<unsigned char>(text()[offset]) & 0xC0U) == 0x80U;
  if (!in_character) counted_ = {offset, counted.place};
  return counted.place;
}

std::size_t Source::offset_of_line(std::size_t number) const {
  const auto& starts = line_starts();
  return number == 0 || number > starts.size() ? size_ : starts[number - 1];
}

std::string_view Source::line(std::size_t number) const {
  const std::string_view rest = text().substr(offset_of_line(number));
  return rest.substr(0, rest.find('\n'));
}

}  // namespace vqc
