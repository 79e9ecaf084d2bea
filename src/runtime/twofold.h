// Numbers of about a hundred bits, each the sum of two doubles that is never added up. What the sum
// and the product of two doubles lose is a double itself: T. J. Dekker, A floating-point technique
// for extending the available precision, Numerische Mathematik 18 (1971), 224-242; the sum of any
// two is D. E. Knuth's. Nothing here may overflow or become so small that bits are lost.
#pragma once

namespace orvane {

struct Twofold {
  double High = 0, Low = 0;  // Low is at most half a last place of High
};

// a + b, exactly.
constexpr Twofold Sum(double a, double b) {
  const double sum = a + b;
  const double of_b = sum - a;
  return {sum, (a - (sum - of_b)) + (b - of_b)};
}

// a + b, exactly, where a is the larger.
constexpr Twofold SumOfLarger(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

// The upper 26 bits and the lower.
constexpr Twofold Halves(double a) {
  const double wide = 0x8000001p0 * a;
  const double upper = wide - (wide - a);
  return {upper, a - upper};
}

// a * b, exactly.
constexpr Twofold Product(double a, double b) {
  const double product = a * b;
  const Twofold x = Halves(a), y = Halves(b);
  return {product, ((x.High * y.High - product) + x.High * y.Low + x.Low * y.High) + x.Low * y.Low};
}

// These lose less than 2^-100: the sum, of the larger of the two; the others, of the result.
constexpr Twofold operator+(const Twofold& a, const Twofold& b) {
  const Twofold sum = Sum(a.High, b.High);
  return SumOfLarger(sum.High, sum.Low + (a.Low + b.Low));
}
constexpr Twofold operator-(const Twofold& a) { return {-a.High, -a.Low}; }
constexpr Twofold operator*(const Twofold& a, const Twofold& b) {
  const Twofold product = Product(a.High, b.High);
  return SumOfLarger(product.High, product.Low + (a.High * b.Low + a.Low * b.High));
}
constexpr Twofold operator/(const Twofold& a, const Twofold& b) {
  const double quotient = a.High / b.High;
  const Twofold left = a + -(Twofold{quotient} * b);
  return SumOfLarger(quotient, left.High / b.High);
}

}  // namespace orvane
