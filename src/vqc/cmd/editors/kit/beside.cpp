#include "vqc/cmd/editors/kit/beside.h"

#include <array>

namespace {

/// The places that suggest themselves, those first that are looked for first: to the right, to the left, below.
std::vector<Area> suggestions(const Area& size, const Neighbour& owner, const Area& screen) {
  const Area& frame = owner.frame;
  const std::array across{frame.right(), frame.x - size.width, frame.x, screen.right() - size.width, screen.x};
  const std::array down{frame.y, owner.title.bottom(), frame.bottom(), frame.y - size.height,
                        screen.bottom() - size.height};
  std::vector<Area> all;
  for (int y : down) {
    for (int x : across) all.push_back(moved_into({x, y, size.width, size.height}, screen));
  }
  return all;
}

/// What a window there would hide: what matters most comes first.
using Hidden = std::array<long, 4>;

Hidden hidden_by(const Area& window, const Neighbour& owner, const std::vector<Area>& others) {
  long hidden = 0;
  for (const Area& other : others) hidden += overlap(window, other);
  return {overlap(window, owner.title), overlap(window, owner.list), overlap(window, owner.frame), hidden};
}

}  // namespace

Area area_beside(const Area& size, const Neighbour& owner, const std::vector<Area>& others, const Area& screen) {
  return std::ranges::min(suggestions(size, owner, screen), {},
                          [&](const Area& window) { return hidden_by(window, owner, others); });
}

Area area_over(const Area& size, const Area& owner, const Area& screen) {
  const int x = owner.x + (owner.width - size.width) / 2;
  const int y = owner.y + (owner.height - size.height) / 2;
  return moved_into({x, y, size.width, size.height}, screen);
}
