#include "runtime/arithmetic.h"

#include <cmath>

namespace orvane {

Int16 RoundToInt16(double value) {
  if (!(value > -32769.0 && value < 32768.0)) FailOverflow();  // NaN fails too
  return Int16(static_cast<int>(std::nearbyint(value)));  // the default mode rounds half to even
}

double RoundDown(double value) { return std::floor(value); }

}  // namespace orvane
