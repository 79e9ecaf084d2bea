#include "desktop/widgets/tab_widget.h"

#include <QKeyEvent>

#include "desk/actions.h"
#include "desktop/look/fonts.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;

}  // namespace

TabWidget::TabWidget(Host& owner, Control& shown, QWidget& parent)
    : Viewed(owner, shown, parent), life_(owner.desk, shown) {}

// The widget covers both while the caption is out, otherwise only the tab.
void TabWidget::Lay() {
  ControlView::Lay();
  tab_ = Stand();
  const Place at = control.At;
  const Place out =
      host.OnDesk({at.Left + at.Width - kTabOutWidth, at.Top + (at.Height - kTabOutHeight) / 2,
                   kTabOutWidth, kTabOutHeight});
  out_ = SpotOf(host.scale, out, kTabShadow);
  if (IsOut()) setGeometry(tab_.Hull.united(out_.Hull));
}

bool TabWidget::event(QEvent* event) {
  const bool handled = Viewed::event(event);
  switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      Lay();
      if (IsOut()) raise();
      break;
    default:
      break;
  }
  return handled;
}

void TabWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Spot tab{tab_.Face, geometry()};
  painter.save();
  EnterDevicePixels(painter, host.scale, tab);
  PaintTab(painter, QRect(QPoint(0, 0), tab.Face.size()));
  painter.restore();
  if (!IsOut()) return;
  EnterDevicePixels(painter, host.scale, {out_.Face, geometry()});
  PaintCaption(painter, QRect(QPoint(0, 0), out_.Face.size()));
}

void TabWidget::PaintTab(QPainter& painter, const QRect& face) {
  const double unit = Unit();
  // Its right end lies beyond the desk.
  const QRect longer = face.adjusted(0, 0, static_cast<int>(6 * unit), 0);
  painter.setClipRect(face);
  PaintPlate(painter, longer, palette::kFace, palette::kSoftEdge, 4 * unit, host.scale.Edge());
  const QPointF middle(face.width() / 2.0 + unit / 2, face.height() / 2.0);
  const QPointF arrow[] = {middle + QPointF(unit, -3 * unit), middle + QPointF(-1.5 * unit, 0),
                           middle + QPointF(unit, 3 * unit)};
  painter.setPen(QPen(QColor::fromRgba(palette::kAccent), 1.5 * unit, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPolyline(arrow, 3);
  painter.setClipping(false);
}

void TabWidget::PaintCaption(QPainter& painter, const QRect& face) {
  const double unit = Unit(), corner = 4 * unit;
  PaintShadow(painter, face, corner, host.scale.Device(kTabShadow));
  PaintPlate(painter, face, life_.IsHeld() ? palette::kPress : palette::kTint, palette::kAccent,
             corner, host.scale.Edge());
  if (HasRing()) PaintRing(painter, face, palette::kAccent, 4, unit, true);
  DrawLine(painter, face, Qt::AlignHCenter, kPlainType, palette::kDeep, unit,
           QString::fromStdString(control.Caption));
}

void TabWidget::mousePressEvent(QMouseEvent* event) {
  update();
  PassPress(life_, *event);
}

void TabWidget::mouseReleaseEvent(QMouseEvent* event) {
  update();
  PassRelease(life_, *event, rect().contains(event->position().toPoint()));
}

void TabWidget::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter && event->key() != Qt::Key_Space) return event->ignore();
  Click(host.desk, control);
}

}  // namespace orvane
