// What the reader of documents does where something is wrong: it finds the cause, and goes on behind it.

#include <algorithm>
#include <utility>

#include "libkel/nearest.h"
#include "vqc/cmd/savefile/reader.h"

namespace vqc {

namespace {

/// The message that states an error of the editor's.
const char* message_name(FindingId id) {
  switch (id) {
    case FindingId::expected_name:
    case FindingId::expected_text:
      return "se_string";
    case FindingId::expected_boolean:
      return "se_boolean";
    case FindingId::expected_integer:
      return "se_integer";
    case FindingId::unknown_item:
      return "se_reserved";
    default:
      return "se_unexpected_keyword";
  }
}

/// Adds the words of a table of fields.
template <class Record, std::size_t n>
void add_words(std::vector<std::string_view>& words, const Field<Record> (&fields)[n]) {
  for (const Field<Record>& each : fields) words.push_back(keyword_text(each.word));
}

/// The words that can stand in a block, but for what a family uses.
std::vector<std::string_view> words_in(Kw block) {
  std::vector<std::string_view> words;
  if (block == Kw::widget) {
    words = {"resource_definitions", "resource_popups"};
    add_words(words, widget_fields);
  } else if (block == Kw::enumeration) {
    words = {"enumentry"};
    add_words(words, enum_fields);
  } else if (block == Kw::enumentry) {
    add_words(words, enum_entry_fields);
  } else if (block == Kw::alias) {
    add_words(words, alias_fields);
  } else if (block == Kw::converter) {
    add_words(words, converter_fields);
  } else if (block == Kw::popup) {
    add_words(words, popup_fields);
  } else if (block == Kw::family) {
    add_words(words, family_init_fields);
  }
  return words;
}

/// The column of a word that begins its line; none for another.
std::optional<std::size_t> indentation(std::string_view text, std::size_t word) {
  std::size_t line = word;
  while (line > 0 && (text[line - 1] == ' ' || text[line - 1] == '\t')) --line;
  if (line > 0 && text[line - 1] != '\n') return std::nullopt;
  return word - line;
}

}  // namespace

// Errors.

/// Notes an error; only what the editor's reading stops at is stated. Always false.
bool Reader::error(FindingId id, const char* stated, Range range, std::vector<std::string> arguments,
                   std::string_view suggestion) {
  const bool first = findings_.findings().size() == found_before_;
  if (first) result_.first_error = StatedError{stated, stated_line()};
  findings_.add(cause_of({id, range, std::move(arguments), {}, std::string(suggestion)}));
  return false;
}

bool Reader::error(FindingId id) { return error(id, message_name(id), place_of_value()); }

/// Lines are counted from the first token, whichever line that stands on, to the end of the current one.
int Reader::stated_line() const {
  const std::string_view read = source_.text({first_token_.end, std::max(first_token_.end, lexer_.range().end)});
  return 1 + static_cast<int>(std::ranges::count(read, '\n'));
}

/// Notes a token that stands where a block wants a field or its end.
bool Reader::misplaced() {
  const bool word = at_name() || lexer_.is(SaveFileToken::keyword) || lexer_.is(SaveFileToken::integer);
  const char* stated = word ? "se_unexpected_keyword" : "'}'";
  if (block_is_unclosed()) return error(FindingId::unclosed_block, stated, block_.open);
  error(FindingId::misplaced_word, stated, place_of_token(), {shown_token()}, suggested_word());
  if (goes_on_ && !resume_at_ && !lexer_.is('{')) step();
  return false;
}

/// Where the current token stands, with a slash before it that was taken for nothing.
Range Reader::place_of_token() const {
  Range range = lexer_.range();
  const bool slash = range.begin > last_.range.end && source_.text()[range.begin - 1] == '/';
  if (slash && lexer_.is(SaveFileToken::character)) range = {range.begin - 1, range.begin};
  return range;
}

/// The current token for a message, without quotes and not too long.
std::string Reader::shown_token() const {
  constexpr std::size_t kMost = 60;
  Range range = place_of_token();
  if (lexer_.is(SaveFileToken::string)) range = {range.begin + 1, range.end - ((lexer_.oddities() & IS_OPEN) ? 0 : 1)};
  const std::string text(source_.text(range).substr(0, kMost));
  return range.end - range.begin > kMost ? text + "..." : text;
}

/// What the current word was perhaps meant to be.
std::string_view Reader::suggested_word() const {
  if (!lexer_.is(SaveFileToken::identifier)) return {};
  std::vector<std::string_view> words = words_in(block_.of);
  if (block_.of == Kw::family) {
    for (const Use& each : kUses) words.push_back(keyword_text(each.word));
  }
  return nearest(lexer_.text(), words);
}

bool Reader::at_any_of(std::string_view characters) const {
  return std::ranges::any_of(characters, [this](char each) { return lexer_.is(each); });
}

/// Whether a word that is no flag stands where a resource has its popup or page.
bool Reader::at_unquoted_text() const {
  const bool word = lexer_.is(SaveFileToken::identifier) && source_.text(last_.range) == ",";
  return word && lexer_.text() != "True" && lexer_.text() != "False" && !lexer_.text().starts_with("VQC_");
}

/// Where a character is missed: in the place of another, or behind the last token.
Range Reader::place_of(char missing) const {
  const bool end = lexer_.is('}') || (missing == ',' && at_list_end());
  return lexer_.is(SaveFileToken::character) && !end ? lexer_.range() : gap();
}

/// Where a name or value is missed: in the place of another token, unless that goes on as if nothing were missing.
Range Reader::place_of_value() const {
  const bool in_place = lexer_.is(';') && next_is_name();
  const bool goes_on = at_end() || at_any_of("{};,") || at_field() || at_item();
  return goes_on && !in_place ? gap() : lexer_.range();
}

/// An error is often the consequence of what stands before it. Each of these tells whether it is, and makes it a
/// finding of its cause.
Finding Reader::cause_of(Finding finding) {
  for (auto is_cause : {&Reader::comment_is_open, &Reader::text_is_open, &Reader::list_end_is_wrong}) {
    if ((this->*is_cause)(finding)) break;
  }
  return finding;
}

/// A comment that takes up the rest of the document, or one in which another begins since the last item began.
bool Reader::comment_is_open(Finding& finding) {
  const Comments& comments = lexer_.comments();
  std::optional<Range> open = at_end() ? comments.open : std::nullopt;
  if (!open && comments.nested && comments.nested->begin >= item_.begin) open = comments.nested;
  if (!open || open->end <= open_comment_) return false;
  open_comment_ = open->end;
  finding = {FindingId::unclosed_comment, {open->begin, open->begin + 2}};
  return true;
}

/// A text that ends where the next one should begin: it is followed at once by what should be the next one's.
bool Reader::text_is_open(Finding& finding) {
  const bool current = current_text_is_open();
  if (!current && !last_text_is_open()) return false;
  const Range text = current ? lexer_.range() : last_.range;
  finding = {FindingId::unclosed_text, {text.begin, text.begin + 1}};
  const std::size_t line = source_.text(text).find('\n');
  const bool spans = line != std::string_view::npos;
  resume_at_ = spans ? text.begin + line : std::max(text.begin + 1, text.end - (last_.is_open ? 0 : 1));
  std::erase_if(oddities_, [&](const Finding& each) { return each.range.begin >= text.begin; });
  return true;
}

bool Reader::current_text_is_open() const {
  if (!lexer_.is(SaveFileToken::string)) return false;
  return (lexer_.oddities() & IS_OPEN) != 0 || spans_lines(lexer_.range());
}

bool Reader::last_text_is_open() const {
  if (!last_.is_text) return false;
  if (last_.is_open) return true;
  const bool adjacent = lexer_.range().begin == last_.range.end && !at_end();
  const bool word =
      lexer_.is(SaveFileToken::keyword) || lexer_.is(SaveFileToken::identifier) || lexer_.is(SaveFileToken::integer);
  return adjacent && (word || spans_lines(last_.range));
}

/// The token that has ended a list of resources was meant to be something else.
bool Reader::list_end_is_wrong(Finding& finding) {
  if (!list_end_) return false;
  const bool at_once = steps_ <= list_end_->step + 1;
  if (!at_once && !(list_end_->is_brace && finding.id == FindingId::unclosed_block)) return false;
  finding = list_end_->finding;
  resume_at_ = list_end_->resume_at;
  list_end_.reset();
  return true;
}

// Where reading goes on.

/// The lexer at the next token.
Lexer Reader::ahead() const {
  Lexer lexer = lexer_;
  lexer.next_token();
  return lexer;
}

bool Reader::next_is_name() const {
  const Lexer next = ahead();
  return next.is(SaveFileToken::string) || next.is(SaveFileToken::identifier);
}

/// Whether an item begins here. In a block the same words are followed by "=".
bool Reader::at_item() const {
  if (!lexer_.is(SaveFileToken::keyword)) return false;
  const auto* found = std::ranges::find(kItems, lexer_.keyword(), &Item::word);
  return found != std::end(kItems) && next_is_name();
}

/// Whether a field begins here.
bool Reader::at_field() const {
  if (!lexer_.is(SaveFileToken::keyword)) return false;
  if (lexer_.is(Kw::enumentry)) return block_.of == Kw::enumeration && next_is_name();
  return ahead().is('=');
}

/// Whether a ";" ends a list here, and stands in no other's place.
bool Reader::at_list_end() const {
  if (!lexer_.is(';')) return false;
  const Lexer next = ahead();
  return next.is('}') || next.is(SaveFileToken::keyword) || next.is(SaveFileToken::end_of_input);
}

/// Whether what stands here shows that the "}" of a block is missing.
bool Reader::block_is_unclosed() const {
  return at_end() || at_item() || (lexer_.is(Kw::enumentry) && block_.of == Kw::enumentry && next_is_name());
}

/// Whether a word in a block begins its line as the item does, while the block's first field stands further in.
bool Reader::stands_out(Range word) const {
  const std::string_view text = source_.text();
  const auto of_word = indentation(text, word.begin);
  const auto of_item = indentation(text, item_.begin);
  const std::size_t first_field = text.find_first_not_of(" \t\n", block_.open.end);
  const auto of_field = indentation(text, std::min(first_field, text.size()));
  return of_word && of_item && of_field && *of_word <= *of_item && *of_field > *of_item;
}

/// Goes back to where something was left open.
void Reader::resume() {
  if (!resume_at_) return;
  lexer_.go_back({*resume_at_, *resume_at_});
  last_ = {{*resume_at_, *resume_at_}};
  resume_at_.reset();
}

// Each of these goes on after an error where that is wanted; false where what is being read is over.

bool Reader::go_on_in_header() {
  if (!goes_on_) return false;
  resume();
  while (!at_end() && !at_field() && !at_item()) step();
  return true;
}

bool Reader::go_on_in_block() {
  if (!goes_on_) return false;
  resume();
  int depth = 0;
  for (; !block_is_unclosed(); step()) {
    if (depth == 0 && (lexer_.is('}') || at_field())) return true;
    depth += lexer_.is('{') ? 1 : 0;
    depth -= lexer_.is('}') ? 1 : 0;
  }
  return false;
}

/// The next resource begins with a string after a comma, but so may the popup and the page of this one.
bool Reader::go_on_in_resources(bool& another) {
  another = false;
  if (!goes_on_) return false;
  resume();
  for (; !block_is_unclosed() && !lexer_.is('}') && !at_list_end() && !at_field(); step()) {
    past_visible_ = past_visible_ || (lexer_.is(SaveFileToken::identifier) && !at_unquoted_text());
    another = past_visible_ && lexer_.is(',') && ahead().is(SaveFileToken::string);
    if (another) break;
  }
  if (another) step();
  return another || lexer_.is(';');
}

void Reader::go_on_in_items() {
  resume();
  while (!at_end() && !at_item()) step();
}

}  // namespace vqc
