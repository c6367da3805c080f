// Undo and redo.

#include "vqc/cmd/history/timeline.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vqc {

Timeline::Timeline(const Document& document, Surroundings surroundings)
    : moments_{{std::move(surroundings), capture(document, nullptr), document.dirty}} {}

bool Timeline::note(const Document& document, Surroundings surroundings, Typed left) {
  auto state = capture(document, now().state);
  const bool is_step = state != now().state || !left.empty();
  if (is_step) {
    note_typed(std::move(left));
    moments_.resize(++now_);
    moments_.push_back({{}, std::move(state)});
  }
  part<Surroundings>(moments_[now_]) = std::move(surroundings);
  moments_[now_].dirty = document.dirty;
  return is_step;
}

void Timeline::saved(const Document& document, const std::optional<std::string>& path) {
  const std::optional<std::string> before = now().path;
  note(document, part<const Surroundings>(now()));
  const auto is_other = [&](const Moment& moment) { return moment.path != before; };
  const auto here = moments_.begin() + static_cast<std::ptrdiff_t>(now_);
  const auto end = std::find_if(here, moments_.end(), is_other);
  const auto begin = std::find_if(std::reverse_iterator(here), moments_.rend(), is_other).base();
  for (auto moment = begin; moment != end; ++moment) {
    moment->path = path;
    moment->in_file = now().state;
  }
  for (Moment& moment : moments_) moment.dirty = moment.state != now().state;
}

void Timeline::go_to(Document& document, std::size_t moment) {
  restore(document, *now().state, *moments_[moment].state);
  now_ = moment;
  document.dirty = now().dirty;
}

}  // namespace vqc
