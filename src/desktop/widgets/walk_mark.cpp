#include "desktop/widgets/walk_mark.h"

#include <algorithm>

#include "desktop/look/fonts.h"
#include "desktop/widgets/control_view.h"
#include "draw/elements.h"
#include "look/palette.h"
#include "narration/atom_walk.h"

namespace orvane {
namespace {

// Pixels at 100 per cent.
constexpr double kLeastRadius = 6, kClear = 3;        // of the ring, and between it and a ball
constexpr double kDarkLine = 4.5, kBrightLine = 1.5;  // the ring and what it lies on
constexpr double kIn = 8, kPad = 6, kHeight = 18;     // of the words, and of one line
constexpr double kNextLine = 15;
constexpr Type kWords{11, 500};

double RadiusOfBall(const Orvane_Desk& desk, int atom) {
  if (desk.drawing.BallsOn != 1) return 0;
  const ElementRow* element = FindElement(ElementLetter(desk.molecule.AtomName[atom]));
  return desk.drawing.BallSize + (element == nullptr ? 0 : element->BallRadius);
}

// A line that is too wide breaks after its last comma that fits.
QStringList Broken(const QString& text, double most) {
  QStringList lines = text.split(u'\n');
  for (qsizetype i = 0; i < lines.size(); ++i) {
    const QString line = lines[i];
    qsizetype comma = line.size();
    while (comma > 0 && WidthOf(kWords, line.left(comma)) > most) {
      comma = line.lastIndexOf(QStringLiteral(", "), comma - 1);
    }
    if (comma <= 0 || comma == line.size()) continue;
    lines[i] = line.left(comma + 1);
    lines.insert(i + 1, line.mid(comma + 2));
  }
  return lines;
}

void PaintWords(QPainter& painter, const QRect& face, double unit, const QString& words) {
  const double most = face.width() / unit - 2 * kIn;
  const QStringList lines = Broken(words, most - 2 * kPad);
  double widest = 0;
  for (const QString& line : lines) widest = std::max(widest, WidthOf(kWords, line));
  const double width = std::min(widest + 2 * kPad, most);
  const QRectF plate(face.left() + kIn * unit, face.top() + kIn * unit, width * unit,
                     (kHeight + kNextLine * static_cast<double>(lines.size() - 1)) * unit);
  PaintPlate(painter, plate, palette::kBezel, palette::kDarkEdge, 4 * unit, 1);
  QRectF line(plate.left() + kPad * unit, plate.top(), plate.width() - 2 * kPad * unit,
              kHeight * unit);
  for (const QString& part : lines) {
    DrawLine(painter, line, Qt::AlignLeft, kWords, palette::kOnDark, unit, part);
    line.translate(0, kNextLine * unit);
  }
}

}  // namespace

void PaintWalkMark(QPainter& painter, const QRect& face, double unit, const Orvane_Desk& desk) {
  const int atom = AtomOfWalk(desk);
  if (atom == 0) return;
  const double radius = std::max(kLeastRadius, RadiusOfBall(desk, atom) + kClear);
  // A place on the surface is the top left of a pixel.
  const QPointF middle = QPointF(desk.molecule.ScrX[atom] + 0.5, desk.molecule.ScrY[atom] + 0.5);
  painter.save();
  painter.setClipRect(face);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  for (const auto& [ink, line] :
       {std::pair(palette::kBezel, kDarkLine), std::pair(palette::kAccentOnDark, kBrightLine)}) {
    painter.setPen(QPen(QColor::fromRgba(ink), line * unit));
    painter.drawEllipse(face.topLeft() + middle * unit, radius * unit, radius * unit);
  }
  PaintWords(painter, face, unit, QString::fromStdString(WalkWordsAndRecipe(desk)));
  painter.restore();
}

void PaintPictureRing(QPainter& painter, const QRect& face, double unit) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  const auto frame = [&](double in, double thick, QRgb ink) {
    const QRectF outer = QRectF(face).adjusted(in, in, -in, -in);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgba(ink));
    painter.drawRect(QRectF(outer.left(), outer.top(), outer.width(), thick));
    painter.drawRect(QRectF(outer.left(), outer.bottom() - thick, outer.width(), thick));
    painter.drawRect(QRectF(outer.left(), outer.top(), thick, outer.height()));
    painter.drawRect(QRectF(outer.right() - thick, outer.top(), thick, outer.height()));
  };
  frame(0, 2 * unit, palette::kAccentOnDark);
  frame(2 * unit, unit, palette::kBezel);
}

}  // namespace orvane
