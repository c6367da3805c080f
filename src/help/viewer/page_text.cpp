// Finds words on a page, and marks them.

#include "help/viewer/page_text.h"

#include <algorithm>
#include <cwctype>

#include "help/viewer/elements.h"
#include "help/viewer/entities.h"

using namespace vqc;

namespace help {

namespace {

constexpr char32_t kLineEnd = '\n';

bool is_space(char32_t c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == 0xA0; }

char32_t fold(char32_t c) {
  return is_space(c) ? U' ' : static_cast<char32_t>(std::towlower(static_cast<std::wint_t>(c)));
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

/// The element that a tag begins or ends.
std::string_view read_name(std::string_view tag) {
  tag.remove_prefix(tag.starts_with("</") ? 2 : 1);
  return tag.substr(0, tag.find_first_of(" >"));
}

bool is_in_line(std::string_view name) {
  const Element* element = find_element(name);
  return element && element->stands == Stands::in_line;
}

/// Where a tag leads, if it is that of a link.
std::string read_address(std::string_view tag) {
  constexpr std::string_view kBefore = " href=\"";
  const std::size_t at = tag.find(kBefore);
  if (at == std::string_view::npos) return "";
  tag.remove_prefix(at + kBefore.size());
  return std::string(tag.substr(0, tag.find('"')));
}

}  // namespace

PageText::PageText(std::string html) : html_(std::move(html)) {
  const std::string_view page = html_;
  std::string link;
  for (std::size_t at = std::min(page.find("<body>"), page.size()); at < page.size();) {
    const bool is_tag = page[at] == '<';
    const std::string_view piece = page.substr(at, is_tag ? page.find('>', at) - at + 1 : page.find('<', at) - at);
    if (is_tag) {
      if (read_name(piece) == "a") link = read_address(piece);
      if (!is_in_line(read_name(piece))) add_line_end(at);
    } else {
      add_text(piece, at, link);
    }
    at += piece.size();
  }
}

void PageText::add_text(std::string_view text, std::size_t begin, const std::string& link) {
  while (!text.empty()) {
    const Decoded next = read_escaped(text);
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
