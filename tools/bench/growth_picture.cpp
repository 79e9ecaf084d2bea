#include "growth_picture.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace orvane::bench {
namespace {

constexpr double kWidth = 720, kHeight = 420;
constexpr double kLeft = 76, kRight = 560, kTop = 24, kBottom = 366;
constexpr double kFewest = 4, kMost = 700;           // atoms
constexpr double kShortest = 0.1, kLongest = 10000;  // microseconds

double Across(double atoms) {
  return kLeft + (kRight - kLeft) * std::log(atoms / kFewest) / std::log(kMost / kFewest);
}
double Down(double time) {
  return kBottom - (kBottom - kTop) * std::log(time / kShortest) / std::log(kLongest / kShortest);
}

[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...) {
  std::va_list values;
  va_start(values, format);
  char line[2000];  // the longest, a curve, has twelve characters for each of its points
  std::vsnprintf(line, sizeof line, format, values);
  va_end(values);
  return line;
}

std::string Axes() {
  std::string axes;
  for (const double atoms : {5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 596.0}) {
    const double x = Across(atoms);
    axes += Format("<path class=\"grid\" d=\"M%.1f %.1fV%.1f\"/>\n", x, kTop, kBottom);
    axes +=
        Format("<text x=\"%.1f\" y=\"%.1f\" class=\"mid\">%.0f</text>\n", x, kBottom + 20, atoms);
  }
  constexpr const char* kTimes[] = {"0.1 µs", "1 µs", "10 µs", "100 µs", "1 ms", "10 ms"};
  double time = kShortest;
  for (const char* words : kTimes) {
    const double y = Down(time);
    axes += Format("<path class=\"grid\" d=\"M%.1f %.1fH%.1f\"/>\n", kLeft, y, kRight);
    axes +=
        Format("<text x=\"%.1f\" y=\"%.1f\" class=\"end\">%s</text>\n", kLeft - 8, y + 4, words);
    time *= 10;
  }
  return axes + Format("<text x=\"%.1f\" y=\"%.1f\" class=\"mid\">atoms of the structure</text>\n",
                       (kLeft + kRight) / 2, kBottom + 42);
}

std::string Drawn(const Curve& curve) {
  std::string path;
  std::string dots;
  for (const CurvePoint& point : curve.Points) {
    const double x = Across(point.Atoms);
    const double y = Down(point.Microseconds);
    path += Format("%s%.1f %.1f", path.empty() ? "M" : "L", x, y);
    dots += Format("<circle cx=\"%.1f\" cy=\"%.1f\" r=\"3.5\" fill=\"%s\"/>\n", x, y,
                   curve.Colour.c_str());
  }
  const CurvePoint& last = curve.Points.back();
  return Format("<path d=\"%s\" fill=\"none\" stroke-width=\"2\" stroke=\"%s\"/>\n", path.c_str(),
                curve.Colour.c_str()) +
         dots +
         Format("<text x=\"%.1f\" y=\"%.1f\" fill=\"%s\">%s, power %.1f</text>\n",
                Across(last.Atoms) + 12, Down(last.Microseconds) + 4, curve.Colour.c_str(),
                curve.Words.c_str(), PowerAtTheEnd(curve));
}

}  // namespace

double PowerAtTheEnd(const Curve& curve) {
  const std::size_t count = curve.Points.size();
  if (count < 3) return 0;
  const CurvePoint& from = curve.Points[count - 3];
  const CurvePoint& to = curve.Points[count - 1];
  return std::log(to.Microseconds / from.Microseconds) / std::log(to.Atoms / from.Atoms);
}

std::string GrowthPicture(const std::vector<Curve>& curves) {
  std::string picture = Format(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %.0f %.0f\" width=\"%.0f\" "
      "height=\"%.0f\">\n",
      kWidth, kHeight, kWidth, kHeight);
  picture +=
      "<style>text { font: 13px Inter, sans-serif } .mid { text-anchor: middle } .end { "
      "text-anchor: end } .grid { stroke: #DCE4EA; fill: none }</style>\n"
      "<rect width=\"100%\" height=\"100%\" fill=\"#FFFFFF\"/>\n";
  picture += Axes();
  for (const Curve& curve : curves) {
    if (!curve.Points.empty()) picture += Drawn(curve);
  }
  return picture + "</svg>\n";
}

}  // namespace orvane::bench
