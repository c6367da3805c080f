// Takes a page apart into tags and text.

#include "help/viewer/markup.h"

#include <algorithm>

#include "help/viewer/entities.h"

namespace help {

namespace {

constexpr std::string_view kSpaces = " \t\r\n\f";
constexpr std::string_view kCommentBegin = "<!--";
constexpr std::string_view kCommentEnd = "-->";

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool is_letter(char c) { return lower(c) >= 'a' && lower(c) <= 'z'; }
bool is_space(char c) { return kSpaces.find(c) != std::string_view::npos; }

std::string in_lower_case(std::string_view text) {
  std::string result(text);
  std::ranges::transform(result, result.begin(), lower);
  return result;
}

/// Whether the "<" at the beginning opens a tag.
bool begins_tag(std::string_view text) {
  if (text.size() < 2) return false;
  if (text[1] == '/') return text.size() > 2 && is_letter(text[2]);
  return is_letter(text[1]) || text[1] == '!' || text[1] == '?';
}

/// After the ">" that ends a tag; one in quotes does not, if the quotes are closed.
std::size_t end_of_tag(std::string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '>') return i + 1;
    if (text[i] != '"' && text[i] != '\'') continue;
    const std::size_t closing = text.find(text[i], i + 1);
    if (closing == std::string_view::npos) break;
    i = closing;
  }
  return text.find('>') == std::string_view::npos ? text.size() : text.find('>') + 1;
}

std::size_t end_of_comment(std::string_view text) {
  const std::size_t end = text.find(kCommentEnd, kCommentBegin.size());
  return end == std::string_view::npos ? text.size() : end + kCommentEnd.size();
}

std::size_t end_of_text(std::string_view text) {
  std::size_t end = text.find('<', 1);
  while (end != std::string_view::npos && !begins_tag(text.substr(end))) end = text.find('<', end + 1);
  return std::min(end, text.size());
}

/// The piece at the beginning of a text that is not empty.
Piece first_piece(std::string_view text) {
  if (text.starts_with(kCommentBegin)) return {Piece::Kind::comment, text.substr(0, end_of_comment(text))};
  if (text.starts_with('<') && begins_tag(text)) return {Piece::Kind::tag, text.substr(0, end_of_tag(text))};
  return {Piece::Kind::text, text.substr(0, end_of_text(text))};
}

/// Takes what is before the first of `ends`, or all, off the front.
std::string_view take_until(std::string_view& text, std::string_view ends) {
  const std::string_view taken = text.substr(0, text.find_first_of(ends));
  text.remove_prefix(taken.size());
  return taken;
}

void skip_spaces(std::string_view& text) {
  while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
}

/// Takes "= value" off the front; "" when there is none.
std::string_view take_value(std::string_view& text) {
  if (!text.starts_with('=')) return {};
  text.remove_prefix(1);
  skip_spaces(text);
  if (!text.starts_with('"') && !text.starts_with('\'')) return take_until(text, kSpaces);
  const std::string_view quote = text.substr(0, 1);
  text.remove_prefix(1);
  const std::string_view value = take_until(text, quote);
  text.remove_prefix(text.empty() ? 0 : 1);
  return value;
}

/// What is between the name of a tag and its ">".
std::string_view attributes_of(std::string_view tag) {
  if (tag.ends_with('>')) tag.remove_suffix(1);
  take_until(tag, kSpaces);
  return tag;
}

}  // namespace

std::vector<Piece> pieces_of(std::string_view page) {
  std::vector<Piece> pieces;
  while (!page.empty()) {
    pieces.push_back(first_piece(page));
    page.remove_prefix(pieces.back().source.size());
  }
  return pieces;
}

std::string name_of(std::string_view tag) {
  tag.remove_prefix(1);
  const std::size_t slash = tag.starts_with('/') ? 1 : 0;
  const std::size_t end = tag.find_first_of(" \t\r\n\f/>", slash);
  return in_lower_case(tag.substr(0, end));
}

std::string attribute(std::string_view tag, std::string_view name) {
  std::string_view rest = attributes_of(tag);
  for (skip_spaces(rest); !rest.empty(); skip_spaces(rest)) {
    const std::string found = in_lower_case(take_until(rest, " \t\r\n\f="));
    skip_spaces(rest);
    const std::string_view value = take_value(rest);
    if (found == name) return decoded(value);
  }
  return "";
}

}  // namespace help
