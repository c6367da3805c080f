// The table of keywords, and looking them up.

#include "vqc/cmd/savefile/keywords.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vqc {

namespace {

constexpr Keyword keywords[] = {
#define KEYWORD(word, name, number) {word, Kw::name},
#include "vqc/cmd/savefile/keywords.def"
#undef KEYWORD
};
static_assert(std::ranges::is_sorted(keywords, {}, &Keyword::word), "those with one first letter stand together");

/// Where the keywords begin that have this first byte or a greater one: most words of a document share theirs with
/// none.
constexpr auto first_from = [] {
  std::array<std::uint8_t, 257> first{};
  for (std::size_t c = 0; c < first.size(); ++c) {
    while (first[c] < std::size(keywords) && static_cast<unsigned char>(keywords[first[c]].word.front()) < c)
      ++first[c];
  }
  return first;
}();

constexpr auto text_of = [] {
  std::array<std::string_view, 256> texts{};
  for (const Keyword& keyword : keywords) texts[static_cast<std::size_t>(keyword.kw)] = keyword.word;
  return texts;
}();

}  // namespace

const Keyword* find_keyword(std::string_view word) {
  if (word.empty()) return nullptr;
  const auto c = static_cast<unsigned char>(word.front());
  for (std::size_t i = first_from[c]; i < first_from[c + std::size_t{1}]; ++i) {
    if (keywords[i].word == word) return &keywords[i];
  }
  return nullptr;
}

std::string_view keyword_text(Kw kw) { return text_of[static_cast<std::size_t>(kw)]; }

}  // namespace vqc
