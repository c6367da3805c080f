// The rule on the encoding of a document.

#include "libkel/utf8.h"
#include "vqc/cmd/check/rules.h"
#include "vqc/cmd/savefile/lexer.h"

namespace vqc {

namespace {

/// Only bytes as such, or an escape, can make a text that is no UTF-8.
bool can_have_such_bytes(std::string_view source) {
  return !is_utf8(source) || source.find('\\') != std::string_view::npos;
}

/// The place of the first byte that is no UTF-8 in a string; all of the string where an escape makes it.
Range place_in(const Source& source, const Lexer& string) {
  const Range whole = string.range();
  const std::size_t begin = whole.begin + end_of_utf8(source.text(whole));
  return begin < whole.end ? Range{begin, begin + 1} : whole;
}

}  // namespace

void bytes_not_utf8(Inspection& inspection) {
  if (!can_have_such_bytes(inspection.source.text())) return;
  std::size_t strings = 0;
  std::optional<Range> first;
  Lexer lexer(inspection.source);
  for (lexer.next_token(); !lexer.is(SaveFileToken::end_of_input); lexer.next_token()) {
    if (!lexer.is(SaveFileToken::string) || is_utf8(lexer.text())) continue;
    if (strings++ == 0) first = place_in(inspection.source, lexer);
  }
  inspection.add(FindingId::bytes_not_utf8, first, {std::to_string(strings)});
}

}  // namespace vqc
