#include "desktop/widgets/link_widget.h"

#include <cmath>

#include "desktop/look/fonts.h"
#include "desktop/widgets/host.h"

namespace orvane {
namespace {

constexpr double kRingOut = 4;  // pixels around the text

}  // namespace

LinkWidget::LinkWidget(Host& owner, Control& shown, QWidget& parent) : Plate(owner, shown, parent) {
  setCursor(Qt::PointingHandCursor);
}

double LinkWidget::Outset() const { return kRingOut; }

void LinkWidget::Lay() {
  Plate::Lay();
  width_ = WidthOf(dress_.Letters, QString::fromStdString(control.Caption)) * Unit();
  const double out = kRingOut * host.scale.Factor;
  resize(static_cast<int>(std::ceil(width_ / host.scale.Ratio + 2 * out)), height());
}

void LinkWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  const QRgb ink = underMouse() ? palette::kOnDark : dress_.Ink;
  DrawLine(painter, face, Qt::AlignLeft, dress_.Letters, ink, unit,
           QString::fromStdString(control.Caption));
  const int thick = host.scale.Edge();
  const int under = static_cast<int>(std::lround(face.center().y() + 6.5 * unit));
  painter.fillRect(QRectF(face.left(), under, width_, thick), QColor::fromRgba(ink));
  if (!HasRing()) return;
  const QRectF text(face.left(), face.center().y() - 9 * unit, width_, 18 * unit);
  PaintRing(painter, text.adjusted(-kRingOut * unit, 0, kRingOut * unit, 0), palette::kAccentOnDark,
            4, unit, false);
}

}  // namespace orvane
