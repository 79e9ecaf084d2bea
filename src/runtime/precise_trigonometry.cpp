// The precise step: numbers with 288 binary digits after the point.
//
// The series below are off by about 2^-280, and so is the rest of an angle when the multiples of
// pi/2 are taken away. No double is nearer to such a multiple than 2^-62, so a sine or cosine is
// known to a relative 2^-200, and an arctangent to 2^-150. No result lies in the middle between two
// doubles: the sine, cosine and arctangent of a rational number other than 0 are irrational. How
// near one comes is a matter of chance, because the bits after the 53rd look random: among 2^64
// arguments the nearest should be within a relative 2^-117 or so, and a need for 150 is beyond all
// likelihood.
#include <bit>
#include <cmath>

#include "runtime/digits_of_pi.h"
#include "runtime/trigonometry_steps.h"

namespace orvane {
namespace {

constexpr int kWords = 10;  // the last before the point, nine after it
constexpr int kProductWords = 2 * kWords;
constexpr int kFraction = 288;  // digits after the point

// The words with the least weight first. A number below 0 is kept as its complement, as in an int.
using Words = std::array<std::uint32_t, kWords>;

struct Fixed {
  Words Word{};
};

Fixed operator+(const Fixed& a, const Fixed& b) {
  Fixed sum;
  std::uint64_t carry = 0;
  for (std::size_t i = 0; i < kWords; ++i) {
    carry += std::uint64_t{a.Word[i]} + b.Word[i];
    sum.Word[i] = static_cast<std::uint32_t>(carry);
    carry >>= 32;
  }
  return sum;
}

Fixed operator-(const Fixed& a) {
  Fixed one_less, last;
  for (std::size_t i = 0; i < kWords; ++i) one_less.Word[i] = ~a.Word[i];
  last.Word[0] = 1;
  return one_less + last;
}

Fixed operator-(const Fixed& a, const Fixed& b) { return a + -b; }

bool IsNegative(const Fixed& a) { return a.Word[kWords - 1] >> 31 != 0; }

// Neither may be below 0.
Fixed operator*(const Fixed& a, const Fixed& b) {
  std::array<std::uint32_t, kProductWords> product{};
  for (std::size_t i = 0; i < kWords; ++i) {
    std::uint64_t carry = 0;
    for (std::size_t j = 0; j < kWords; ++j) {
      carry += product[i + j] + std::uint64_t{a.Word[i]} * b.Word[j];
      product[i + j] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
    product[i + kWords] = static_cast<std::uint32_t>(carry);
  }
  Fixed cut;
  for (std::size_t i = 0; i < kWords; ++i) cut.Word[i] = product[i + kWords - 1];
  return cut;
}

Fixed operator/(const Fixed& a, std::uint32_t b) {
  Fixed quotient;
  std::uint64_t left = 0;
  for (std::size_t i = kWords; i-- > 0;) {
    left = left << 32 | a.Word[i];
    quotient.Word[i] = static_cast<std::uint32_t>(left / b);
    left %= b;
  }
  return quotient;
}

// Exact from 2^-236 on; takes values below 2^31.
Fixed FixedOf(double value) {
  Fixed fixed;
  for (std::size_t i = kWords; i-- > 0;) {
    const double whole = std::floor(value);
    fixed.Word[i] = static_cast<std::uint32_t>(whole);
    value = (value - whole) * 0x1p32;
  }
  return fixed;
}

// For values above 2^-192.
double Nearest(const Fixed& a) {
  std::size_t top = kWords - 1;
  while (a.Word[top] == 0) --top;
  const int zeros = std::countl_zero(a.Word[top]);
  const std::uint64_t two_words = std::uint64_t{a.Word[top]} << 32 | a.Word[top - 1];
  const std::uint64_t bits = two_words << zeros | std::uint64_t{a.Word[top - 2]} >> (32 - zeros);
  const std::uint64_t rounded = ((bits >> 10) + 1) >> 1;  // from 64 bits to 53
  return std::ldexp(static_cast<double>(rounded),
                    32 * (static_cast<int>(top) - 1) - kFraction - zeros + 11);
}

// a / b to a relative 2^-150, 50 digits at a time. Each part is a little too small, so that a stays
// above 0.
Fixed Quotient(Fixed a, const Fixed& b) {
  Fixed quotient;
  for (int part = 0; part < 3 && a.Word != Words{}; ++part) {
    const Fixed some = FixedOf(Nearest(a) / Nearest(b) * (1 - 0x1p-50));
    quotient = quotient + some;
    a = a - some * b;
  }
  return quotient;
}

// The sine of r from its power series, or the cosine where the powers begin at 0. r is at most
// pi/2.
Fixed Powers(const Fixed& r, std::uint32_t first) {
  const Fixed square = r * r;
  Fixed term = first == 1 ? r : FixedOf(1);
  Fixed sum = term;
  bool minus = true;
  for (std::uint32_t n = first + 1; term.Word != Words{}; n += 2) {
    term = term * square / (n * (n + 1));
    sum = minus ? sum - term : sum + term;
    minus = !minus;
  }
  return sum;
}

// An angle as a multiple of pi/2 and the rest.
struct Reduced {
  int Quarter = 0;  // 0 to 3; whole turns are dropped
  bool Below = false;
  Fixed Rest;  // at most pi/4; taken away when Below
};

std::uint32_t TwoOverPiFrom(int digit) {
  const auto word = static_cast<std::size_t>(digit / 32);
  const int shift = digit % 32;
  const std::uint64_t first = std::uint64_t{kTwoOverPi[word]} << shift;
  return static_cast<std::uint32_t>(shift == 0 ? first
                                               : first | kTwoOverPi[word + 1] >> (32 - shift));
}

// M. H. Payne and R. N. Hanek, Radian reduction for trigonometric functions, ACM SIGNUM Newsletter
// 18 (1983), 19-24. The angle is a whole number m times a power of two. Only those digits of 2/pi
// are multiplied by m that give neither whole turns nor less than the last place: eleven words,
// with two digits before the point and 350 after it, of which m blurs the last 53.
Reduced Reduce(double angle) {
  constexpr std::size_t taken = kWords + 1;
  int exponent = 0;
  const auto m = static_cast<std::uint64_t>(std::ldexp(std::frexp(angle, &exponent), 53));
  const int from = 96 + (exponent - 53) - 2;
  std::array<std::uint32_t, taken> turns{};
  std::uint64_t carry = 0;
  std::uint32_t before = 0;
  for (std::size_t i = 0; i < taken; ++i) {
    const std::uint64_t digits = TwoOverPiFrom(from + 32 * static_cast<int>(taken - 1 - i));
    const std::uint64_t lower = digits * (m & 0xffffffff);
    carry += (lower & 0xffffffff) + before * (m >> 32);
    before = static_cast<std::uint32_t>(digits);
    turns[i] = static_cast<std::uint32_t>(carry);
    carry = (carry >> 32) + (lower >> 32);
  }

  Reduced reduced;
  turns[taken - 1] += 1U << 29;  // half of a quarter, so that cutting off rounds
  reduced.Quarter = static_cast<int>(turns[taken - 1] >> 30);
  Fixed share, half;
  for (std::size_t i = 0; i + 1 < kWords; ++i) {
    share.Word[i] = turns[i + 2] << 2 | turns[i + 1] >> 30;
  }
  half.Word[kWords - 2] = 1U << 31;
  share = share - half;
  reduced.Below = IsNegative(share);
  reduced.Rest = (reduced.Below ? -share : share) * Fixed{kHalfPi};
  return reduced;
}

}  // namespace

double PreciseSine(double angle, int quarters) {
  const Reduced reduced = Reduce(angle);
  const int quarter = (reduced.Quarter + quarters) % 4;
  const bool sine = quarter % 2 == 0;
  const double size = Nearest(Powers(reduced.Rest, sine ? 1 : 0));
  return (quarter >= 2) != (sine && reduced.Below) ? -size : size;
}

// As in the quick step, with its result as the guess. That is right to 2^-52, so arctan d is d to
// 2^-150 of the whole. Numerator and denominator are scaled alike, so that tangents above 1 fit.
double PreciseArcTangent(double tangent) {
  const double guess = QuickArcTangent(tangent).High;
  int exponent = 0;
  std::frexp(tangent, &exponent);
  const double scale = std::ldexp(1.0, exponent > 0 ? -exponent : 0);
  const Fixed sine = Powers(FixedOf(guess), 1), cosine = Powers(FixedOf(guess), 0);
  const Fixed unit = FixedOf(scale), t = FixedOf(tangent * scale);
  const Fixed above = t * cosine - unit * sine;
  const bool less = IsNegative(above);
  const Fixed d = Quotient(less ? -above : above, unit * cosine + t * sine);
  return Nearest(less ? FixedOf(guess) - d : FixedOf(guess) + d);
}

}  // namespace orvane
