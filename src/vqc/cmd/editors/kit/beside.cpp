// Weighs the places that suggest themselves for a window.

#include "vqc/cmd/editors/kit/beside.h"

#include <array>

namespace vqc::editors {

namespace {

/// The places that suggest themselves, those first that are looked for first: to the right, to the left, below.
std::vector<ScreenArea> suggestions(const ScreenArea& size, const Neighbour& owner, const ScreenArea& screen) {
  const ScreenArea& frame = owner.frame;
  const std::array across{frame.right(), frame.x - size.width, frame.x, screen.right() - size.width, screen.x};
  const std::array down{frame.y, owner.title.bottom(), frame.bottom(), frame.y - size.height,
                        screen.bottom() - size.height};
  std::vector<ScreenArea> all;
  for (int y : down) {
    for (int x : across) all.push_back(moved_into({x, y, size.width, size.height}, screen));
  }
  return all;
}

/// What a window there would hide: what matters most comes first.
using Hidden = std::array<long, 4>;

Hidden hidden_by(const ScreenArea& window, const Neighbour& owner, const std::vector<ScreenArea>& others) {
  long hidden = 0;
  for (const ScreenArea& other : others) hidden += overlap(window, other);
  return {overlap(window, owner.title), overlap(window, owner.list), overlap(window, owner.frame), hidden};
}

}  // namespace

ScreenArea area_beside(const ScreenArea& size, const Neighbour& owner, const std::vector<ScreenArea>& others,
                       const ScreenArea& screen) {
  return std::ranges::min(suggestions(size, owner, screen), {},
                          [&](const ScreenArea& window) { return hidden_by(window, owner, others); });
}

ScreenArea area_over(const ScreenArea& size, const ScreenArea& owner, const ScreenArea& screen) {
  const int x = owner.x + (owner.width - size.width) / 2;
  const int y = owner.y + (owner.height - size.height) / 2;
  return moved_into({x, y, size.width, size.height}, screen);
}

}  // namespace vqc::editors
