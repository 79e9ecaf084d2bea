// Curves of time against atoms, both axes in powers of ten.
#pragma once

#include <string>
#include <vector>

namespace orvane::bench {

struct CurvePoint {
  double Atoms, Microseconds;
};
struct Curve {
  std::string Words, Colour;
  std::vector<CurvePoint> Points;  // by rising number of atoms
};

// How steep the curve is between its last point but two and its last: 1 means that it grows with
// the atoms, 2 with their square.
double PowerAtTheEnd(const Curve& curve);

std::string GrowthPicture(const std::vector<Curve>& curves);  // as SVG

}  // namespace orvane::bench
