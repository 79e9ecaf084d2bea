// Sine, cosine and arctangent, correctly rounded: the double that is nearest to the exact value for
// the double that is given. Those of compilers, processors and C libraries differ in the last bit;
// these give the same bits everywhere.
#pragma once

namespace orvane {

// Radians. NaN for an infinity or a NaN.
double Sine(double x);
double Cosine(double x);

// Both for one angle, as turning a point needs them.
struct Turn {
  double Sine = 0, Cosine = 1;
};
Turn TurnBy(double radians);

// Radians, from -pi/2 to pi/2, which it gives for the infinities.
double ArcTangent(double x);

}  // namespace orvane
