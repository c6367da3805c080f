// Puts numbers of things into words.

#include "vqc/cmd/editors/kit/counts.h"

#include "libkel/message.h"

namespace vqc::editors {

void add_to_list(std::string& list, const std::string& words) {
  list = list.empty() ? words : filled(text_or_name("differs_and"), {list.c_str(), words.c_str()});
}

std::string in_words(const Count& count) {
  return filled(text_or_name(count.number == 1 ? count.one : count.several), {count.number});
}

std::string in_words(std::span<const Count> counts) {
  std::string words;
  for (const Count& count : counts) {
    if (count.number > 0) add_to_list(words, in_words(count));
  }
  return words;
}

}  // namespace vqc::editors
