// The two steps behind trigonometry.h. The quick one is within a known bound of the exact value,
// and nearly always that settles the nearest double. Where it does not, the precise one does. Both
// take sizes, without a sign, and are declared here so that a test can check each by itself.
#pragma once

#include "runtime/twofold.h"

namespace orvane {

// Up to here a sine and an arctangent round to the argument, and a cosine to 1.
inline constexpr double kTinyAngle = 0x1p-27;
// From here on an arctangent rounds to what pi/2 rounds to.
inline constexpr double kHugeTangent = 0x1p54;
// The quick step takes angles below this size.
inline constexpr double kQuickAngles = 0x1p10;
// How far the quick step may be off, as a part of the value. It is accurate to 2^-66, which leaves
// room for a slip in that estimate. About one value in 1500 is too near the middle between two
// doubles for this bound to settle it.
inline constexpr double kQuickError = 0x1p-64;

// Whether every value within the bound rounds to the same double.
bool Settles(const Twofold& quick);

// sin(angle + quarters * pi/2). Angles above kTinyAngle.
Twofold QuickSine(double angle, int quarters);
double PreciseSine(double angle, int quarters);

// Tangents above kTinyAngle and below kHugeTangent.
Twofold QuickArcTangent(double tangent);
double PreciseArcTangent(double tangent);

}  // namespace orvane
