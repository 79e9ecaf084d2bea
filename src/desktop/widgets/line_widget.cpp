#include "desktop/widgets/line_widget.h"

#include "desktop/widgets/host.h"

namespace orvane {
namespace {

constexpr double kRoom = 2;     // pixels around the box, for the line's own width
constexpr double kUpright = 2;  // pixels: width of a line along an axis

}  // namespace

double LineWidget::Outset() const { return kRoom; }

void LineWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  const bool along_axis = face.width() == 0 || face.height() == 0;
  const QColor ink = QColor::fromRgba(along_axis ? palette::kEdge : palette::kInk);
  painter.setPen(QPen(ink, (along_axis ? kUpright : 1) * unit, Qt::SolidLine,
                      along_axis ? Qt::SquareCap : Qt::RoundCap));
  // An upright line is drawn beside its place, inside what holds it.
  if (face.width() == 0) painter.translate(kUpright / 2 * unit, 0);
  painter.drawLine(QPointF(0, face.height()), QPointF(face.width(), 0));
}

}  // namespace orvane
