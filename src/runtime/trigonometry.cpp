// The quick step, and the choice between the two.
#include "runtime/trigonometry.h"

#include <array>
#include <cfloat>
#include <cmath>
#include <limits>

#include "runtime/trigonometry_steps.h"

static_assert(std::numeric_limits<double>::is_iec559 && FLT_EVAL_METHOD == 0,
              "a sum of doubles has to be rounded to a double");

namespace orvane {
namespace {

// pi/2 in pieces. The first two have at most 43 bits, so that a multiple of them below kQuickAngles
// is exact; all three together are off by less than 2^-141.
constexpr double kHalfPiFirst = 0x1.921fb54442cp+0;
constexpr double kHalfPiSecond = 0x1.18469898ccp-44;
constexpr double kHalfPiThird = 0x1.45c06e0e68948p-86;
constexpr double kQuartersPerRadian = 0x1.45f306dc9c883p-1;
constexpr Twofold kHalfPiTwofold = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

// 1/n!; a double holds n! itself exactly.
constexpr std::array<Twofold, 22> InverseFactorials() {
  std::array<Twofold, 22> inverse;
  double factorial = 1;
  for (std::size_t n = 0; n < inverse.size(); ++n) {
    if (n > 0) factorial *= static_cast<double>(n);
    const double high = 1 / factorial;
    const Twofold product = Product(high, factorial);
    inverse[n] = {high, ((1 - product.High) - product.Low) / factorial};
  }
  return inverse;
}
constexpr std::array<Twofold, 22> kInverseFactorials = InverseFactorials();

// The sine of r from its power series, or the cosine where the powers begin at 0. r is at most
// pi/4. What is left out is below 2^-77. The powers from the seventh on are summed in doubles, to
// 2^-52 of their sum, and that is below 2^-14 of the whole.
Twofold Powers(const Twofold& r, int first) {
  const auto coefficient = [](int n) { return kInverseFactorials[static_cast<std::size_t>(n)]; };
  const Twofold minus_square = -(r * r);
  double small = 0;
  for (int n = first + 20; n >= 7; n -= 2) {
    small = small * minus_square.High + coefficient(n).High;
  }
  Twofold sum{small};
  for (int n = 6 - first; n >= first; n -= 2) sum = sum * minus_square + coefficient(n);
  return first == 1 ? sum * r : sum;
}
Twofold SineOfPowers(const Twofold& r) { return Powers(r, 1); }
Twofold CosineOfPowers(const Twofold& r) { return Powers(r, 0); }

double SineOfSize(double angle, int quarters) {
  if (angle < kQuickAngles) {
    const Twofold quick = QuickSine(angle, quarters);
    if (Settles(quick)) return quick.High + quick.Low;
  }
  return PreciseSine(angle, quarters);
}

double ArcTangentOfSize(double tangent) {
  if (tangent >= kHugeTangent) return kHalfPiTwofold.High;
  const Twofold quick = QuickArcTangent(tangent);
  return Settles(quick) ? quick.High + quick.Low : PreciseArcTangent(tangent);
}

}  // namespace

bool Settles(const Twofold& quick) {
  const double off = kQuickError * std::fabs(quick.High);
  return quick.High + (quick.Low - off) == quick.High + (quick.Low + off);
}

// Takes away the nearest multiple of pi/2, at most the 652nd. The rest after the nth is off by less
// than n 2^-138, and no double comes nearer to the nth than n 2^-66. So the rest is accurate to a
// relative 2^-72.
Twofold QuickSine(double angle, int quarters) {
  const int nearest = static_cast<int>(angle * kQuartersPerRadian + 0.5);
  const double multiple = nearest;
  const double first = angle - multiple * kHalfPiFirst;  // exact
  const Twofold r = Sum(first, -multiple * kHalfPiSecond) + Twofold{-multiple * kHalfPiThird};
  const int quarter = (nearest + quarters) % 4;
  const Twofold value = quarter % 2 == 0 ? SineOfPowers(r) : CosineOfPowers(r);
  return quarter < 2 ? value : -value;
}

// With a guess a at the arctangent of t,
//   arctan t = a + arctan d,   d = (t cos a - sin a) / (cos a + t sin a).
// The guess below is right to 0.005, so few powers of d are needed, all but the first in doubles:
// 2^-68 of d, 2^-75 of the whole. The numerator has an error of 2^-66 of the sine, which is as much
// of the whole.
Twofold QuickArcTangent(double tangent) {
  const bool steep = tangent > 1;  // then through the complement to pi/2
  const Twofold t = steep ? Twofold{1} / Twofold{tangent} : Twofold{tangent};
  const double guess = t.High / (1 + 0.28 * t.High * t.High);
  const Twofold sine = SineOfPowers({guess}), cosine = CosineOfPowers({guess});
  const Twofold d = (t * cosine + -sine) / (cosine + t * sine);
  const double s = d.High * d.High;
  const double powers = d.High * s * (-1.0 / 3 + s * (1.0 / 5 + s * (-1.0 / 7 + s * (1.0 / 9))));
  const Twofold angle = Twofold{guess} + (d + Twofold{powers});
  return steep ? kHalfPiTwofold + -angle : angle;
}

double Sine(double x) {
  if (!std::isfinite(x)) return std::numeric_limits<double>::quiet_NaN();
  const double size = std::fabs(x);
  return size <= kTinyAngle ? x : std::copysign(1.0, x) * SineOfSize(size, 0);
}

double Cosine(double x) {
  if (!std::isfinite(x)) return std::numeric_limits<double>::quiet_NaN();
  const double size = std::fabs(x);
  return size <= kTinyAngle ? 1 : SineOfSize(size, 1);
}

Turn TurnBy(double radians) { return {Sine(radians), Cosine(radians)}; }

double ArcTangent(double x) {
  if (std::isnan(x)) return std::numeric_limits<double>::quiet_NaN();
  const double size = std::fabs(x);
  return size <= kTinyAngle ? x : std::copysign(ArcTangentOfSize(size), x);
}

}  // namespace orvane
