// What the reader of documents takes, and a person hardly meant.

#include <utility>

#include "libkel/nearest.h"
#include "vqc/cmd/savefile/reader.h"

namespace vqc {

void Reader::warn(Finding finding) {
  if (goes_on_) oddities_.push_back(std::move(finding));
}

/// The same for something that is there twice.
void Reader::warn_of_two(FindingId id, Range second, std::string_view name, Range first) {
  warn({id, second, {std::string(name)}, {{first, "the first is here"}}});
}

void Reader::note_token() {
  struct Oddity {
    TokenOddity bit;
    FindingId id;
  };
  constexpr Oddity kOddities[] = {
      {IS_CUT, FindingId::long_token},    {HAS_NUL, FindingId::nul_in_text}, {HAS_CUT_ESCAPE, FindingId::cut_escape},
      {WRAPS, FindingId::wrapped_number}, {IS_OPEN, FindingId::open_text},
  };
  for (const Oddity& each : kOddities) {
    if (lexer_.oddities() & each.bit) warn({each.id, lexer_.range()});
  }
}

/// What is known when all has been read.
void Reader::note_end() {
  const Comments& comments = lexer_.comments();
  if (comments.count > 0) warn({FindingId::comments, comments.first, {std::to_string(comments.count)}});
  if (comments.open && comments.open->end > open_comment_) {
    warn({FindingId::open_comment, {comments.open->begin, comments.open->begin + 2}});
  }
  for (Finding& each : oddities_) findings_.add(std::move(each));
}

/// Notes a field that its block says again. The last value counts.
void Reader::note_field(Kw word, Range range) {
  if (!goes_on_) return;
  for (std::size_t i = block_.said; i < said_.size(); ++i) {
    if (said_[i].word != word) continue;
    return warn_of_two(FindingId::said_twice, range, keyword_text(word), said_[i].range);
  }
  said_.push_back({word, range});
}

/// Notes a flag whose text, the current token, is neither of its words, and what it is taken for.
void Reader::note_flag(bool value) {
  constexpr std::string_view kFlags[] = {"True", "False"};
  warn({FindingId::odd_flag,
        lexer_.range(),
        {shown_token(), value ? "True" : "False"},
        {},
        std::string(nearest(lexer_.text(), kFlags))});
}

/// What stands where a list of resources should go on or end.
Finding Reader::list_end_finding() const {
  const bool word = lexer_.is(SaveFileToken::identifier) || lexer_.is(SaveFileToken::keyword);
  if (lexer_.is('}') || at_field()) return {FindingId::expected_character, gap(), {";"}};
  if (lexer_.is(SaveFileToken::string)) return {FindingId::expected_character, gap(), {","}};
  if (source_.text(last_.range) == ",") return {FindingId::expected_text, lexer_.range()};
  if (!word) return {FindingId::expected_character, lexer_.range(), {";"}};
  constexpr std::string_view kWords[] = {"access", "counter"};
  return {FindingId::misplaced_word, lexer_.range(), {shown_token()}, {}, std::string(nearest(lexer_.text(), kWords))};
}

/// Notes a list of resources that has ended with something else than a ";" to no harm.
void Reader::note_list_end() {
  if (!list_end_) return;
  warn({FindingId::list_end, list_end_->token});
  list_end_.reset();
}

}  // namespace vqc
