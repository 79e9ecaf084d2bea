#include "look/scale.h"

#include <algorithm>
#include <cmath>

namespace orvane {

int Scale::Device(double pixels) const { return static_cast<int>(std::lround(pixels * Unit())); }

int Scale::Edge() const { return std::max(1, Device(1)); }

PixelBox Scale::Device(const Place& twips) const {
  const auto corner = [&](int t) { return Device(static_cast<double>(t) / TwipsPerPixel); };
  const int left = corner(twips.Left), top = corner(twips.Top);
  return {left, top, corner(twips.Left + twips.Width) - left,
          corner(twips.Top + twips.Height) - top};
}

PixelSpot PixelSpotOf(const Scale& scale, const Place& absolute, double outset) {
  const PixelBox face = scale.Device(absolute);
  const int out = scale.Device(outset);
  const auto low = [&](int v) { return static_cast<int>(std::floor(v / scale.Ratio)); };
  const auto high = [&](int v) { return static_cast<int>(std::ceil(v / scale.Ratio)); };
  const int left = low(face.Left - out), top = low(face.Top - out);
  return {face,
          {left, top, high(face.Left + face.Width + out) - left,
           high(face.Top + face.Height + out) - top}};
}

}  // namespace orvane
