#ifndef VQC_CMD_SAVEFILE_KEYWORDS_H
#define VQC_CMD_SAVEFILE_KEYWORDS_H

#include <cstdint>
#include <string_view>

namespace vqc {

/// The keywords of a document, as keywords.def lists them.
enum class Kw : std::uint8_t {
#define KEYWORD(word, name, number) name = number,
#include "vqc/cmd/savefile/keywords.def"
#undef KEYWORD
};

struct Keyword {
  std::string_view word;
  Kw kw;
};

/// The keyword spelled `word`, or null. Spelling is exact.
const Keyword* find_keyword(std::string_view word);

/// How `kw` is spelled.
std::string_view keyword_text(Kw kw);

}  // namespace vqc

#endif
