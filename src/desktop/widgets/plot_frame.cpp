#include "desktop/widgets/plot_frame.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>

#include "desktop/look/plot_fonts.h"
#include "desktop/widgets/host.h"

namespace orvane {
namespace {

// Pixels at 100 per cent.
constexpr double kIn = 6, kTop = 22, kCorner = 5;
constexpr double kCaptionLeft = 20, kBaseline = 29, kCaptionGap = 6;
constexpr int kCaptionSize = 17;

}  // namespace

void PlotFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  const int edge = host.scale.Edge();
  const int in = host.scale.Device(kIn), top = host.scale.Device(kTop);
  const QRect frame(in, top, face.width() - 2 * in, face.height() - top - in);
  PaintPlate(painter, frame, palette::kFace, palette::kHair, kCorner * unit, edge);

  // A caption too long for the line is drawn narrower, never cut.
  const QString caption = QString::fromStdString(control.Caption);
  const QFont font = PlotFont(PlotFamily::BoldSerif, kCaptionSize, caption);
  const double width = QFontMetricsF(font).horizontalAdvance(caption) * unit;
  const double room = frame.right() - (kCaptionLeft + kCaptionGap + kCorner) * unit;
  const double narrow = std::min(1.0, room / width);
  painter.fillRect(QRectF((kCaptionLeft - kCaptionGap) * unit, top,
                          width * narrow + 2 * kCaptionGap * unit, edge),
                   QColor::fromRgba(palette::kFace));
  painter.setFont(font);
  painter.setPen(QColor::fromRgba(palette::kInk));
  painter.translate(kCaptionLeft * unit, std::round(kBaseline * unit));
  painter.scale(unit * narrow, unit);
  painter.drawText(QPointF(0, 0), caption);
}

}  // namespace orvane
