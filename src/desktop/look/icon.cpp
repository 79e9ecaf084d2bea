#include "desktop/look/icon.h"

#include <cmath>
#include <numbers>

#include <QPainterPath>

namespace orvane {
namespace {

// The drawing is 128 by 128.
constexpr double kSide = 128, kEdge = 2, kCorner = 27;  // corner: 22 per cent of the square
constexpr double kRing = 36, kSwing = 7;  // a strand is a circle that swings three times
constexpr double kWidth = 10.5, kGap = 2;
constexpr double kAtom = 9;
constexpr int kLeastWithGaps = 32;  // pixels; in a smaller icon the gaps would eat the strands

constexpr QRgb kTop = 0xFF1B2A35, kBottom = 0xFF0D151B, kShade = 0xFF131D25;
constexpr QRgb kStrands[] = {0xFF35B7C9, 0xFFF2F6F8};
constexpr QRgb kRed = 0xFFE5484D;

// Strand 0 swings out at the top, strand 1 at the bottom; angles in degrees, upwards from the
// right.
QPainterPath PartOfStrand(int strand, double middle, double reach) {
  QPainterPath path;
  for (double angle = middle - reach; angle <= middle + reach; angle += 1) {
    const double turn = angle * std::numbers::pi / 180;
    const double swing = kSwing * std::cos(3 * (turn - std::numbers::pi / 2));
    const double radius = kRing + (strand == 0 ? swing : -swing);
    const QPointF at(kSide / 2 + radius * std::cos(turn), kSide / 2 - radius * std::sin(turn));
    if (path.elementCount() == 0) {
      path.moveTo(at);
    } else {
      path.lineTo(at);
    }
  }
  return path;
}

void Stroke(QPainter& painter, const QPainterPath& path, QRgb ink, double width) {
  painter.strokePath(path,
                     QPen(QColor::fromRgba(ink), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

}  // namespace

void PaintIcon(QPainter& painter, const QRectF& box) {
  const bool has_gaps = box.width() * painter.deviceTransform().m11() >= kLeastWithGaps;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(box.topLeft());
  painter.scale(box.width() / kSide, box.height() / kSide);
  painter.setPen(Qt::NoPen);

  QLinearGradient face(0, kEdge, 0, kSide - kEdge);
  face.setColorAt(0, QColor::fromRgba(kTop));
  face.setColorAt(1, QColor::fromRgba(kBottom));
  painter.setBrush(face);
  painter.drawRoundedRect(QRectF(kEdge, kEdge, kSide - 2 * kEdge, kSide - 2 * kEdge), kCorner,
                          kCorner);

  // The strands cross at every sixth of the turn, each above in turn. What lies below is drawn
  // first.
  for (const bool above : {false, true}) {
    for (int crossing = 0; crossing < 6; ++crossing) {
      const int strand = (crossing % 2 == 0) == above ? 0 : 1;
      const double middle = 60.0 * crossing;
      if (above && has_gaps) {
        Stroke(painter, PartOfStrand(strand, middle, 29), kShade, kWidth + 2 * kGap);
      }
      Stroke(painter, PartOfStrand(strand, middle, 31), kStrands[strand], kWidth);
    }
  }

  painter.setBrush(QColor::fromRgba(kRed));
  painter.drawEllipse(QPointF(kSide / 2, kSide / 2), kAtom, kAtom);
  painter.restore();
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    PaintIcon(painter, pixmap.rect());
    icon.addPixmap(pixmap);
  }
  return icon;
}

}  // namespace orvane
