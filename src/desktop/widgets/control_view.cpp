#include "desktop/widgets/control_view.h"

#include <algorithm>

#include "desk/actions.h"
#include "desk/press_life.h"
#include "desktop/widgets/host.h"
#include "desktop/widgets/tell_reader.h"
#include "look/palette.h"
#include "narration/spoken_words.h"

namespace orvane {
namespace {

Place Absolute(const Control& control, Place place) {
  for (const Control* above = control.Parent; above != nullptr; above = above->Parent) {
    place.Left += above->At.Get().Left;
    place.Top += above->At.Get().Top;
  }
  return place;
}

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Left, right and middle button, as events number them.
int ButtonOf(Qt::MouseButton button) {
  return button == Qt::LeftButton    ? kLeftButton
         : button == Qt::RightButton ? kRightButton
                                     : kMiddleButton;
}

// The sum of those held.
int ButtonsOf(Qt::MouseButtons buttons) {
  return (buttons & Qt::LeftButton ? kLeftButton : 0) +
         (buttons & Qt::RightButton ? kRightButton : 0) +
         (buttons & Qt::MiddleButton ? kMiddleButton : 0);
}

}  // namespace

ControlView::ControlView(Host& owner, Control& shown, QWidget& own)
    : control(shown), widget(own), host(owner) {
  widget.setObjectName(Text(control.FullName()));
  widget.setToolTip(Text(control.Row.Tip));
  widget.setMouseTracking(true);
  widget.setFocusPolicy(control.Row.TabStop > 0 ? Qt::StrongFocus : Qt::NoFocus);
}

void ControlView::Begin() {
  const Orvane_Desk& desk = host.desk;
  widget.setAccessibleName(Text(NameNow(desk, control)));
  widget.setAccessibleDescription(Text(DescriptionNow(desk, control)));
  widget.setEnabled(control.Enabled);
  widget.setVisible(control.Visible);
}

void ControlView::Take(Aspect aspect) {
  switch (aspect) {
    case Aspect::Visible:
      widget.setVisible(control.Visible);
      break;
    case Aspect::Enabled:
      widget.setEnabled(control.Enabled);
      break;
    case Aspect::Place:
      Lay();
      break;
    case Aspect::Front:
      widget.raise();
      break;
    case Aspect::Focus:
      widget.setFocus();
      break;
    case Aspect::Caption:
      widget.setAccessibleName(Text(NameNow(host.desk, control)));
      TellState(*this);
      Announce(*this);
      break;
    case Aspect::Look:
      TellState(*this);
      break;
    default:
      break;
  }
  widget.update();
}

void ControlView::Lay() {
  const QWidget* above = widget.parentWidget();
  spot_ = SpotOf(host.scale, host.OnDesk(Absolute(control, StandsAt())), Outset());
  widget.setGeometry(spot_.Hull.translated(-above->mapTo(&host.Desk(), QPoint(0, 0))));
}

double ControlView::Unit() const { return host.scale.Unit(); }

QRectF ControlView::FaceInWidget() const {
  const double ratio = host.scale.Ratio;
  return {QPointF(spot_.Face.topLeft()) / ratio - spot_.Hull.topLeft(),
          QSizeF(spot_.Face.size()) / ratio};
}

QPointF ControlView::SurfacePoint(QPointF widget_point) const {
  return (widget_point - FaceInWidget().topLeft()) / host.scale.Factor;
}

void ControlView::Hear(QEvent& event) {
  switch (event.type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
      host.PointerOver(control);
      break;
    case QEvent::FocusIn:
      FocusComes(host.desk, control);
      break;
    default:
      break;
  }
  switch (event.type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      widget.update();
      break;
    default:
      break;
  }
}

void ControlView::PassPress(PressLife& life, const QMouseEvent& event) const {
  const QPointF at = SurfacePoint(event.position());
  life.ButtonDown(ButtonOf(event.button()), static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void ControlView::PassMove(PressLife& life, const QMouseEvent& event) const {
  const QPointF at = SurfacePoint(event.position());
  life.Moved(ButtonsOf(event.buttons()), static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void ControlView::PassRelease(PressLife& life, const QMouseEvent& event, bool over) const {
  const QPointF at = SurfacePoint(event.position());
  life.ButtonUp(ButtonOf(event.button()), static_cast<float>(at.x()), static_cast<float>(at.y()),
                over);
}

QRect ControlView::EnterPixels(QPainter& painter) const {
  EnterDevicePixels(painter, host.scale, spot_);
  return {QPoint(0, 0), spot_.Face.size()};
}

void PaintPlate(QPainter& painter, const QRectF& face, QRgb fill, QRgb edge, double corner,
                int width) {
  painter.setPen(Qt::NoPen);
  if (qAlpha(edge) != 0) {
    painter.setBrush(QColor::fromRgba(edge));
    painter.drawRoundedRect(face, corner, corner);
    const double inner = std::max(0.0, corner - width);
    painter.setBrush(QColor::fromRgba(fill));
    painter.drawRoundedRect(face.adjusted(width, width, -width, -width), inner, inner);
  } else if (qAlpha(fill) != 0) {
    painter.setBrush(QColor::fromRgba(fill));
    painter.drawRoundedRect(face, corner, corner);
  }
}

void PaintRing(QPainter& painter, const QRectF& face, QRgb ink, double corner, double unit,
               bool white_within) {
  const auto line = [&](double from, double thick, QRgb colour) {
    const double middle = (from + thick / 2) * unit;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor::fromRgba(colour), thick * unit));
    const double round = std::max(0.0, corner * unit - middle);
    painter.drawRoundedRect(face.adjusted(middle, middle, -middle, -middle), round, round);
  };
  if (white_within) line(2, 1, palette::kFace);
  line(0, 2, ink);
}

void PaintShadow(QPainter& painter, const QRect& face, double corner, int reach) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 15));
  for (int step = reach; step > 0; --step) {
    painter.drawRoundedRect(face.adjusted(-step, -step, step, step), corner + step, corner + step);
  }
}

}  // namespace orvane
