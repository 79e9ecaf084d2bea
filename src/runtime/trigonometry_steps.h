// The two steps beneath trigonometry.h. The quick one is within a known bound of the exact value,
// and nearly always that settles the nearest double. Where it does not, the precise one does. Both
// take sizes, which have no sign, and stand here apart so that a test can hold each to its word.
#pragma once

#include "runtime/twofold.h"

namespace orvane {

// Up to here a sine and an arctangent round to the argument, and a cosine to 1.
inline constexpr double kTinyAngle = 0x1p-27;
// From here on an arctangent rounds to what pi/2 rounds to.
inline constexpr double kHugeTangent = 0x1p54;
// The sizes of angles that the quick step takes end here.
inline constexpr double kQuickAngles = 0x1p10;
// How far the quick step may be off, as a part of the value. It is good to 2^-66, so there is room
// for a slip in that reckoning; and one value in some 1500 is too near to the middle between two
// doubles for this bound to settle it.
inline constexpr double kQuickError = 0x1p-64;

// Whether all that the exact value can be rounds to one double.
bool Settles(const Twofold& quick);

// sin(angle + quarters * pi/2). Angles above kTinyAngle.
Twofold QuickSine(double angle, int quarters);
double PreciseSine(double angle, int quarters);

// Tangents above kTinyAngle and below kHugeTangent.
Twofold QuickArcTangent(double tangent);
double PreciseArcTangent(double tangent);

}  // namespace orvane
