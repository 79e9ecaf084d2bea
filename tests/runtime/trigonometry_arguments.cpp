#include "runtime/trigonometry_arguments.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <random>

#include "runtime/real.h"
#include "runtime/trigonometry_steps.h"

namespace orvane {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr mpfr_prec_t kBits = 2300;  // a double of 1024 digits times as many digits of pi

// std's own distributions differ between libraries.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : bits_(seed) {}
  std::uint64_t Bits() { return bits_(); }
  double Share() { return static_cast<double>(Bits() >> 11) * 0x1p-53; }  // from 0 to 1
  double Between(double low, double high) { return low + (high - low) * Share(); }
  double OfSize(int from, int to) {  // 2^from to 2^to, of either sign
    const int exponent = from + static_cast<int>(Bits() % static_cast<unsigned>(to - from));
    return std::ldexp(1 + Share(), exponent) * (Bits() % 2 == 0 ? 1 : -1);
  }

 private:
  std::mt19937_64 bits_;
};

template <class Next>
std::vector<double> Many(int count, std::uint64_t seed, Next next) {
  Chance chance(seed);
  std::vector<double> made(static_cast<std::size_t>(count));
  for (double& one : made) one = next(chance);
  return made;
}

// With the doubles on both sides of it, and all that with either sign.
void AddWithNeighbours(std::vector<double>& to, double value, int neighbours) {
  double low = value, high = value;
  for (int i = 0; i <= neighbours; ++i) {
    to.insert(to.end(), {low, high, -low, -high});
    low = std::nextafter(low, -kLargest);
    high = std::nextafter(high, kLargest);
  }
}

std::vector<double> AnyBits() {
  return Many(220000, 1, [](Chance& chance) {
    double value = 0;
    do {
      value = std::bit_cast<double>(chance.Bits());
    } while (!std::isfinite(value));
    return value;
  });
}

std::vector<double> WithinATurn() {
  return Many(200000, 2, [](Chance& chance) { return chance.Between(-kTurn, kTurn); });
}

// Tenths of a degree over two turns, by the factors that the program uses; and hundredths.
std::vector<double> Degrees() {
  std::vector<double> made;
  for (int tenths = -7200; tenths <= 7200; ++tenths) {
    made.push_back(tenths / 10.0 / (180 / std::numbers::pi));
    made.push_back(tenths / 10.0 * 0.01745329251);
  }
  for (int hundredths = -36000; hundredths <= 36000; ++hundredths) {
    made.push_back(hundredths / 100.0 / (180 / std::numbers::pi));
  }
  return made;
}

// Of places with three decimals, as files have them.
std::vector<double> Slopes() {
  return Many(100000, 3, [](Chance& chance) {
    const auto place = [&] { return static_cast<double>(1 + chance.Bits() % 99999) / 1000; };
    return place() / -place() * (chance.Bits() % 2 == 0 ? 1 : -1);
  });
}

std::vector<double> Sizes() {
  return Many(200000, 4, [](Chance& chance) { return chance.OfSize(-30, 60); });
}

std::vector<double> Tiny() {
  std::vector<double> made =
      Many(30000, 5, [](Chance& chance) { return chance.OfSize(-1074, -26); });
  for (const double size : Many(20000, 6, [](Chance& chance) {
         return std::bit_cast<double>(chance.Bits() >> (12 + chance.Bits() % 50));  // subnormal
       })) {
    made.insert(made.end(), {size, -size});
  }
  return made;
}

std::vector<double> Huge() {
  return Many(50000, 7, [](Chance& chance) { return chance.OfSize(900, 1024); });
}

std::vector<double> Marks() {
  std::vector<double> made;
  for (int halves = 0; halves <= 4000; ++halves) {
    made.insert(made.end(), {halves / 2.0, -halves / 2.0});
  }
  for (int exponent = -1074; exponent < 1024; ++exponent) {
    AddWithNeighbours(made, std::ldexp(1.0, exponent), 1);
  }
  for (const double limit : {kTinyAngle, kQuickAngles, kHugeTangent, 1.0}) {
    AddWithNeighbours(made, limit, 40);
  }
  made.insert(made.end(), {kLargest, -kLargest});
  return made;
}

std::vector<double> NearQuarters() {
  std::vector<double> made;
  for (unsigned long quarters = 1; quarters <= 660; ++quarters) {
    AddWithNeighbours(made, NearestToQuarters(quarters).Angle, 3);
  }
  Chance chance(8);
  for (int i = 0; i < 8000; ++i) {
    AddWithNeighbours(made, NearestToQuarters(chance.Bits() >> chance.Bits() % 63).Angle, 1);
  }
  return made;
}

