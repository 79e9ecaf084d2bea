#include "desktop/widgets/go_on_widget.h"

namespace orvane {
namespace {

using namespace palette;

constexpr double kRingOut = 4, kRingWidth = 1.5;  // pixels around the button

}  // namespace

double GoOnWidget::Outset() const { return kRingOut; }

void GoOnWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF face = EnterPixels(painter);
  const double unit = Unit();
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(IsHeld() || underMouse() ? kDeep : kAccent));
  painter.drawEllipse(face);
  if (HasRing()) {
    const double out = (kRingOut - kRingWidth / 2) * unit;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgba(kAccentOnDark), kRingWidth * unit));
    painter.drawEllipse(face.adjusted(-out, -out, out, out));
  }
  const QPointF middle = face.center();
  const auto at = [&](double x, double y) { return middle + QPointF(x, y) * unit; };
  const QPointF head[] = {at(1.5, -5), at(6.5, 0), at(1.5, 5)};
  painter.setBrush(Qt::NoBrush);
  painter.setPen(
      QPen(QColor::fromRgba(kFace), 2.2 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawLine(at(-6.5, 0), at(6.5, 0));
  painter.drawPolyline(head, 3);
}

}  // namespace orvane
