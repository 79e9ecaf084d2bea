#include "desktop/widgets/still_pictures.h"

#include "desktop/look/icon.h"
#include "desktop/widgets/host.h"

namespace orvane {

void IconWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  PaintIcon(painter, face);
}

RoundPicture::RoundPicture(Host& owner, Control& shown, QWidget& parent)
    : PictureWidget(owner, shown, parent), dress_(DressOf(shown)) {
  setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void RoundPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double corner = dress_.Corner * Unit();
  const int edge = host.scale.Edge();
  PaintPlate(painter, face, palette::kNone, dress_.Edge, corner, edge);
  painter.setBrush(QBrush(Pixels()));
  painter.drawRoundedRect(face.adjusted(edge, edge, -edge, -edge), corner - edge, corner - edge);
}

}  // namespace orvane
