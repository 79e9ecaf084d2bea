#include "desktop/still_pictures.h"

#include <QPainterPath>

#include "desktop/icon.h"
#include "desktop/window_widget.h"

namespace orvane {

void IconWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  PaintIcon(painter, face);
}

RoundPicture::RoundPicture(WindowWidget& owner, Control& shown, QWidget& parent)
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

void FigureWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit(), corner = dress_.Corner * unit;
  PaintPlate(painter, face, dress_.Face, dress_.Edge, corner, host.scale.Edge());
  const double middle = face.width() / 2.0;
  QPainterPath person;
  person.addEllipse(QPointF(middle, 56 * unit), 27 * unit, 27 * unit);
  person.addRoundedRect(QRectF(middle - 42 * unit, 92 * unit, 84 * unit, 90 * unit), 42 * unit,
                        42 * unit);
  painter.setClipRect(face.adjusted(0, 0, 0, -host.scale.Edge()));
  painter.fillPath(person, QColor::fromRgba(palette::kAccent));
}

}  // namespace orvane
