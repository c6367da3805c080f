// Matches names with what somebody types of them.

#include "vqc/cmd/lookup/match.h"

#include <algorithm>
#include <cstddef>

namespace vqc {

namespace {

// Of ASCII, whatever the locale: names have one meaning everywhere.

constexpr bool is_upper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool is_lower(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_blank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
/// Characters beyond ASCII count as letters without case.
constexpr bool is_word(char c) { return is_upper(c) || is_lower(c) || is_digit(c) || static_cast<signed char>(c) < 0; }
constexpr char lower(char c) { return is_upper(c) ? static_cast<char>(c - 'A' + 'a') : c; }

constexpr std::size_t index_of(char c) { return static_cast<unsigned char>(c); }

/// Whether a name begins like XtN, as those of resources, classes and types do.
constexpr bool has_toolkit_prefix(std::string_view name) {
  return name.size() > 3 && name[0] == 'X' && is_lower(name[1]) && (name[2] == 'N' || name[2] == 'C' || name[2] == 'R');
}

constexpr bool begins_part(std::string_view name, std::size_t place) {
  if (place == 0) return true;
  const char before = name[place - 1];
  const char here = name[place];
  if (!is_word(here)) return false;
  if (!is_word(before) || (is_digit(here) && !is_digit(before))) return true;
  if (place == 3 && has_toolkit_prefix(name)) return true;
  if (!is_upper(here)) return false;
  const bool ends_capitals = place + 1 < name.size() && is_lower(name[place + 1]);
  return !is_upper(before) || ends_capitals;
}

/// Where a name has a word, from a place on; npos if nowhere.
std::size_t find_in(std::string_view name, std::string_view word, std::size_t from) {
  const auto same = [](char in_name, char in_word) { return lower(in_name) == in_word; };
  const auto found =
      std::search(name.begin() + static_cast<std::ptrdiff_t>(from), name.end(), word.begin(), word.end(), same);
  return found == name.end() ? std::string_view::npos : static_cast<std::size_t>(found - name.begin());
}

}  // namespace

Pattern::Word::Word(std::string_view typed) : letters(typed), places{} {
  std::ranges::transform(letters, letters.begin(), lower);
  const std::size_t bits = std::min<std::size_t>(letters.size(), 64);
  for (std::size_t i = 0; i < bits; ++i) places[index_of(letters[i])] |= std::uint64_t{1} << i;
}

Pattern::Pattern(std::string_view typed) {
  while (true) {
    const auto begin = std::ranges::find_if_not(typed, is_blank);
    const auto end = std::find_if(begin, typed.end(), is_blank);
    if (begin == end) return;
    words_.emplace_back(std::string_view(begin, end));
    typed = std::string_view(end, typed.end());
  }
}

std::optional<int> Pattern::rank(std::string_view name) const {
  int worst = exact;
  for (const Word& word : words_) {
    const std::optional<int> of_word = rank(word, name);
    if (!of_word) return std::nullopt;
    worst = std::max(worst, *of_word);
  }
  return worst;
}

std::optional<int> Pattern::rank(const Word& word, std::string_view name) {
  const std::size_t first = find_in(name, word.letters, 0);
  if (first == 0) return name.size() == word.letters.size() ? exact : prefix;
  for (std::size_t place = first; place != name.npos; place = find_in(name, word.letters, place + 1)) {
    if (begins_part(name, place)) return begin_of_part;
  }
  if (matches_parts(word, name)) return parts;
  return first != name.npos ? std::optional<int>(inside) : std::nullopt;
}

/// Walks once through the name with all ways to match at the same time. A way is a bit: how many letters it has
/// matched. It goes on with the next character, or with the beginning of a later part. Nobody types more than fits.
bool Pattern::matches_parts(const Word& word, std::string_view name) {
  const std::size_t size = word.letters.size();
  if (size < 2 || size > 63) return false;
  const std::uint64_t end = std::uint64_t{1} << size;
  std::uint64_t begun = 1;  // whatever has been matched so far
  std::uint64_t here = 0;   // with the last character
  for (std::size_t i = 0; i < name.size(); ++i) {
    const std::uint64_t ways = begins_part(name, i) ? begun : here;
    here = (ways & word.places[index_of(lower(name[i]))]) << 1;
    begun |= here;
  }
  return (begun & end) != 0;
}

}  // namespace vqc
