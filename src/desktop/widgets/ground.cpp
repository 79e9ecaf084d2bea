#include "desktop/widgets/ground.h"

#include <QMouseEvent>
#include <QPainter>

#include "desktop/look/spot.h"
#include "desktop/widgets/host.h"
#include "look/palette.h"
#include "look/window_dress.h"

namespace orvane {

Ground::Ground(QWidget& parent, Host& window, Window& shown)
    : QWidget(&parent), host_(window), shown_(shown) {
  setMouseTracking(true);
}

void Ground::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const WindowDress& dress = WindowDressOf(shown_.Name);
  painter.fillRect(rect(), QColor::fromRgba(dress.Ground));
  if (dress.Band > 0) {
    EnterDevicePixels(painter, host_.scale, {{}, {}});
    const QRect all = RectOf(host_.scale.Device({0, 0, shown_.Row.At.Width, dress.Band}));
    painter.fillRect(all, QColor::fromRgba(palette::kBezel));
  }
}

void Ground::mouseMoveEvent(QMouseEvent*) { host_.PointerOver(shown_); }
void Ground::mousePressEvent(QMouseEvent* event) { event->accept(); }

}  // namespace orvane
