#ifndef VQC_CMD_MODEL_SORT_BY_NAME_H
#define VQC_CMD_MODEL_SORT_BY_NAME_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

#include "vqc/cmd/model/name_of.h"

/// Something to be sorted by its name. The key is the sort's own.
template <class Element>
struct Named {
  std::uint64_t key;
  Element* element;

  const char* name() const { return name_of(*element); }
};

/// How many characters all names have in common from `from`, where each has one or its end.
template <class Element>
std::size_t common_prefix(std::span<const Named<Element>> all, std::size_t from) {
  const char* first = all.front().name() + from;
  std::size_t size = std::strlen(first);
  for (const auto& each : all) {
    size = static_cast<std::size_t>(std::mismatch(first, first + size, each.name() + from).first - first);
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

/// Sorts by the bytes of the names, which differ, from `from` on: by eight characters as a number, and then what these
/// leave together by what follows. Comparing numbers is quick, while the names themselves lie all over the memory.
template <class Element>
void sort_by_name(std::span<Named<Element>> all, std::size_t from = 0) {
  if (all.size() < 2) return;
  from += common_prefix<Element>(all, from);
  for (auto& each : all) each.key = sort_key(each.name() + from);
  std::ranges::sort(all, {}, &Named<Element>::key);
  while (!all.empty()) {
    const auto next = std::ranges::find_if(all, [&](const auto& each) { return each.key != all.front().key; });
    const auto alike = static_cast<std::size_t>(next - all.begin());
    sort_by_name(all.first(alike), from + 8);
    all = all.subspan(alike);
  }
}

#endif
