// Finds words on a page, and marks them.

#include "help/viewer/page_text.h"

#include <algorithm>
#include <cwctype>

#include "help/viewer/elements.h"
#include "help/viewer/entities.h"
#include "help/viewer/markup.h"
#include "libkel/utf8.h"

namespace help {

namespace {

constexpr char32_t kLineEnd = '\n';

bool is_space(char32_t c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == 0xA0; }

char32_t fold(char32_t c) {
  return is_space(c) ? U' ' : static_cast<char32_t>(std::towlower(static_cast<std::wint_t>(c)));
}

/// The character at the front of a text of a page, and what it takes there.
Decoded read_character(std::string_view text) {
  if (text.front() != '&') return first_character(text);
  const std::size_t size = std::min(text.find(';'), text.size() - 1) + 1;
  return {first_character(decoded(text.substr(0, size))).character, size};
}

std::u32string fold_words(std::string_view words) {
  std::u32string result;
  while (!words.empty()) {
    const Decoded next = first_character(words);
    words.remove_prefix(next.size);
    const char32_t c = fold(next.character);
    if (c != U' ' || !result.ends_with(U' ')) result += c;
  }
  return result;
}

bool is_in_line(const std::string& name) {
  const Element* element = element_named(name.starts_with('/') ? std::string_view(name).substr(1) : name);
  return element && element->stands == Stands::in_line;
}

}  // namespace

PageText::PageText(std::string html) : html_(std::move(html)) {
  std::size_t at = 0;
  std::string link;
  bool in_body = false;
  for (const Piece& piece : pieces_of(html_)) {
    const std::string name = piece.kind == Piece::Kind::tag ? name_of(piece.source) : "";
    if (name == "body") in_body = true;
    if (name == "a") link = attribute(piece.source, "href");
    if (name == "/a") link.clear();
    if (piece.kind == Piece::Kind::text && in_body) add_text(piece.source, at, link);
    if (piece.kind == Piece::Kind::tag && !is_in_line(name)) add_line_end(at);
    at += piece.source.size();
  }
}

void PageText::add_text(std::string_view text, std::size_t begin, const std::string& link) {
  while (!text.empty()) {
    const Decoded next = read_character(text);
    const char32_t c = fold(next.character);
    const bool again = c == U' ' && !characters_.empty() && characters_.back().folded == U' ';
    if (!again) {
      characters_.push_back({c, begin, begin + next.size, link});
    } else if (characters_.back().end == begin) {
      characters_.back().end += next.size;
    }
    text.remove_prefix(next.size);
    begin += next.size;
  }
}

void PageText::add_line_end(std::size_t at) { characters_.push_back({kLineEnd, at, at, {}}); }

bool PageText::stands_at(std::size_t at, const std::u32string& words) const {
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (characters_[at + i].folded != words[i]) return false;
  }
  return true;
}

std::optional<Span> PageText::find(std::string_view words, std::size_t from) const {
  const std::u32string wanted = fold_words(words);
  if (wanted.empty() || wanted.size() > characters_.size()) return std::nullopt;
  const std::size_t places = characters_.size() - wanted.size() + 1;
  for (std::size_t i = 0; i < places; ++i) {
    const std::size_t at = (from + i) % places;
    if (stands_at(at, wanted)) return Span{at, at + wanted.size()};
  }
  return std::nullopt;
}

std::string PageText::mark(Span span) const {
  std::string result;
  std::size_t copied = 0;
  for (std::size_t run = span.begin; run < span.end;) {
    std::size_t end = run + 1;
    while (end < span.end && characters_[end].begin == characters_[end - 1].end) ++end;
    result += html_.substr(copied, characters_[run].begin - copied) + mark_run({run, end}, run == span.begin);
    copied = characters_[end - 1].end;
    run = end;
  }
  return result + html_.substr(copied);
}

/// Characters without tags between them, in an anchor. A link that they are in is interrupted for it.
std::string PageText::mark_run(Span span, bool first) const {
  const std::string& link = characters_[span.begin].link;
  const std::string name = first ? " name=\"" + std::string(kMark) + "\"" : "";
  const std::size_t begin = characters_[span.begin].begin;
  const std::string words = html_.substr(begin, characters_[span.end - 1].end - begin);
  const std::string address = " href=\"" + (link.empty() ? "#" : link) + "\"";
  const std::string anchor = "<a" + name + address + " target=\"found\">" + words + "</a>";
  return link.empty() ? anchor : "</a>" + anchor + "<a" + address + ">";
}

}  // namespace help
