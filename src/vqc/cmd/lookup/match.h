#ifndef VQC_CMD_LOOKUP_MATCH_H
#define VQC_CMD_LOOKUP_MATCH_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vqc {

/// What somebody types of a name that he looks for: words with blanks between them, in any order, each of which has to
/// match. A word matches a name that has it anywhere, or one from the parts of which it has letters in their order:
/// "ac" and "ascl" find AsciiClock and ascii_clock. The letters of ASCII match in either case.
///
/// A part begins behind whatever is neither letter nor digit, with a capital behind another letter, with a number, and
/// behind XtN, XmR and the like.
///
/// What matches a text still matches when letters are taken from the end of it.
class Pattern {
 public:
  /// How well a name matches; less is better.
  enum Rank : int { exact, prefix, begin_of_part, parts, inside };

  explicit Pattern(std::string_view typed);

  /// Whether nothing has been typed, which all names match.
  bool empty() const { return words_.empty(); }
  /// How well a name matches, by the word that matches worst; none where it does not match.
  std::optional<int> rank(std::string_view name) const;

 private:
  struct Word {
    explicit Word(std::string_view typed);

    std::string letters;                    // in lower case
    std::array<std::uint64_t, 256> places;  // of each letter in the word, as bits
  };
  static std::optional<int> rank(const Word& word, std::string_view name);
  static bool matches_parts(const Word& word, std::string_view name);

  std::vector<Word> words_;
};

}  // namespace vqc

#endif
