#ifndef VQC_CMD_GENERATE_TEXT_EDITS_H
#define VQC_CMD_GENERATE_TEXT_EDITS_H

#include <string>
#include <string_view>
#include <vector>

#include "libkel/source.h"

namespace vqc {

/// Changes of a text that are made together. Ranges are those of the text as it is before.
class TextEdits {
 public:
  /// Puts a text in the place of a range, or only in, where that is empty. What closes something that stands before is
  /// put before what another one opens at the same place.
  enum class Order : std::uint8_t { closing, opening };
  void replace(Range range, std::string with, Order order = Order::opening) {
    edits_.push_back({range, order, std::move(with)});
  }
  void insert(std::size_t at, std::string text, Order order) { replace({at, at}, std::move(text), order); }

  /// The ranges that something else takes the place of, in their order.
  std::vector<Range> replaced();
  /// Whether each change can be made without another.
  bool are_apart();
  /// The text with the changes, which are apart.
  std::string made_in(std::string_view text);

 private:
  struct Edit {
    Range range;
    Order order;
    std::string text;
  };
  void sort();

  std::vector<Edit> edits_;
};

}  // namespace vqc

#endif
