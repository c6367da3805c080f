// Makes changes of a text.

#include "vqc/cmd/generate/text_edits.h"

#include <algorithm>
#include <tuple>

namespace vqc {

std::vector<Range> TextEdits::replaced() {
  sort();
  std::vector<Range> ranges;
  for (const Edit& edit : edits_) {
    if (edit.range.begin < edit.range.end) ranges.push_back(edit.range);
  }
  return ranges;
}

bool TextEdits::are_apart() {
  sort();
  const auto overlap = [](const Edit& a, const Edit& b) { return b.range.begin < a.range.end; };
  return std::ranges::adjacent_find(edits_, overlap) == edits_.end();
}

std::string TextEdits::made_in(std::string_view text) {
  sort();
  std::string result;
  std::size_t done = 0;
  for (const Edit& edit : edits_) {
    result.append(text.substr(done, edit.range.begin - done)).append(edit.text);
    done = edit.range.end;
  }
  return result.append(text.substr(done));
}

void TextEdits::sort() {
  std::ranges::stable_sort(edits_, {}, [](const Edit& edit) { return std::tuple(edit.range.begin, edit.order); });
}

}  // namespace vqc
