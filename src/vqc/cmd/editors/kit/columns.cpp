#include "vqc/cmd/editors/kit/columns.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>

namespace vqc::editors {

namespace {

std::string blanks(const std::string& text, std::size_t columns) {
  return std::string(columns - std::min(columns, columns_of(text)), ' ');
}

}  // namespace

std::size_t columns_of(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  const std::size_t length = std::mbstowcs(wide.data(), text.c_str(), wide.size());
  if (length == static_cast<std::size_t>(-1)) return text.size();
  return static_cast<std::size_t>(std::max(wcswidth(wide.data(), length), 0));
}

std::string to_the_left(const std::string& text, std::size_t columns) { return text + blanks(text, columns); }

std::string to_the_right(const std::string& text, std::size_t columns) { return blanks(text, columns) + text; }

}  // namespace vqc::editors
