#include "runtime/trigonometry.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>

#include "runtime/digits_of_pi.h"
#include "runtime/real.h"
#include "runtime/trigonometry_arguments.h"
#include "runtime/trigonometry_steps.h"

namespace orvane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Sine, cosine and arctangent of one argument, to a number of bits.
class Exact {
 public:
  explicit Exact(mpfr_prec_t bits = 53) : Sine(bits), Cosine(bits), ArcTangent(bits) {}
  void Work(double of) {
    mpfr_set_d(of_.Value, of, MPFR_RNDN);
    mpfr_sin_cos(Sine.Value, Cosine.Value, of_.Value, MPFR_RNDN);
    mpfr_atan(ArcTangent.Value, of_.Value, MPFR_RNDN);
  }

  Real Sine, Cosine, ArcTangent;

 private:
  Real of_{53};
};

// Wrong answers, counted, with the first one's bits.
class Answers {
 public:
  void Compare(const char* function, double of, double ours, const Real& exact) {
    const double nearest = mpfr_get_d(exact.Value, MPFR_RNDN);
    ++compared_;
    if (std::bit_cast<std::uint64_t>(ours) == std::bit_cast<std::uint64_t>(nearest)) return;
    if (wrong_++ > 0) return;
    ADD_FAILURE() << function << "(" << std::hexfloat << of << ") is " << nearest << ", not "
                  << ours;
  }
  ~Answers() {
    EXPECT_GT(compared_, 0);
    EXPECT_EQ(wrong_, 0) << "of " << compared_;
  }

 private:
  int compared_ = 0, wrong_ = 0;
};

class TrigonometryOf : public ::testing::TestWithParam<ArgumentKind> {};

TEST_P(TrigonometryOf, GivesTheNearestDoubles) {
  Exact exact;
  Answers answers;
  for (const double x : GetParam().Make()) {
    exact.Work(x);
    answers.Compare("Sine", x, Sine(x), exact.Sine);
    answers.Compare("Cosine", x, Cosine(x), exact.Cosine);
    answers.Compare("ArcTangent", x, ArcTangent(x), exact.ArcTangent);
  }
}

// The quick step settles nearly all of them, so the other is asked by itself. It takes its time, so
// it is asked for some.
TEST_P(TrigonometryOf, GivesThemByThePreciseStepAlone) {
  Exact exact;
  Answers answers;
  const std::vector<double> all = GetParam().Make();
  for (std::size_t i = 0; i < all.size(); i += 1 + all.size() / 4000) {
    const double size = std::fabs(all[i]);
    exact.Work(size);
    if (size <= kTinyAngle) {
      answers.Compare("Sine", size, size, exact.Sine);  // has no steps
      continue;
    }
    answers.Compare("PreciseSine", size, PreciseSine(size, 0), exact.Sine);
    answers.Compare("its cosine", size, PreciseSine(size, 1), exact.Cosine);
    if (size >= kHugeTangent) continue;
    answers.Compare("PreciseArcTangent", size, PreciseArcTangent(size), exact.ArcTangent);
  }
}

// How far a quick value is from the exact one, as a part of it.
double OffBy(const Twofold& quick, const Real& exact) {
  Real off(200);
  mpfr_sub_d(off.Value, exact.Value, quick.High, MPFR_RNDN);
  mpfr_sub_d(off.Value, off.Value, quick.Low, MPFR_RNDN);
  mpfr_div(off.Value, off.Value, exact.Value, MPFR_RNDN);
  return std::fabs(mpfr_get_d(off.Value, MPFR_RNDN));
}

