// Sine, cosine and arctangent, correctly rounded: the double that is nearest to the exact value for
// the double that is given. Compilers, processors and C libraries differ in the last bit of theirs;
// these are the same bits everywhere.
#pragma once

namespace orvane {

// Radians. No number for an infinity, or for what is no number.
double Sine(double x);
double Cosine(double x);

// Both of one angle: what turns a point.
struct Turn {
  double Sine = 0, Cosine = 1;
};
Turn TurnBy(double radians);

// Radians, from -pi/2 to pi/2, which it gives for the infinities.
double ArcTangent(double x);

}  // namespace orvane
