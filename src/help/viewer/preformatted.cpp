// Lays out the text of a <pre>, line by line.

#include "help/viewer/preformatted.h"

#include "help/viewer/entities.h"
#include "libkel/utf8.h"

using namespace vqc;

namespace help {

namespace {

constexpr std::size_t kTab = 8;
constexpr std::string_view kSpace = "\u00A0";  // the widget leaves none of these out

std::string repeat_space(std::size_t count) {
  std::string result;
  while (count-- > 0) result += kSpace;
  return result;
}

}  // namespace

std::string Preformatted::lay_out(std::string_view words, std::string_view line_end) {
  std::string result;
  while (!words.empty()) {
    const Decoded next = first_character(words);
    if (next.character == '\n') {
      end_line();
    } else if (next.character != '\r') {
      result += end_lines(line_end);
      result += write(next.character, words.substr(0, next.size));
    }
    words.remove_prefix(next.size);
  }
  return result;
}

std::string Preformatted::end_lines(std::string_view line_end) {
  std::string result;
  for (; ends_ > 0; --ends_) {
    result += line_end;
    if (ends_ > 1) result += kSpace;
  }
  has_begun_ = true;
  return result;
}

void Preformatted::end_line() {
  if (has_begun_) ++ends_;
  has_begun_ = true;
  column_ = 0;
}

std::string Preformatted::write(char32_t character, std::string_view bytes) {
  const bool is_tab = character == '\t';
  const std::size_t width = is_tab ? kTab - column_ % kTab : 1;
  column_ += width;
  return is_tab || character == ' ' ? repeat_space(width) : escape(bytes);
}

}  // namespace help
