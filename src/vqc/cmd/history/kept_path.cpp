// Paths as they are kept in files.

#include "vqc/cmd/history/kept_path.h"

#include <nettle/base16.h>

#include <array>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace vqc {

namespace fs = std::filesystem;

fs::path kept_path(const fs::path& path) {
  if (path.empty()) return path;
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  const fs::path canonical = fs::weakly_canonical(absolute, error);
  return error ? absolute.lexically_normal() : canonical;
}

namespace {

bool is_plain(char c) { return c > ' ' && c < '\x7F' && c != '%'; }

/// The byte that "%" and two hexadecimal digits stand for, at the beginning of a text.
std::optional<char> encoded_byte(std::string_view text) {
  unsigned byte = 0;
  if (text.size() < 3 || text[0] != '%') return std::nullopt;
  const auto [end, error] = std::from_chars(text.data() + 1, text.data() + 3, byte, 16);
  if (error != std::errc() || end != text.data() + 3) return std::nullopt;
  return static_cast<char>(byte);
}

}  // namespace

std::string text_of_path(const fs::path& path) {
  std::string text;
  for (const char c : path.native()) {
    std::array<char, 3> encoded = {'%'};
    base16_encode_single(&encoded[1], static_cast<unsigned char>(c));
    text.append(is_plain(c) ? std::string_view(&c, 1) : std::string_view(encoded.data(), encoded.size()));
  }
  return text;
}

std::optional<fs::path> path_of_text(std::string_view text) {
  std::string path;
  while (!text.empty()) {
    const bool plain = is_plain(text.front());
    const std::optional<char> byte = plain ? text.front() : encoded_byte(text);
    if (!byte) return std::nullopt;
    path += *byte;
    text.remove_prefix(plain ? 1 : 3);
  }
  return path;
}

}  // namespace vqc