// A quarter of it, as its comment says.
TEST_P(TrigonometryOf, KeepsTheQuickStepWithinItsBound) {
  Exact exact(200);
  const std::vector<double> all = GetParam().Make();
  for (std::size_t i = 0; i < all.size(); i += 1 + all.size() / 20000) {
    const double size = std::fabs(all[i]);
    if (size <= kTinyAngle || size >= kHugeTangent) continue;
    exact.Work(size);
    ASSERT_LT(OffBy(QuickArcTangent(size), exact.ArcTangent), kQuickError / 4) << size;
    if (size >= kQuickAngles) continue;
    ASSERT_LT(OffBy(QuickSine(size, 0), exact.Sine), kQuickError / 4) << size;
    ASSERT_LT(OffBy(QuickSine(size, 1), exact.Cosine), kQuickError / 4) << size;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, TrigonometryOf,
                         ::testing::ValuesIn(KindsOfArguments().begin(), KindsOfArguments().end()),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST(Trigonometry, IsComparedForAMillionArguments) {
  std::size_t count = 0;
  for (const ArgumentKind& kind : KindsOfArguments()) count += kind.Make().size();
  EXPECT_GE(count, 1000000u);
}

TEST(Trigonometry, AsksThePreciseStepWhereAValueIsAllButAMiddle) {
  for (const double x : WhereASineIsAllButAMiddle()) {
    EXPECT_FALSE(Settles(QuickSine(x, 0))) << std::hexfloat << x;
  }
  for (const double x : WhereAnArcTangentIsAllButAMiddle()) {
    EXPECT_FALSE(Settles(QuickArcTangent(x))) << std::hexfloat << x;
  }
  // 21, 27 and ten from 69 to 123; 3, 9, 15 and six from 33 to 63.
  EXPECT_EQ(WhereASineIsAllButAMiddle().size(), 12u);
  EXPECT_EQ(WhereAnArcTangentIsAllButAMiddle().size(), 9u);
}

// One in 1500 is the reckoning.
TEST(Trigonometry, AsksThePreciseStepSeldom) {
  int asked = 0, count = 0;
  for (double x = 0.25; x < 6; x += 0x1.0001p-15) {
    asked += Settles(QuickSine(x, 0)) ? 0 : 1;
    asked += Settles(QuickArcTangent(x)) ? 0 : 1;
    count += 2;
  }
  EXPECT_GT(count, 300000);
  EXPECT_GT(asked, count / 3000);
  EXPECT_LT(asked, count / 750);
}

TEST(Trigonometry, KeepsTheSignOfZero) {
  EXPECT_FALSE(std::signbit(Sine(0.0)));
  EXPECT_TRUE(std::signbit(Sine(-0.0)));
  EXPECT_FALSE(std::signbit(ArcTangent(0.0)));
  EXPECT_TRUE(std::signbit(ArcTangent(-0.0)));
  EXPECT_EQ(Sine(-0.0), 0);
  EXPECT_EQ(ArcTangent(-0.0), 0);
  EXPECT_EQ(Cosine(0.0), 1);
  EXPECT_EQ(Cosine(-0.0), 1);
}

// Of one bit pattern, too: processors make others by themselves.
TEST(Trigonometry, GivesNoNumberWhereThereIsNone) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const auto bits = [](double x) { return std::bit_cast<std::uint64_t>(x); };
  for (const double x : {kInfinity, -kInfinity, nan, -nan}) {
    EXPECT_EQ(bits(Sine(x)), bits(nan));
    EXPECT_EQ(bits(Cosine(x)), bits(nan));
  }
  EXPECT_EQ(bits(ArcTangent(nan)), bits(nan));
  EXPECT_EQ(bits(ArcTangent(-nan)), bits(nan));
}

// An arctangent has limits, though: 2 arccos 0 is pi, whose nearest double is 884279719003555 /
// 2^48.
TEST(Trigonometry, EndsAtARightAngle) {
  EXPECT_EQ(ArcTangent(kInfinity), 884279719003555 / 0x1p49);
  EXPECT_EQ(ArcTangent(-kInfinity), -884279719003555 / 0x1p49);
  EXPECT_EQ(4 * ArcTangent(1.0), 884279719003555 / 0x1p48);
}

TEST(Trigonometry, HasTheDigitsOfPi) {
  for (std::size_t i = 0; i < kTwoOverPi.size(); ++i) {
    EXPECT_EQ(kTwoOverPi[i], i < 3 ? 0 : DigitsOfTwoOverPi(32 * (static_cast<int>(i) - 3))) << i;
  }
  for (std::size_t i = 0; i + 1 < kHalfPi.size(); ++i) {
    EXPECT_EQ(kHalfPi[i], DigitsOfHalfPi(32 * (8 - static_cast<int>(i)))) << i;
  }
  EXPECT_EQ(kHalfPi.back(), 1u);
}

// What the bound of the quick step rests on.
TEST(Trigonometry, MeetsNoDoubleTooNearToAMultipleOfARightAngle) {
  const auto last = static_cast<unsigned long>(kQuickAngles / 1.57) + 1;
  for (unsigned long quarters = 1; quarters <= last; ++quarters) {
    EXPECT_GT(NearestToQuarters(quarters).Off, static_cast<double>(quarters) * 0x1p-66);
  }
}

// And that of the precise step: the arguments found for it are as near as any double is.
TEST(Trigonometry, IsComparedWhereADoubleIsNearestToAMultipleOfARightAngle) {
  const ArgumentKind& nearest =
      *std::ranges::find(KindsOfArguments(), "NearestQuarters", &ArgumentKind::Name);
  double closest = 1;
  for (const double x : nearest.Make()) {
    closest = std::min({closest, std::fabs(Sine(x)), std::fabs(Cosine(x))});
  }
  EXPECT_GT(closest, 0x1p-62);
  EXPECT_LT(closest, 0x1p-60);
}

}  // namespace
}  // namespace orvane
