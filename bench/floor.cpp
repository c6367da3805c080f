// The least that a generator could do: read the document, split it into words, and write as many bytes to three files
// as the generated ones have. Usage: floor INPUT FILE BYTES [FILE BYTES]...

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

namespace {

using Buffer = std::array<char, 65536>;

constexpr bool in_word(int c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.';
}

constexpr std::array<bool, 256> kInWord = [] {
  std::array<bool, 256> table{};
  for (int c = 0; c < 256; ++c) table[static_cast<std::size_t>(c)] = in_word(c);
  return table;
}();

[[noreturn]] void fail(const char* path) {
  std::perror(path);
  std::exit(1);
}

int open_or_fail(const char* path, int flags) {
  const int file = open(path, flags, 0666);
  if (file < 0) fail(path);
  return file;
}

std::size_t count_words(const char* path) {
  static Buffer buffer;
  const int file = open_or_fail(path, O_RDONLY);
  std::size_t words = 0;
  bool inside = false;
  for (ssize_t got = 0; (got = read(file, buffer.data(), buffer.size())) > 0;) {
    for (const char* c = buffer.data(); c < buffer.data() + got; ++c) {
      const bool now = kInWord[static_cast<unsigned char>(*c)];
      if (now && !inside) ++words;
      inside = now;
    }
  }
  close(file);
  return words;
}

void write_bytes(const char* path, std::size_t bytes) {
  static Buffer buffer;
  buffer.fill('x');
  const int file = open_or_fail(path, O_WRONLY | O_CREAT | O_TRUNC);
  while (bytes > 0) {
    const ssize_t put = write(file, buffer.data(), std::min(bytes, buffer.size()));
    if (put < 0) fail(path);
    bytes -= static_cast<std::size_t>(put);
  }
  if (close(file) != 0) fail(path);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  std::printf("%zu words\n", count_words(argv[1]));
  for (int i = 2; i + 1 < argc; i += 2) write_bytes(argv[i], std::strtoull(argv[i + 1], nullptr, 10));
  return 0;
}
