// The names in C that are made from those of the document.

#include "vqc/cmd/model/c_names.h"

#include <string_view>

#include "libkel/keltype.h"

namespace vqc {

namespace {

bool is_kept(char c) { return kel_is(c, KEL_LETTER | KEL_UNDERSCORE); }

}  // namespace

std::string identifier_base(const Family& family, std::size_t index) {
  const std::string_view name = family.name.view();
  std::size_t size = 0;
  while (size < name.size() && is_kept(name[size])) ++size;
  std::string base(name.substr(0, size));
  return size == name.size() ? base : base + "_" + std::to_string(index);
}

}  // namespace vqc
