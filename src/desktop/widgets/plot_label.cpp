#include "desktop/widgets/plot_label.h"

#include <cmath>

#include "desktop/look/plot_fonts.h"
#include "desktop/widgets/host.h"

namespace orvane {
namespace {

constexpr double kRoom = 6;  // pixels around a label's box, so that no letter is cut

}  // namespace

// The pointer counts as over the map, not over the names on it.
PlotLabel::PlotLabel(Host& owner, Control& shown, QWidget& parent)
    : Plate(owner, shown, parent), letters_(PlotLettersOf(shown)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

double PlotLabel::Outset() const { return kRoom; }

void PlotLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect face = EnterPixels(painter);
  const double unit = Unit();
  if (letters_.HasFace) {
    const Colour colour = control.BackColor;
    painter.fillRect(face, QColor(Red(colour), Green(colour), Blue(colour)));
  }
  const bool is_greek = letters_.Family == PlotFamily::Symbol;
  const QString text =
      QString::fromStdString(is_greek ? GreekOf(control.Caption.Get()) : control.Caption.Get());
  painter.setFont(PlotFont(letters_.Family, letters_.Size, text));
  painter.setPen(QColor::fromRgba(letters_.Quiet ? palette::kInk2 : palette::kInk));
  if (letters_.Upwards) {
    painter.translate(0, face.height());
    painter.rotate(-90);
  }
  painter.translate(std::round(letters_.Left * unit), std::round(letters_.Baseline * unit));
  painter.scale(unit, unit);
  painter.drawText(QPointF(0, 0), text);
}

}  // namespace orvane
