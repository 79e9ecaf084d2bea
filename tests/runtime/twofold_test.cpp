#include "runtime/twofold.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

bool Is(const Twofold& a, double high, double low) { return a.High == high && a.Low == low; }

TEST(Twofold, KeepsWhatASumLoses) {
  EXPECT_TRUE(Is(Sum(1, 0x1p-80), 1, 0x1p-80));
  EXPECT_TRUE(Is(Sum(0x1p-80, 1), 1, 0x1p-80));
  EXPECT_TRUE(Is(SumOfLarger(1, -0x1p-80), 1, -0x1p-80));
  EXPECT_TRUE(Is(Sum(1, -1), 0, 0));
}

TEST(Twofold, KeepsWhatAProductLoses) {
  // (1 + 2^-52)^2 = 1 + 2^-51 + 2^-104.
  EXPECT_TRUE(Is(Product(1 + 0x1p-52, 1 + 0x1p-52), 1 + 0x1p-51, 0x1p-104));
  // (2^53 - 1)^2 = 2^106 - 2^54 + 1.
  EXPECT_TRUE(Is(Product(0x1p53 - 1, 0x1p53 - 1), 0x1p106 - 0x1p54, 1));
}

TEST(Twofold, AddsBothHalves) {
  EXPECT_TRUE(Is(Twofold{1, 0x1p-60} + Twofold{-1, 0x1p-61}, 0x1.8p-60, 0));
  EXPECT_TRUE(Is(-Twofold{1, 0x1p-60}, -1, -0x1p-60));
}

TEST(Twofold, MultipliesBothHalves) {
  // (1 + 2^-60) (2 + 2^-59) = 2 (1 + 2^-60)^2 = 2 + 2^-58 + 2^-119, the last too small to stay.
  EXPECT_TRUE(Is(Twofold{1, 0x1p-60} * Twofold{2, 0x1p-59}, 2, 0x1p-58));
}

TEST(Twofold, DividesBothHalves) {
  // 1/3 = 0.010101... in binary: the first 53 digits from the first 1 on, then those behind them.
  EXPECT_TRUE(Is(Twofold{1} / Twofold{3}, 0x1.5555555555555p-2, 0x1.5555555555555p-56));
  EXPECT_TRUE(Is(Twofold{2, 0x1p-58} / Twofold{1, 0x1p-60}, 2, 0x1p-59));
}

}  // namespace
}  // namespace orvane
