// Where the parts of a document stand.

#include "vqc/cmd/savefile/places.h"

#include <functional>
#include <string_view>

namespace vqc {

namespace {

/// The range of a view of `text`; none when it views something else.
std::optional<Range> range_in(std::string_view text, std::string_view view) {
  const std::less_equal<> not_after;
  const bool inside =
      not_after(text.data(), view.data()) && not_after(view.data() + view.size(), text.data() + text.size());
  if (!inside) return std::nullopt;
  const auto begin = static_cast<std::size_t>(view.data() - text.data());
  return Range{begin, begin + view.size()};
}

}  // namespace

std::optional<Range> Places::of(Text text) const {
  if (!text) return std::nullopt;
  const std::optional<Range> view = range_in(source_.text(), text.view());
  return view ? view : of(static_cast<const void*>(text.view().data()));
}

std::optional<Range> Places::of(const void* part) const {
  const auto found = noted_.find(part);
  return found == noted_.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace vqc
