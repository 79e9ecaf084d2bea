#include "narration/map_words.h"

#include <cmath>
#include <vector>

#include "narration/names.h"
#include "narration/number_words.h"
#include "ramachandran/survey.h"

namespace orvane {
namespace {

constexpr double kCovering = 2;  // pixels between the centres of two circles that touch

// A row of the survey that was plotted on an area.
struct Plotted {
  int Atom;         // its alpha carbon
  double X, Y;      // place of the circle
  double Phi, Psi;  // degrees
};

bool HasCircle(const Picture& picture, double x, double y) {
  for (const Stroke& stroke : picture.Strokes) {
    if (stroke.X1 == static_cast<float>(x) && stroke.Y1 == static_cast<float>(y)) return true;
  }
  return false;
}

// The plot pass has replaced each angle by the place of its circle. The way back is exact except
// for rounding.
double AngleAt(double place, double side, double middle, double scale) {
  return (place - side / 2) / (scale * (side / 2)) + middle;
}

// The last row of the survey is not plotted.
std::vector<Plotted> PlottedOn(const Orvane_Desk& desk, const MapArea& area) {
  const Survey& survey = desk.survey;
  const auto picture = area.Image();
  std::vector<Plotted> plotted;
  int row = 0;
  for (int i = 1; i <= desk.molecule.AtomCount && row < survey.PhiCount - 1; ++i) {
    if (!IsSurveyed(desk.molecule, i)) continue;
    ++row;
    const double x = survey.PhiList[row], y = survey.PsiList[row];
    if (!HasCircle(*picture, x, y)) continue;
    plotted.push_back({.Atom = i,
                       .X = x,
                       .Y = y,
                       .Phi = AngleAt(x, area.InnerWidth(), survey.PhiMid, survey.PlotScale),
                       .Psi = AngleAt(y, area.InnerHeight(), survey.PsiMid, survey.PlotScale)});
  }
  return plotted;
}

double Away(const Plotted& row, double x, double y) {
  const double dx = row.X - x, dy = row.Y - y;
  return std::sqrt(dx * dx + dy * dy);
}

const Plotted* Nearest(const std::vector<Plotted>& plotted, double x, double y, double reach) {
  const Plotted* nearest = nullptr;
  for (const Plotted& row : plotted) {
    const double away = Away(row, x, y);
    if (away > reach) continue;
    reach = away;
    nearest = &row;
  }
  return nearest;
}

std::string WordsOf(const Orvane_Desk& desk, const Plotted& row) {
  return WithCapital(ResidueName(desk, row.Atom)) + " " +
         std::to_string(desk.molecule.ResSeq[row.Atom]) + ": phi " + DegreeWords(row.Phi) +
         ", psi " + DegreeWords(row.Psi);
}

}  // namespace

std::string MapWords(const Orvane_Desk& desk, const MapArea& area, float x, float y, float reach) {
  const std::vector<Plotted> plotted = PlottedOn(desk, area);
  const Plotted* nearest = Nearest(plotted, x, y, reach);
  if (nearest == nullptr) return {};
  std::string words;
  for (const Plotted& row : plotted) {
    if (Away(row, nearest->X, nearest->Y) > kCovering) continue;
    if (!words.empty()) words += "\n";
    words += WordsOf(desk, row);
  }
  return words;
}

}  // namespace orvane
