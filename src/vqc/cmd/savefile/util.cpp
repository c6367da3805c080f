#include "vqc/cmd/savefile/util.h"

#include <array>
#include <charconv>
#include <cstring>
#include <string>

#include "libkel/message.h"

namespace {

/// `text` with each "%%" made one, as a formatted printer would print it.
std::string with_single_percents(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += text[i];
    if (text.substr(i, 2) == "%%") ++i;
  }
  return result;
}

}  // namespace

int report_write_failure() {
  error_show_1s("file_write_fail", system_errmsg());
  return 0;
}

std::unique_ptr<Stream> openfile(const char* path, const char* mode) {
  std::unique_ptr<Stream> stream = path && mode ? Stream::open(path, mode) : nullptr;
  if (!stream) error_show_2s("file_open_fail", path, system_errmsg());
  return stream;
}

int closefile(Stream& stream) { return stream.close() ? 1 : report_write_failure(); }

int charout(Stream* stream, const char* text) {
  return text ? charout(stream, std::string_view(text)) : stream != nullptr;
}

int charout(Stream* stream, std::string_view text) {
  if (!stream) return 0;
  const bool plain = text.empty() || std::memchr(text.data(), '%', text.size()) == nullptr;
  return rawout(stream, plain ? text : with_single_percents(text));
}

int charout_1s(Stream* stream, const char* format, const char* argument) {
  if (!format || !argument) return 0;
  std::string text = format;
  const std::size_t place = text.find("%s");
  if (place != std::string::npos) text.replace(place, 2, argument);
  return charout(stream, text);
}

int strout(Stream* stream, const char* text) {
  return charout(stream, "'") && charout(stream, text) && charout(stream, "'");
}

int stringout(Stream* stream, const char* text) {
  return charout(stream, "\"") && charout(stream, text) && charout(stream, "\"");
}

int boolout_bc(Stream* stream, bool flag, const char* keyword, bool default_flag) {
  if (flag == default_flag) return 0;
  charout_1s(stream, "\t%s=", keyword);
  boolout(stream, flag);
  charout(stream, "\n");
  return 1;
}

int intout(Stream* stream, int value) {
  if (value == -1) return rawout(stream, "-1");  // as most numbers are, or else have one digit
  if (value >= 0 && value <= 9) return rawout(stream, {&"0123456789"[value], 1});
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
  return rawout(stream, {digits.begin(), end});
}

int ptrout(Stream* stream, const char* text) { return rawout(stream, text ? text : "0"); }

int ptrsfxout(Stream* stream, const char* text, const char* suffix) {
  if (!text) return rawout(stream, "0");
  return rawout(stream, text) && rawout(stream, suffix);
}
