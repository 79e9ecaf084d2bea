#include "desktop/widgets/plate.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>

#include "desktop/look/fonts.h"
#include "desktop/look/sight.h"
#include "desktop/widgets/host.h"
#include "look/measures.h"
#include "look/plate_look.h"

namespace orvane {
namespace {

using namespace measures;
using namespace palette;

QString CaptionOf(const Control& control) { return QString::fromStdString(control.Caption); }

}  // namespace

Plate::Plate(Host& owner, Control& shown, QWidget& parent)
    : Viewed(owner, shown, parent), dress_(DressOf(shown)), life_(owner.desk, shown) {
  const ControlKind kind = shown.Row.Kind;
  if (kind == ControlKind::Ornament || kind == ControlKind::Line) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }
}

Place Plate::StandsAt() const {
  Place place = control.At;
  if (dress_.GrowsTo > 0) {
    const double text = WidthOf(dress_.Letters, CaptionOf(control)) + dress_.TextLeft;
    const int wide = static_cast<int>(std::ceil(text)) * TwipsPerPixel;
    place.Width = std::clamp(wide, place.Width, std::max(place.Width, dress_.GrowsTo));
  }
  return place;
}

void Plate::Take(Aspect aspect) {
  const bool had_keyboard = dress_.Floats && isAncestorOf(window()->focusWidget());
  ControlView::Take(aspect);
  if (aspect == Aspect::Caption && dress_.GrowsTo > 0) Lay();
  if (aspect == Aspect::Visible && dress_.Floats) host.FloatingPanelTurned(control, had_keyboard);
}

double Plate::Outset() const {
  return dress_.Floats ? kPanelShadow : dress_.Shape == DressShape::Swatch ? kSwatchRing : 0;
}

void Plate::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  switch (dress_.Shape) {
    case DressShape::Bevel:
      PaintBevel(painter, face);
      break;
    case DressShape::Swatch:
      PaintSwatch(painter, face);
      break;
    default:
      PaintPlain(painter, face);
      break;
  }
}

void Plate::PaintBevel(QPainter& painter, const QRect& face) {
  const double corner = dress_.Corner * Unit();
  const int edge = host.scale.Edge();
  const BevelLook look =
      BevelLookOf(control, dress_, {.Off = !isEnabled(), .Under = underMouse(), .Held = IsHeld()});
  if (look.Edge == kNone) {
    const double in = edge / 2.0;  // in place of the missing edge
    PaintPlate(painter, QRectF(face).adjusted(in, in, -in, -in), look.Face, kNone, corner, edge);
    PaintCaption(painter, face, look.Ink, look.Letters);
    return;
  }
  PaintPlate(painter, face, look.Face, look.Edge, corner, edge);
  const QRect lower(face.left(), face.bottom() + 1 - edge, face.width(), edge);
  if (look.LowerEdge != kNone) {
    painter.save();
    painter.setClipRect(lower);
    PaintPlate(painter, face, look.LowerEdge, kNone, corner, edge);
    painter.restore();
  }
  if (look.Sunken && !HasRing()) {
    QColor shade = QColor::fromRgba(kDeep);
    shade.setAlphaF(kSunkenShade);
    const int in = static_cast<int>(corner);
    painter.fillRect(QRect(face.left() + in, face.top() + edge, face.width() - 2 * in, edge),
                     shade);
  }
  if (HasRing()) PaintRing(painter, face, kAccent, dress_.Corner, Unit(), true);
  PaintCaption(painter, face, look.Ink, look.Letters);
}

void Plate::PaintSwatch(QPainter& painter, const QRect& face) {
  const Colour colour = control.BackColor;
  const double corner = dress_.Corner * Unit();
  const int edge = host.scale.Edge();
  // As the picture would show it.
  const QRgb fill = host.sight.Shown(qRgb(Red(colour), Green(colour), Blue(colour)));
  PaintPlate(painter, face, fill, SwatchEdge(fill), corner, edge);
  if (HasRing() || underMouse()) {
    const double out = 2.5 * Unit();
    PaintRing(painter, QRectF(face).adjusted(-out, -out, out, out), kAccent, dress_.Corner + 2.5,
              Unit(), true);
  }
  PaintCaption(painter, face, kInk, dress_.Letters);
}

void Plate::PaintPlain(QPainter& painter, const QRect& face) {
  const double corner = dress_.Corner * Unit();
  const int edge = host.scale.Edge();
  if (dress_.Floats) PaintShadow(painter, face, corner, host.scale.Device(kPanelShadow));
  if (dress_.Shape == DressShape::Heading) {
    // Its lower end lies under the list; the list's edge closes it.
    painter.setClipRect(face);
    PaintPlate(painter, face.adjusted(0, 0, 0, static_cast<int>(corner) + edge), dress_.Face,
               dress_.Edge, corner, edge);
  } else {
    PaintPlate(painter, face, dress_.Face, dress_.Edge, corner, edge);
  }
  if (HasRing()) PaintRing(painter, face, kAccent, dress_.Corner, Unit(), true);
  PaintCaption(painter, face, isEnabled() ? dress_.Ink : kDisabled, dress_.Letters);
}

void Plate::PaintCaption(QPainter& painter, const QRect& face, QRgb ink, Type letters) {
  QString caption = CaptionOf(control);
  const double unit = Unit();
  const Qt::Alignment align = AlignmentOf(dress_.Align);
  if (dress_.Align == Side::Centre) caption = caption.trimmed();
  QRectF box = QRectF(face).adjusted(dress_.TextLeft * unit, 0, -dress_.TextRight * unit, 0);
  if (dress_.Upwards) {
    painter.translate(face.left(), face.bottom() + 1);
    painter.rotate(-90);
    box = QRectF(0, 0, face.height(), face.width());
  }
  if (dress_.TextTop >= 0) box = QRectF(box.left(), dress_.TextTop * unit, box.width(), 16 * unit);
  if (dress_.LineHeight == 0) {
    DrawLine(painter, box, align, letters, ink, unit, caption);
    return;
  }
  const QStringList lines = caption.split(u'\n');
  const double height = dress_.LineHeight * unit;
  double top = face.top() + (face.height() - height * static_cast<double>(lines.size())) / 2;
  for (const QString& line : lines) {
    DrawLine(painter, QRectF(box.left(), top, box.width(), height), align, letters, ink, unit,
             line);
    top += height;
  }
}

void Plate::mousePressEvent(QMouseEvent* event) {
  update();
  PassPress(life_, *event);
}

void Plate::mouseMoveEvent(QMouseEvent* event) { PassMove(life_, *event); }

void Plate::mouseReleaseEvent(QMouseEvent* event) {
  update();
  PassRelease(life_, *event, FaceInWidget().contains(event->position()));
}

// Space and Enter act as a click.
void Plate::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool own = hasFocus();  // otherwise the key comes from a control that lies on this one
  if (!own || (!enter && event->key() != Qt::Key_Space)) return event->ignore();
  if (!event->isAutoRepeat()) life_.KeyDown(event->key());
  update();
}

void Plate::keyReleaseEvent(QKeyEvent* event) {
  update();
  if (event->isAutoRepeat() || !life_.KeyUp(event->key())) event->ignore();
}

void Plate::focusOutEvent(QFocusEvent* event) {
  Viewed::focusOutEvent(event);
  life_.KeyboardLeaves();
  update();
}

}  // namespace orvane
