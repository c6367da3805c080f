#ifndef GUI_PIXELS_H
#define GUI_PIXELS_H

#include <vector>

#include "gui/session.h"

using namespace vqc;

// What a widget looks like on the screen.

/// A part of the screen, which has to be in sight.
struct Area {
  int left;
  int top;
  int width;
  int height;

  int right() const { return left + width; }
  int bottom() const { return top + height; }
  bool operator==(const Area&) const = default;
};

/// Where a widget stands, in pixels, whatever unit its resources have.
Area area_of(Widget w);
Area area_of(const std::string& name);

/// The pixels of a part of the screen, by their lightness from 0 for black to 1 for white.
class Picture {
 public:
  explicit Picture(Area area);
  explicit Picture(const std::string& name) : Picture(area_of(name)) {}

  int width() const { return width_; }
  int height() const { return static_cast<int>(pixels_.size()) / width_; }
  double at(int x, int y) const { return pixels_[static_cast<std::size_t>(y * width_ + x)]; }
  /// The part of it that is so far from each side.
  Picture inside(int margin) const;
  /// The lightness that most pixels have.
  double background() const;
  double darkest() const;
  /// How many pixels of each row are darker than the background.
  std::vector<int> ink_in_rows() const;

 private:
  Picture() = default;

  int width_ = 0;
  std::vector<double> pixels_;
};

/// The contrast between two lightnesses: from 1 to 21.
double contrast(double a, double b);

#endif
