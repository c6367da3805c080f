#include "gui/pixels.h"

#include <X11/IntrinsicP.h>
#include <X11/RectObjP.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>

namespace {

/// A part of a colour as light, which eyes and screens do not see in proportion.
double light(unsigned long part) {
  const double share = static_cast<double>(part & 0xff) / 255;
  return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double lightness(unsigned long pixel) {
  return 0.2126 * light(pixel >> 16) + 0.7152 * light(pixel >> 8) + 0.0722 * light(pixel);
}

}  // namespace

Area area_of(Widget w) {
  const auto* area = reinterpret_cast<RectObj>(w);
  Position x = 0;
  Position y = 0;
  XtTranslateCoords(w, 0, 0, &x, &y);
  return {x, y, area->rectangle.width, area->rectangle.height};
}

Area area_of(const std::string& name) { return area_of(widget(name)); }

Picture::Picture(Area area) : width_(area.width) {
  const auto width = static_cast<unsigned>(area.width);
  const auto height = static_cast<unsigned>(area.height);
  const std::unique_ptr<XImage, int (*)(XImage*)> image(
      XGetImage(display, DefaultRootWindow(display), area.left, area.top, width, height, AllPlanes, ZPixmap),
      [](XImage* pixels) { return XDestroyImage(pixels); });
  for (int y = 0; y < area.height; ++y) {
    for (int x = 0; x < area.width; ++x) pixels_.push_back(lightness(XGetPixel(image.get(), x, y)));
  }
}

Picture Picture::inside(int margin) const {
  Picture part;
  part.width_ = width_ - 2 * margin;
  for (int y = margin; y < height() - margin; ++y) {
    for (int x = margin; x < width_ - margin; ++x) part.pixels_.push_back(at(x, y));
  }
  return part;
}

double Picture::background() const {
  std::map<double, int> counts;
  for (double pixel : pixels_) ++counts[pixel];
  return std::ranges::max_element(counts, {}, [](const auto& row) { return row.second; })->first;
}

double Picture::darkest() const { return std::ranges::min(pixels_); }

std::vector<int> Picture::ink_in_rows() const {
  const double ground = background();
  std::vector<int> rows(static_cast<std::size_t>(height()));
  for (int y = 0; y < height(); ++y) {
    for (int x = 0; x < width_; ++x) rows[static_cast<std::size_t>(y)] += at(x, y) < ground;
  }
  return rows;
}

double contrast(double a, double b) { return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05); }
