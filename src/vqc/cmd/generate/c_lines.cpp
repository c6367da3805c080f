// Where lines of C begin and end.

#include "vqc/cmd/generate/c_lines.h"

namespace vqc::c {

namespace {

bool is_on_line_before(const Code& code, std::size_t token) {
  return token + 1 < code.tokens.size() && code.tokens[token + 1].line_feeds == 0;
}

}  // namespace

std::optional<std::size_t> line_begin(const Code& code, std::size_t token) {
  while (token > 0 && code.tokens[token].line_feeds == 0) {
    if (code.tokens[--token].kind != Kind::comment) return {};
  }
  std::size_t begin = code.tokens[token].begin;
  while (!begins_line(code.text, begin)) --begin;
  return begin;
}

std::size_t line_end(const Code& code, std::size_t token) {
  while (is_on_line_before(code, token)) ++token;
  std::size_t end = code.tokens[token].end;
  do {
    end = code.text.find('\n', end);
    if (end == std::string_view::npos) return code.text.size();
    ++end;
  } while (is_continued(code.text, end - 1));
  return end;
}

bool ends_line(const Code& code, std::size_t token) {
  while (is_on_line_before(code, token)) {
    if (code.tokens[++token].kind != Kind::comment) return false;
  }
  return true;
}

bool begins_line(std::string_view text, std::size_t place) {
  return place == 0 || (text[place - 1] == '\n' && !is_continued(text, place - 1));
}

bool is_line(const Code& code, std::size_t token) {
  std::string_view line = code.text.substr(0, line_end(code, token));
  while (line.ends_with('\n') || line.ends_with('\r')) line.remove_suffix(1);
  return line_begin(code, token) == code.tokens[token].begin && line.size() == code.tokens[token].end;
}

}  // namespace vqc::c
