#ifndef VQC_CMD_MODEL_SORT_BY_NAME_H
#define VQC_CMD_MODEL_SORT_BY_NAME_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "vqc/cmd/model/name_of.h"

/// Something to be sorted by its name. The key is the sort's own.
template <class Element>
struct Named {
  std::uint64_t key;
  Element* element;

  const char* name() const { return name_of(*element); }
};

/// How many characters all names begin with alike.
template <class Element>
std::size_t common_prefix(const std::vector<Named<Element>>& all) {
  const char* first = all.front().name();
  std::size_t size = std::strlen(first);
  for (const auto& each : all) {
    size = static_cast<std::size_t>(std::mismatch(first, first + size, each.name()).first - first);
  }
  return size;
}

/// The first eight characters of `name` as a number that sorts as they do; a shorter name is filled up with NULs.
inline std::uint64_t sort_key(const char* name) {
  std::uint64_t key = 0;
  for (int i = 0; i < 8; ++i) {
    key = key << 8 | static_cast<unsigned char>(*name);
    if (*name != '\0') ++name;
  }
  return key;
}

/// Sorts by the bytes of the names. Most pairs of names differ soon after what all have in common, and so in a number.
template <class Element>
void sort_by_name(std::vector<Named<Element>>& all) {
  if (all.empty()) return;
  const std::size_t prefix = common_prefix(all);
  for (auto& each : all) each.key = sort_key(each.name() + prefix);
  std::sort(all.begin(), all.end(), [](const Named<Element>& a, const Named<Element>& b) {
    return a.key != b.key ? a.key < b.key : std::strcmp(a.name(), b.name()) < 0;
  });
}

#endif
