// Undo and redo.

#include "vqc/cmd/history/timeline.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vqc {

Timeline::Timeline(const Document& document, Surroundings surroundings)
    : moments_{{std::move(surroundings), capture(document, nullptr), document.dirty}} {}

bool Timeline::note(const Document& document, Surroundings surroundings) {
  auto state = capture(document, now().state);
  const bool is_step = state != now().state;
  if (is_step) {
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
  for (auto moment = here; moment != end; ++moment) moment->path = path;
  for (auto moment = here; moment != moments_.begin() && !is_other(*std::prev(moment)); --moment) {
    std::prev(moment)->path = path;
  }
  for (Moment& moment : moments_) moment.dirty = moment.state != now().state;
}

void Timeline::go_to(Document& document, std::size_t moment) {
  restore(document, *now().state, *moments_[moment].state);
  now_ = moment;
  document.dirty = now().dirty;
}

}  // namespace vqc
