#include "desktop/look/scale.h"

#include <algorithm>
#include <cmath>

namespace orvane {

int Scale::Device(double pixels) const { return static_cast<int>(std::lround(pixels * Unit())); }

int Scale::Edge() const { return std::max(1, Device(1)); }

QRect Scale::Device(const Place& twips) const {
  const auto corner = [&](int t) { return Device(static_cast<double>(t) / TwipsPerPixel); };
  const QPoint first(corner(twips.Left), corner(twips.Top));
  const QPoint last(corner(twips.Left + twips.Width), corner(twips.Top + twips.Height));
  return {first, QSize(last.x() - first.x(), last.y() - first.y())};
}

Spot SpotOf(const Scale& scale, const Place& absolute, double outset) {
  const QRect face = scale.Device(absolute);
  const int out = scale.Device(outset);
  const QRect all = face.adjusted(-out, -out, out, out);
  const auto low = [&](int v) { return static_cast<int>(std::floor(v / scale.Ratio)); };
  const auto high = [&](int v) { return static_cast<int>(std::ceil(v / scale.Ratio)); };
  const QPoint first(low(all.left()), low(all.top()));
  const QPoint last(high(all.left() + all.width()), high(all.top() + all.height()));
  return {face, QRect(first, QSize(last.x() - first.x(), last.y() - first.y()))};
}

void EnterDevicePixels(QPainter& painter, const Scale& scale, const Spot& spot) {
  painter.resetTransform();
  const QTransform screen = painter.deviceTransform();
  const QPointF corner = screen.map(QPointF(0, 0)) + QPointF(spot.Face.topLeft()) -
                         QPointF(spot.Hull.topLeft()) * scale.Ratio;
  painter.setWorldTransform(
      QTransform::fromTranslate(std::round(corner.x()), std::round(corner.y())) *
      screen.inverted());
  painter.setRenderHint(QPainter::Antialiasing);
}

}  // namespace orvane