// Of the doubles with one exponent, those that are nearest to whole quarters: m 2^e for which m is
// the denominator of a continued fraction's fraction for 2^e 2/pi.
void AddNearestOfExponent(std::vector<double>& to, int exponent) {
  Real rest(kBits), whole(kBits);
  mpfr_const_pi(rest.Value, MPFR_RNDN);
  mpfr_ui_div(rest.Value, 2, rest.Value, MPFR_RNDN);
  mpfr_mul_2si(rest.Value, rest.Value, exponent, MPFR_RNDN);
  mpfr_frac(rest.Value, rest.Value, MPFR_RNDN);
  double before = 0, m = 1;
  while (m < 0x1p53) {
    if (m >= 0x1p45) to.insert(to.end(), {std::ldexp(m, exponent), -std::ldexp(m, exponent)});
    mpfr_ui_div(rest.Value, 1, rest.Value, MPFR_RNDN);
    mpfr_floor(whole.Value, rest.Value);
    mpfr_frac(rest.Value, rest.Value, MPFR_RNDN);
    const double next = mpfr_get_d(whole.Value, MPFR_RNDN) * m + before;  // exact where it is used
    before = m;
    m = next;
  }
}

std::vector<double> NearestQuarters() {
  std::vector<double> made;
  for (int exponent = -52; exponent <= 971; ++exponent) AddNearestOfExponent(made, exponent);
  return made;
}

std::vector<double> Middles() {
  std::vector<double> made;
  for (const auto& half : {WhereASineIsAllButAMiddle(), WhereAnArcTangentIsAllButAMiddle()}) {
    for (const double x : half) AddWithNeighbours(made, x, 2);
  }
  return made;
}

constexpr ArgumentKind kKinds[] = {
    {"AnyBits", AnyBits},
    {"WithinATurn", WithinATurn},
    {"Degrees", Degrees},
    {"Slopes", Slopes},
    {"Sizes", Sizes},
    {"Tiny", Tiny},
    {"Huge", Huge},
    {"Marks", Marks},
    {"NearQuarters", NearQuarters},
    {"NearestQuarters", NearestQuarters},
    {"Middles", Middles},
};

// The number's digits from a place after the point on.
std::uint32_t DigitsOf(Real& number, int place) {
  mpfr_mul_2si(number.Value, number.Value, place, MPFR_RNDN);
  mpfr_frac(number.Value, number.Value, MPFR_RNDN);
  mpfr_mul_2si(number.Value, number.Value, 32, MPFR_RNDN);
  return static_cast<std::uint32_t>(mpfr_get_ui(number.Value, MPFR_RNDZ));
}

// x = 3n / 2^k with n odd, where 3n begins with 2^p. Half a last place of x is 2^(p - k - 53). The
// second term is 9 n^3 / 2^(3k), halved once more for the sine; so it is an odd number of half
// places if 2k + p, and 1 for the sine, make 53. Above 128 the third term would be no small thing.
std::vector<double> MiddlesOf(int halvings) {
  std::vector<double> made;
  for (int n = 1; 3 * n < 128; n += 2) {
    const int p = std::ilogb(3 * n);
    const int twice_k = 53 - p - halvings;
    if (twice_k % 2 != 0) continue;
    made.push_back(std::ldexp(3 * n, -twice_k / 2));
  }
  return made;
}

}  // namespace

std::span<const ArgumentKind> KindsOfArguments() { return kKinds; }

std::uint32_t DigitsOfTwoOverPi(int place) {
  Real number(kBits);
  mpfr_const_pi(number.Value, MPFR_RNDN);
  mpfr_ui_div(number.Value, 2, number.Value, MPFR_RNDN);
  return DigitsOf(number, place);
}

std::uint32_t DigitsOfHalfPi(int place) {
  Real number(kBits);
  mpfr_const_pi(number.Value, MPFR_RNDN);
  mpfr_div_2ui(number.Value, number.Value, 1, MPFR_RNDN);
  return DigitsOf(number, place);
}

NearMultiple NearestToQuarters(unsigned long quarters) {
  static const Real& half_pi = []() -> const Real& {
    static Real made(300);
    mpfr_const_pi(made.Value, MPFR_RNDN);
    mpfr_div_2ui(made.Value, made.Value, 1, MPFR_RNDN);
    return made;
  }();
  Real angle(300);
  mpfr_mul_ui(angle.Value, half_pi.Value, quarters, MPFR_RNDN);
  const double nearest = mpfr_get_d(angle.Value, MPFR_RNDN);
  mpfr_sub_d(angle.Value, angle.Value, nearest, MPFR_RNDN);
  return {nearest, std::fabs(mpfr_get_d(angle.Value, MPFR_RNDN))};
}

std::vector<double> WhereASineIsAllButAMiddle() { return MiddlesOf(1); }
std::vector<double> WhereAnArcTangentIsAllButAMiddle() { return MiddlesOf(0); }

}  // namespace orvane
