#include "desktop/widgets/row_list.h"

#include <algorithm>
#include <cmath>

#include <QTimer>

#include "desktop/look/fonts.h"
#include "desktop/widgets/flyout.h"
#include "desktop/widgets/host.h"
#include "desktop/widgets/reading_text.h"
#include "desktop/widgets/tell_reader.h"
#include "look/palette.h"

namespace orvane {
namespace {

using namespace measures;
using namespace palette;

constexpr double kRounding = 0.1;  // pixels; the width of a text is rounded to sixty-fourths

}  // namespace

RowList::RowList(Host& owner, Control& shown, QWidget& parent)
    : Viewed(owner, shown, parent), edge_(kListEdge) {}

int RowList::WholeRows() const {
  const int inner = control.At.Get().Height / TwipsPerPixel - 2 * measures_.FirstTop;
  return inner / measures_.Height;
}

int RowList::LastFirst() const { return std::max(0, static_cast<int>(rows_.size()) - WholeRows()); }

QRect RowList::RowFace(int row) const {
  const double right = measures_.Inset + (HasBar() ? kListBarZone : 0);
  const auto corner = [&](double pixels) { return host.scale.Device(pixels); };
  const QRect& face = Stand().Face;
  const double top = measures_.FirstTop + static_cast<double>(row - first_) * measures_.Height;
  const int above = face.top() + corner(top), below = face.top() + corner(top + measures_.Height);
  return {face.left() + corner(measures_.Inset), above,
          face.width() - corner(measures_.Inset) - corner(right), below - above};
}

QRect RowList::RowInWidget(int row) const {
  const QRect face = RowFace(row).translated(-Stand().Face.topLeft());
  const double ratio = host.scale.Ratio;
  return QRectF(QPointF(face.topLeft()) / ratio + FaceInWidget().topLeft(),
                QSizeF(face.size()) / ratio)
      .toAlignedRect();
}

QPoint RowList::RowMiddle(int row) const {
  const QPointF middle = QPointF(RowFace(row).center() - Stand().Face.topLeft());
  return (middle / host.scale.Ratio + FaceInWidget().topLeft()).toPoint();
}

int RowList::RowAt(QPointF widget_point) const {
  const double y = SurfacePoint(widget_point).y() - measures_.FirstTop;
  const int row = first_ + static_cast<int>(std::floor(y / measures_.Height));
  const bool there = y >= 0 && row < first_ + WholeRows() && row < rows_.size();
  return there ? row : -1;
}

RowList::Parts RowList::PartsOf(int row) const {
  const QString& text = rows_[row];
  const qsizetype blank = has_keys_ ? text.indexOf(u' ') : -1;
  if (blank < 0) return {has_keys_ ? text : QString(), has_keys_ ? QString() : text};
  return {text.left(blank), text.mid(blank).trimmed()};
}

double RowList::RoomForText() const {
  const double width = static_cast<double>(control.At.Get().Width) / TwipsPerPixel;
  return width - measures_.TextLeft -
         (HasBar() ? measures_.Inset + kListBarZone : measures_.TextLeft) + kRounding;
}

bool RowList::IsCut(int row) const {
  const Parts parts = PartsOf(row);
  const double key = parts.Key.isEmpty() ? 0 : WidthOf(kKeyType, parts.Key) + kKeyGap;
  return key + WidthOf(measures_.Letters, parts.Rest) > RoomForText();
}

QString RowList::RowAsDrawn(int row) const {
  const Parts parts = PartsOf(row);
  const double key = parts.Key.isEmpty() ? 0 : WidthOf(kKeyType, parts.Key) + kKeyGap;
  const QString rest = Elided(measures_.Letters, parts.Rest, RoomForText() - key);
  return parts.Key.isEmpty() ? rest : parts.Key + u' ' + rest;
}

QRectF RowList::BarThumb() const {
  const QSize size = Stand().Face.size();
  const double unit = Unit();
  const double track = size.height() - 2 * kListThumbIn * unit;
  const double share = static_cast<double>(WholeRows()) / std::max<qsizetype>(1, rows_.size());
  const double length = std::max(track * share, kListThumbLeast * unit);
  const double at = HasBar() ? (track - length) * first_ / LastFirst() : 0;
  const double right = size.width() - (measures_.Inset + 1) * unit;
  return {std::round(right - kListThumbWidth * unit), std::round(kListThumbIn * unit + at),
          std::round(kListThumbWidth * unit), std::round(length)};
}

bool RowList::IsOnBar(QPointF widget_point) const {
  const double x = (widget_point.x() - FaceInWidget().left()) * host.scale.Ratio;
  return HasBar() && x >= BarThumb().left() - Unit();
}

void RowList::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  if (joined_ && !HasRing()) {
    // Its upper end lies under the heading; the heading's face closes it.
    painter.setClipRect(face);
    PaintPlate(painter, face.adjusted(0, -host.scale.Device(8), 0, 0), kFace, edge_, 4 * unit,
               host.scale.Edge());
    painter.setClipping(false);
  } else {
    PaintPlate(painter, face, kFace, edge_, 4 * unit, host.scale.Edge());
  }
  const int last = std::min(static_cast<int>(rows_.size()), first_ + WholeRows());
  for (int row = first_; row < last; ++row) PaintRow(painter, row);
  if (rows_.isEmpty()) PaintInstead(painter);
  if (HasBar()) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(underMouse() || bar_held_ ? kAccent : kThumb));
    painter.drawRoundedRect(BarThumb(), kListThumbWidth / 2 * unit, kListThumbWidth / 2 * unit);
  }
  if (HasRing()) PaintRing(painter, face, kAccent, 4, unit, false);
}

