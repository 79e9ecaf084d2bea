// Division that fails on zero, and two ways to round.
#pragma once

#include "runtime/failure.h"
#include "runtime/int16.h"

namespace orvane {

// a / b; fails when b is zero, instead of giving an infinity.
constexpr double Divide(double a, double b) {
  if (b == 0.0) FailDivision();
  return a / b;
}

// The nearest whole number, a half going to the even neighbour; fails outside 16 bits.
Int16 RoundToInt16(double value);

// The largest whole number that is not above the value.
double RoundDown(double value);

}  // namespace orvane
