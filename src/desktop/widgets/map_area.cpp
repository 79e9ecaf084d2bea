#include "desktop/widgets/map_area.h"

#include "desktop/widgets/host.h"

namespace orvane {
namespace {

constexpr QRgb kMapEdge = 0xFFA65A5F;

}  // namespace

// Its place may end between two of the toolkit's pixels; what is not painted here shows the frame.
MapAreaWidget::MapAreaWidget(Host& owner, Control& shown, QWidget& parent)
    : PictureWidget(owner, shown, parent) {
  setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void MapAreaWidget::paintEvent(QPaintEvent* event) {
  PictureWidget::paintEvent(event);
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const int edge = host.scale.Edge();
  const QColor ink = QColor::fromRgba(kMapEdge);
  painter.fillRect(QRect(0, 0, face.width(), edge), ink);
  painter.fillRect(QRect(0, face.height() - edge, face.width(), edge), ink);
  painter.fillRect(QRect(0, 0, edge, face.height()), ink);
  painter.fillRect(QRect(face.width() - edge, 0, edge, face.height()), ink);
}

}  // namespace orvane
