// How different two colours look, as one number.
#pragma once

#include "runtime/colour.h"
#include "vision/simulation.h"

namespace orvane {

// CIE 1976 L*a*b*, under the white of sRGB (D65).
struct Lab {
  double L = 0, A = 0, B = 0;
};

Lab LabOf(Light light);

// CIEDE2000 with all weights 1. About 1 is the least that can be seen between two large fields side
// by side.
double Difference(const Lab& first, const Lab& second);

// Between two colours as that eye sees them.
double SeenDifference(Eye eye, Colour first, Colour second);

}  // namespace orvane
