#include "runtime/arithmetic.h"

#include <gtest/gtest.h>
#include <limits>

namespace orvane {
namespace {

TEST(Divide, FailsOnZeroInFloatsToo) {
  EXPECT_THROW(Divide(1.0, 0.0), Failure);
  EXPECT_THROW(Divide(1.0, -0.0), Failure);
  EXPECT_THROW(Divide(0.0, 0.0), Failure);
}

TEST(Divide, TakesEveryOtherDivisorHoweverSmall) {
  EXPECT_EQ(Divide(1.0, 4.0), 0.25);
  EXPECT_EQ(Divide(0.0, 5.0), 0.0);
  EXPECT_NO_THROW(Divide(1.0, std::numeric_limits<double>::denorm_min()));
}

TEST(RoundToInt16, AHalfGoesToTheEvenNeighbour) {
  EXPECT_EQ(RoundToInt16(0.5), 0);
  EXPECT_EQ(RoundToInt16(1.5), 2);
  EXPECT_EQ(RoundToInt16(2.5), 2);
  EXPECT_EQ(RoundToInt16(-0.5), 0);
  EXPECT_EQ(RoundToInt16(-1.5), -2);
  EXPECT_EQ(RoundToInt16(-2.5), -2);
}

TEST(RoundToInt16, AnythingElseGoesToTheNearest) {
  EXPECT_EQ(RoundToInt16(2.4999), 2);
  EXPECT_EQ(RoundToInt16(2.5001), 3);
  EXPECT_EQ(RoundToInt16(-7.2), -7);
}

TEST(RoundToInt16, IsCheckedAfterTheRounding) {
  EXPECT_EQ(RoundToInt16(32767.4), 32767);
  EXPECT_EQ(RoundToInt16(-32768.5), -32768);  // the even neighbour
  EXPECT_THROW(RoundToInt16(32767.5), Failure);
  EXPECT_THROW(RoundToInt16(-32768.6), Failure);
  EXPECT_THROW(RoundToInt16(1e30), Failure);
  EXPECT_THROW(RoundToInt16(std::numeric_limits<double>::quiet_NaN()), Failure);
  EXPECT_THROW(RoundToInt16(std::numeric_limits<double>::infinity()), Failure);
}

TEST(RoundDown, GoesDownBelowZeroToo) {
  EXPECT_EQ(RoundDown(2.9), 2.0);
  EXPECT_EQ(RoundDown(-0.1), -1.0);
  EXPECT_EQ(RoundDown(-3.0), -3.0);
}

}  // namespace
}  // namespace orvane
