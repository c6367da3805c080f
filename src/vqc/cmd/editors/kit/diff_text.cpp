// Shows differences as lines in colours.

#include "vqc/cmd/editors/kit/diff_text.h"

#include <Xm/List.h>

#include <algorithm>
#include <cstddef>

#include "libkel/message.h"
#include "libkel/unified_diff.h"
#include "vqc/cmd/editors/kit/compound.h"

namespace vqc::editors {

namespace {

// Nobody reads more, and a list would take its time to show it.
constexpr std::size_t kMostLines = 5000;
constexpr std::size_t kLongestLine = 1000;

/// The rendition for each tint.
constexpr const char* renditions[] = {"diff_plain", "diff_heading", "diff_removed", "diff_added"};

/// A line as it can be shown: blanks for tabs, and a question mark for any other control character.
std::string shown(std::string_view line) {
  constexpr std::size_t kTab = 8;
  std::string text;
  for (const char c : line.substr(0, kLongestLine)) {
    if (c == '\t') {
      text.append(kTab - text.size() % kTab, ' ');
    } else {
      text += static_cast<unsigned char>(c) < ' ' ? '?' : c;
    }
  }
  return displayable(line.size() > kLongestLine ? text + " ..." : text);
}

CompoundString item(const TintedLine& line) {
  return CompoundString::of_lines(shown(line.text).c_str(), renditions[static_cast<std::size_t>(line.tint)]);
}

Tint tint_of(char mark) {
  switch (mark) {
    case '-':
      return Tint::removed;
    case '+':
      return Tint::added;
    case '@':
      return Tint::heading;
    default:
      return Tint::plain;
  }
}

}  // namespace

Widget create_diff_text(Widget parent, char* name, ArgList, Cardinal) {
  return XmCreateScrolledList(parent, name, nullptr, 0);
}

void show_lines(Widget diff_text, const TintedLines& lines) {
  std::vector<CompoundString> strings;
  for (const TintedLine& line : lines) {
    if (strings.size() == kMostLines) break;
    strings.push_back(item(line));
  }
  if (lines.size() > kMostLines) {
    const auto more = static_cast<int>(lines.size() - kMostLines);
    strings.push_back(item({Tint::heading, filled(text_or_name("diff_more"), {more})}));
  }
  std::vector<XmString> items(strings.begin(), strings.end());
  XmListDeleteAllItems(diff_text);
  XtVaSetValues(diff_text, XmNitems, items.data(), XmNitemCount, static_cast<int>(items.size()), nullptr);
}

TintedLines changed_lines(std::string_view from, std::string_view to) {
  TintedLines lines;
  std::string diff = unified_diff("text", from, to);
  std::string_view rest = diff;
  rest.remove_prefix(std::min(rest.find("@@ "), rest.size()));  // the head, which names files
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\n'), rest.size() - 1);
    lines.push_back({tint_of(rest.front()), std::string(rest.substr(0, end))});
    rest.remove_prefix(end + 1);
  }
  return lines;
}

int count_lines(const TintedLines& lines, Tint tint) {
  return static_cast<int>(std::ranges::count(lines, tint, &TintedLine::tint));
}

int changed_count(const TintedLines& lines) {
  return std::max(count_lines(lines, Tint::added), count_lines(lines, Tint::removed));
}

}  // namespace vqc::editors
