#include "desktop/widgets/bar_widget.h"

#include <algorithm>
#include <cmath>

#include <QSignalBlocker>

#include "desk/actions.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;

}  // namespace

BarWidget::BarWidget(Host& owner, ScrollBar& shown, QWidget& parent)
    : Viewed(owner, shown, parent),
      bar_(shown),
      lies_(shown.At.Get().Width > shown.At.Get().Height) {
  setOrientation(lies_ ? Qt::Horizontal : Qt::Vertical);
  setRange(bar_.Range.Min, bar_.Range.Max);
  setSingleStep(bar_.Range.SmallStep);
  setPageStep(bar_.Range.LargeStep);
  setValue(bar_.Value);
  // A screen reader sets the value directly; everything else goes through the bar.
  connect(this, &QAbstractSlider::valueChanged, this,
          [this](int set) { StepBar(host.desk, bar_, set); });
}

void BarWidget::Take(Aspect aspect) {
  ControlView::Take(aspect);
  const QSignalBlocker quiet(this);
  setValue(bar_.Value);
}

BarWidget::Way BarWidget::WayOf() const {
  const QSize size = Stand().Face.size();
  Way way{};
  way.Length = lies_ ? size.width() : size.height();
  way.Arrow = lies_ ? size.height() : size.width();
  const double track = way.Length - 2 * way.Arrow;
  way.Thumb = std::max(kThumbShare * track, kThumbLeast * Unit());
  const double part =
      static_cast<double>(bar_.Value - bar_.Range.Min) / (bar_.Range.Max - bar_.Range.Min);
  way.ThumbAt = way.Arrow + part * (track - way.Thumb);
  return way;
}

QRectF BarWidget::ThumbInWidget() const {
  const Way way = WayOf();
  const double ratio = host.scale.Ratio;
  const QRectF face = FaceInWidget();
  return lies_ ? QRectF(face.left() + way.ThumbAt / ratio, face.top(), way.Thumb / ratio,
                        face.height())
               : QRectF(face.left(), face.top() + way.ThumbAt / ratio, face.width(),
                        way.Thumb / ratio);
}

double BarWidget::Along(QPointF widget_point) const {
  const QPointF from = widget_point - FaceInWidget().topLeft();
  return (lies_ ? from.x() : from.y()) * host.scale.Ratio;
}

void BarWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const Way way = WayOf();
  const double unit = Unit();
  PaintPlate(painter, face, palette::kTrack, palette::kHair, 6 * unit, host.scale.Edge());
  if (HasRing()) PaintRing(painter, face, palette::kAccent, 6, unit, false);
  PaintArrow(painter, face, false);
  PaintArrow(painter, face, true);
  const double in = std::round(kThumbIn * unit);
  const double at = std::round(way.ThumbAt), end = std::round(way.ThumbAt + way.Thumb);
  const QRectF thumb = lies_ ? QRectF(at, in, end - at, face.height() - 2 * in)
                             : QRectF(in, at, face.width() - 2 * in, end - at);
  const double round = std::min(thumb.width(), thumb.height()) / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(HasRing() || underMouse() || dragging_ ? palette::kAccent
                                                                           : palette::kThumb));
  painter.drawRoundedRect(thumb, round, round);
}

void BarWidget::PaintArrow(QPainter& painter, const QRect& face, bool at_end) {
  const Way way = WayOf();
  const double unit = Unit();
  const double middle = at_end ? way.Length - way.Arrow / 2 : way.Arrow / 2;
  const double reach = 1.3 * unit, half = 2.5 * unit;
  const double tip = at_end ? middle + reach : middle - reach;
  const double tail = at_end ? middle - reach : middle + reach;
  const double across = way.Arrow / 2;
  const auto point = [&](double along, double off) {
    return lies_ ? QPointF(along, across + off) : QPointF(across + off, along);
  };
  const QPointF line[] = {point(tail, -half), point(tip, 0), point(tail, half)};
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor::fromRgba(palette::kInk2), 1.5 * unit, Qt::SolidLine, Qt::RoundCap,
                      Qt::RoundJoin));
  painter.drawPolyline(line, 3);
  (void)face;
}

void BarWidget::StepBy(int step) { StepBar(host.desk, bar_, bar_.Value + step); }

void BarWidget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Way way = WayOf();
  pointer_ = Along(event->position());
  if (pointer_ >= way.ThumbAt && pointer_ < way.ThumbAt + way.Thumb) {
    dragging_ = true;
    grip_ = pointer_ - way.ThumbAt;
    return;
  }
  const bool back = pointer_ < way.ThumbAt;
  const bool arrow = pointer_ < way.Arrow || pointer_ >= way.Length - way.Arrow;
  held_step_ = (back ? -1 : 1) * (arrow ? bar_.Range.SmallStep : bar_.Range.LargeStep);
  repeat_.start(kFirstRepeat, this);
  StepBy(held_step_);
}

void BarWidget::mouseMoveEvent(QMouseEvent* event) {
  pointer_ = Along(event->position());
  if (!dragging_) return;
  const Way way = WayOf();
  const double part = (pointer_ - grip_ - way.Arrow) / (way.Length - 2 * way.Arrow - way.Thumb);
  const int value =
      bar_.Range.Min + static_cast<int>(std::lround(part * (bar_.Range.Max - bar_.Range.Min)));
  const int reached = std::clamp(value, bar_.Range.Min, bar_.Range.Max);
  if (reached != bar_.Value) DragBar(host.desk, bar_, reached);
}

void BarWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  repeat_.stop();
  held_step_ = 0;
  if (!dragging_) return;
  dragging_ = false;
  update();
  DropBar(host.desk, bar_);
}

void BarWidget::timerEvent(QTimerEvent* event) {
  if (event->timerId() != repeat_.timerId()) return QAbstractSlider::timerEvent(event);
  repeat_.start(kNextRepeat, this);
  Repeat();
}

// A page step stops once the thumb is under the pointer.
void BarWidget::Repeat() {
  const Way way = WayOf();
  const bool under = pointer_ >= way.ThumbAt && pointer_ < way.ThumbAt + way.Thumb;
  if (held_step_ != 0 && !under) StepBy(held_step_);
}

void BarWidget::keyPressEvent(QKeyEvent* event) {
  const BarRange& range = bar_.Range;
  switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      StepBy(-range.SmallStep);
      break;
    case Qt::Key_Right:
    case Qt::Key_Down:
      StepBy(range.SmallStep);
      break;
    case Qt::Key_PageUp:
      StepBy(-range.LargeStep);
      break;
    case Qt::Key_PageDown:
      StepBy(range.LargeStep);
      break;
    case Qt::Key_Home:
      StepBar(host.desk, bar_, range.Min);
      break;
    case Qt::Key_End:
      StepBar(host.desk, bar_, range.Max);
      break;
    default:
      event->ignore();
  }
}

void BarWidget::wheelEvent(QWheelEvent* event) {
  const QPoint turn = event->angleDelta();
  const int notches = turn_.NotchesOf(turn.y() != 0 ? turn.y() : turn.x());
  if (notches != 0) StepBy(-notches * bar_.Range.SmallStep);
  event->accept();
}

}  // namespace orvane