void RowList::PaintRow(QPainter& painter, int row) {
  const double unit = Unit();
  const QRect face = RowFace(row).translated(-Stand().Face.topLeft());
  const bool chosen = row == chosen_;
  if (chosen || row == under_) {
    PaintPlate(painter, face, chosen ? kAccent : kTint, kNone, 3 * unit, 0);
  }
  const Parts parts = PartsOf(row);
  QRectF box(measures_.TextLeft * unit, face.top(), RoomForText() * unit, face.height());
  if (!parts.Key.isEmpty()) {
    DrawLine(painter, box, Qt::AlignLeft, kKeyType, chosen ? kFace : kDeep, unit, parts.Key);
    box.adjust((WidthOf(kKeyType, parts.Key) + kKeyGap) * unit, 0, 0, 0);
  }
  const QString rest = Elided(measures_.Letters, parts.Rest, box.width() / unit);
  DrawLine(painter, box, Qt::AlignLeft, measures_.Letters, chosen ? kFace : kInk, unit, rest);
}

void RowList::PaintInstead(QPainter& painter) {
  const double unit = Unit();
  QRectF line(measures_.TextLeft * unit, measures_.FirstTop * unit, RoomForText() * unit,
              measures_.Height * unit);
  for (const QString& words : BrokenLines(measures_.Letters, instead_, RoomForText())) {
    DrawLine(painter, line, Qt::AlignLeft, measures_.Letters, kInk2, unit, words);
    line.translate(0, measures_.Height * unit);
  }
}

void RowList::SetRows(QStringList rows) {
  rows_ = std::move(rows);
  ScrollTo(first_);
  update();
}

void RowList::SetChosen(int row) {
  const int before = chosen_;
  chosen_ = row;
  if (row >= 0 && row < first_) ScrollTo(row);
  if (row >= first_ + WholeRows()) ScrollTo(row - WholeRows() + 1);
  update();
  TellChosen(*this, before, row);
}

void RowList::ScrollTo(int first) {
  first_ = std::clamp(first, 0, LastFirst());
  update();
}

void RowList::ShowFlyout(int row) {
  if (row < 0 || row < first_ || row >= first_ + WholeRows() || !IsCut(row)) {
    return host.flyout->HideOf(this);
  }
  const Parts parts = PartsOf(row);
  QRect place = RowFace(row);
  place.setRight(Stand().Face.right() - host.scale.Device(1));
  host.flyout->ShowRow(this, place, parts.Key, parts.Rest);
}

void RowList::Point(int row) {
  if (row == under_) return;
  under_ = row;
  ShowFlyout(row >= 0 ? row : by_keys_ ? chosen_ : -1);
  update();
}

void RowList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (IsOnBar(event->position())) {
    const QPointF at = (event->position() - FaceInWidget().topLeft()) * host.scale.Ratio;
    const QRectF thumb = BarThumb();
    bar_held_ = true;
    grip_ = thumb.adjusted(-Unit(), 0, Unit(), 0).contains(at) ? at.y() - thumb.top()
                                                               : thumb.height() / 2;
    return mouseMoveEvent(event);
  }
  by_keys_ = false;
  const int row = RowAt(event->position());
  if (row >= 0) Choose(row);
}

void RowList::mouseMoveEvent(QMouseEvent* event) {
  if (!bar_held_) return Point(RowAt(event->position()));
  const QPointF at = (event->position() - FaceInWidget().topLeft()) * host.scale.Ratio;
  const double track = Stand().Face.height() - 2 * kListThumbIn * Unit() - BarThumb().height();
  const double part = track > 0 ? (at.y() - grip_ - kListThumbIn * Unit()) / track : 0;
  ScrollTo(static_cast<int>(std::lround(part * LastFirst())));
}

void RowList::mouseReleaseEvent(QMouseEvent*) {
  bar_held_ = false;
  update();
}

void RowList::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool on_row = event->button() == Qt::LeftButton && !IsOnBar(event->position());
  const int row = RowAt(event->position());
  if (!on_row || row < 0 || row != chosen_) return mousePressEvent(event);
  ChooseTwice(row);
}

void RowList::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  Point(-1);
}

// The toolkit reports the list itself after this returns, and the row has to come after that.
void RowList::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  QTimer::singleShot(0, this, [this] { TellKeyboardAtRow(*this); });
}

void RowList::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  by_keys_ = false;
  ShowFlyout(under_);
}

void RowList::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  host.flyout->HideOf(this);
}

void RowList::keyPressEvent(QKeyEvent* event) {
  const int last = static_cast<int>(rows_.size()) - 1;
  int row = chosen_;
  switch (event->key()) {
    case Qt::Key_Up:
      row -= 1;
      break;
    case Qt::Key_Down:
      row += 1;
      break;
    case Qt::Key_PageUp:
      row -= WholeRows();
      break;
    case Qt::Key_PageDown:
      row += WholeRows();
      break;
    case Qt::Key_Home:
      row = 0;
      break;
    case Qt::Key_End:
      row = last;
      break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      break;
    default:
      event->ignore();
      return;
  }
  if (last < 0) return;
  by_keys_ = true;
  Choose(std::clamp(row, 0, last));
  under_ = -1;
  ShowFlyout(chosen_);
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && chosen_ >= 0) ChooseTwice(chosen_);
}

void RowList::wheelEvent(QWheelEvent* event) {
  ScrollTo(first_ - turn_.NotchesOf(event->angleDelta().y()));
  Point(RowAt(event->position()));
  event->accept();
}

}  // namespace orvane
