// The difference of two texts, line by line.

#include "libkel/unified_diff.h"

#include <algorithm>
#include <cstddef>
#include <dtl/dtl.hpp>
#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include "libkel/keltype.h"

namespace vqc {

namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t kContext = 3;  // how many lines that stay are shown around a change

/// The lines of a text, each with its line feed.
Lines lines_of(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t size = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.push_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

/// A change: the lines of the old text that go, and those of the new one that come.
struct Edit {
  std::size_t old_begin;
  std::size_t old_end;
  std::size_t new_begin;
  std::size_t new_end;
};

/// Numbers in place of lines, equal ones for equal lines, which are quicker to compare.
class Numbers {
 public:
  std::vector<std::size_t> of(const Lines& lines) {
    std::vector<std::size_t> numbers;
    for (const std::string_view line : lines) numbers.push_back(known_.emplace(line, known_.size()).first->second);
    return numbers;
  }

 private:
  std::unordered_map<std::string_view, std::size_t> known_;
};

std::vector<Edit> edits_between(const Lines& old_lines, const Lines& new_lines) {
  Numbers numbers;
  dtl::Diff<std::size_t, std::vector<std::size_t>> diff(numbers.of(old_lines), numbers.of(new_lines));
  diff.onHuge();  // piece by piece where very much differs
  diff.compose();
  const auto script = diff.getSes();
  std::vector<Edit> edits;
  std::size_t i = 0;
  std::size_t j = 0;
  for (const auto& [number, step] : script.getSequence()) {
    if (step.type == dtl::SES_COMMON) {
      ++i, ++j;
      continue;
    }
    const bool goes_on = !edits.empty() && edits.back().old_end == i && edits.back().new_end == j;
    if (!goes_on) edits.push_back({i, i, j, j});
    step.type == dtl::SES_DELETE ? edits.back().old_end = ++i : edits.back().new_end = ++j;
  }
  return edits;
}

/// Whether what stays between two edits is shown whole.
bool is_near(const Edit& edit, const Edit& next) { return next.old_begin - edit.old_end <= 2 * kContext; }

/// The lines of one text that a hunk shows, as its head states them: counted from 1, or the line before if there are
/// none.
std::string extent(std::size_t begin, std::size_t end) {
  const std::size_t count = end - begin;
  const std::string first = std::to_string(count == 0 ? begin : begin + 1);
  return count == 1 ? first : first + "," + std::to_string(count);
}

/// The hunks of a diff as they grow.
class Hunks {
 public:
  Hunks(const Lines& old_lines, const Lines& new_lines) : old_lines_(old_lines), new_lines_(new_lines) {}

  /// Shows edits that are near each other, and what stays around them.
  void add(std::span<const Edit> edits);

  std::string text;

 private:
  void add(char mark, const Lines& lines, std::size_t begin, std::size_t end);

  const Lines& old_lines_;
  const Lines& new_lines_;
};

void Hunks::add(char mark, const Lines& lines, std::size_t begin, std::size_t end) {
  for (; begin != end; ++begin) {
    (text += mark) += lines[begin];
    if (lines[begin].back() != '\n') text += "\n\\ No newline at end of file\n";
  }
}

void Hunks::add(std::span<const Edit> edits) {
  const std::size_t before = std::min(kContext, edits.front().old_begin);
  const std::size_t after = std::min(kContext, old_lines_.size() - edits.back().old_end);
  std::size_t shown = edits.front().old_begin - before;
  const std::size_t end = edits.back().old_end + after;
  text += "@@ -" + extent(shown, end);
  text += " +" + extent(edits.front().new_begin - before, edits.back().new_end + after) + " @@\n";
  for (const Edit& edit : edits) {
    add(' ', old_lines_, shown, edit.old_begin);
    add('-', old_lines_, edit.old_begin, edit.old_end);
    add('+', new_lines_, edit.new_begin, edit.new_end);
    shown = edit.old_end;
  }
  add(' ', old_lines_, shown, end);
}

std::string hunks_between(std::string_view old_text, std::string_view new_text) {
  const Lines old_lines = lines_of(old_text);
  const Lines new_lines = lines_of(new_text);
  const std::vector<Edit> edits = edits_between(old_lines, new_lines);
  Hunks hunks(old_lines, new_lines);
  for (auto first = edits.begin(); first != edits.end();) {
    const auto last = std::adjacent_find(first, edits.end(), std::not_fn(is_near));
    const auto next = last == edits.end() ? last : last + 1;
    hunks.add({first, next});
    first = next;
  }
  return hunks.text;
}

/// A character that cannot stand in a quoted path as it is.
std::string escaped(char c) {
  if (c == '"' || c == '\\') return {'\\', c};
  const auto digit = [c](int shift) { return static_cast<char>('0' + (c >> shift & 7)); };
  return {'\\', digit(6), digit(3), digit(0)};
}

/// A path as heads of diffs have it, in quotes where it needs them. `side` takes the place of the folder that it is in.
std::string head_path(std::string_view side, std::string_view path) {
  path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
  std::string quoted(side);
  for (const char c : path) {
    const bool plain = c != '"' && c != '\\' && !kel_is(c, KEL_CONTROL) && (c == ' ' || !kel_is(c, KEL_SPACE));
    plain ? quoted += c : quoted += escaped(c);
  }
  const bool as_it_is = quoted.size() == side.size() + path.size();
  return as_it_is ? quoted : '"' + quoted + '"';
}

}  // namespace

std::string unified_diff(std::string_view path, std::optional<std::string_view> old_text, std::string_view new_text) {
  if (old_text == new_text) return "";
  const std::string old_path = head_path("a/", path);
  const std::string new_path = head_path("b/", path);
  const std::string end = path.find(' ') == std::string_view::npos ? "\n" : "\t\n";  // a tab ends a path with blanks
  std::string diff = "diff --git " + old_path + " " + new_path + "\n";
  if (!old_text) diff += "new file mode 100644\n";
  if (!old_text && new_text.empty()) return diff;
  diff += "--- " + (old_text ? old_path + end : "/dev/null\n") + "+++ " + new_path + end;
  return diff + hunks_between(old_text.value_or(""), new_text);
}

}  // namespace vqc
