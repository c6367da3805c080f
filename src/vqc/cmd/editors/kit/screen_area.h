#ifndef VQC_CMD_EDITORS_KIT_SCREEN_AREA_H
#define VQC_CMD_EDITORS_KIT_SCREEN_AREA_H

// Rectangles of the screen.

#include <algorithm>

namespace vqc::editors {

/// A rectangle of the screen, in pixels.
struct ScreenArea {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  int right() const { return x + width; }
  int bottom() const { return y + height; }
  bool operator==(const ScreenArea&) const = default;
};

/// How many pixels of one area another hides.
inline long overlap(const ScreenArea& a, const ScreenArea& b) {
  const long width = std::min(a.right(), b.right()) - std::max(a.x, b.x);
  const long height = std::min(a.bottom(), b.bottom()) - std::max(a.y, b.y);
  return width > 0 && height > 0 ? width * height : 0;
}

/// The area moved so that it lies in `outer`, or begins where that begins if it is larger.
inline ScreenArea moved_into(ScreenArea area, const ScreenArea& outer) {
  area.x = std::max(outer.x, std::min(area.x, outer.right() - area.width));
  area.y = std::max(outer.y, std::min(area.y, outer.bottom() - area.height));
  return area;
}

}  // namespace vqc::editors

#endif
