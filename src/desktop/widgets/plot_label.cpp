#include "desktop/widgets/plot_label.h"

#include <array>
#include <cmath>

#include "desktop/widgets/reading_text.h"
#include "desktop/windows/window_widget.h"

namespace orvane {
namespace {

using enum PlotFamily;

constexpr double kRoom = 6;  // pixels round a label's box, so that no letter is cut

// clang-format off
constexpr auto kLetters = std::to_array<PlotLetters>({
    {.Control = "Label1",  .Left = 1, .Baseline = 10.5, .HasFace = true},
    // Letters over the gaps of the legend.
    {.Control = "Label5",  .Family = Symbol, .Baseline = 14.5},
    {.Control = "Label6",  .Family = Symbol, .Baseline = 14.5},
    {.Control = "Label4",  .Family = Symbol, .Baseline = 14.5},
    // Names on the map.
    {.Control = "b_sheet",    .Size = 12, .Baseline = 9.5},
    {.Control = "b_sheet(0)", .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "b_sheet(4)", .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "R_Alf",      .Size = 12, .Baseline = 9.5},
    {.Control = "R_Alf(1)",   .Family = Symbol, .Size = 12, .Baseline = 10.5},
    {.Control = "R_Alf(3)",   .Size = 9,  .Baseline = 7},
    {.Control = "FEC",        .Size = 12, .Baseline = 9.5},
    {.Control = "L_Alf",      .Size = 12, .Baseline = 9.5},
    {.Control = "L_Alf(1)",   .Family = Symbol, .Size = 12, .Baseline = 9.5},
    {.Control = "Collag",     .Size = 12, .Baseline = 9.5},
    // Scale marks, the degree raised behind them.
    {.Control = "Degrs",    .Family = Sans, .Size = 11, .Baseline = 11, .Quiet = true},
    {.Control = "Degrs(1)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(3)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(5)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(7)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    {.Control = "Degrs(9)", .Family = Sans, .Size = 8, .Left = 0.5, .Baseline = 9, .Quiet = true},
    // Axis names.
    {.Control = "Label5(0)", .Family = Symbol, .Size = 17, .Baseline = 16},
    {.Control = "Label10",   .Size = 13, .Baseline = 13},
    {.Control = "Label11",   .Family = Symbol, .Size = 11, .Baseline = 11},
    {.Control = "Label6(0)", .Family = Symbol, .Size = 17, .Baseline = 16, .Upwards = true},
    {.Control = "Label8",    .Size = 13, .Baseline = 13, .Upwards = true},
    {.Control = "Label9",    .Family = Symbol, .Size = 11, .Baseline = 11, .Upwards = true},
});
// clang-format on

}  // namespace

const PlotLetters& PlotLettersOf(const Control& control) {
  for (const PlotLetters& row : kLetters) {
    if (row.Control == control.Row.Name) return row;
  }
  for (const PlotLetters& row : kLetters) {
    if (row.Control == control.Name) return row;
  }
  static constexpr PlotLetters kPlain = {};
  return kPlain;
}

// The pointer is over the map, not over the names on it.
PlotLabel::PlotLabel(WindowWidget& owner, Control& shown, QWidget& parent)
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
  QString text = QString::fromStdString(control.Caption);
  if (letters_.Family == Symbol) text = GreekOf(text);
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
