#include "desktop/look/spot.h"

#include <cmath>

namespace orvane {

Spot SpotOf(const Scale& scale, const Place& absolute, double outset) {
  const PixelSpot spot = PixelSpotOf(scale, absolute, outset);
  return {RectOf(spot.Face), RectOf(spot.Hull)};
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
