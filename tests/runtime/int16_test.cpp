#include "runtime/int16.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Int16, HoldsWhatSixteenBitsHold) {
  EXPECT_EQ(Int16(32767), 32767);
  EXPECT_EQ(Int16(-32768), -32768);
  EXPECT_EQ(Int16(), 0);
}

TEST(Int16, RefusesTheNextNumberOnEitherSide) {
  EXPECT_THROW(Int16(32768), Failure);
  EXPECT_THROW(Int16(-32769), Failure);
}

TEST(Int16, CountingOnFailsAtTheEndAndKeepsTheLastValue) {
  Int16 count = 32767;
  EXPECT_THROW(++count, Failure);
  EXPECT_EQ(count, 32767);
  EXPECT_THROW(count += 55, Failure);
  EXPECT_EQ(count, 32767);
  count = -32760;
  EXPECT_THROW(count -= 9, Failure);
  EXPECT_EQ(count, -32760);
}

TEST(Int16, ASumIsCheckedWhenItIsStoredAndNotBefore) {
  const Int16 most = 32767;
  const Int16 stored = most + 10 - 10;
  EXPECT_EQ(stored, 32767);
}

TEST(Int16, TheFailureSaysSoInPlainWords) {
  try {
    Int16(40000);
    FAIL();
  } catch (const Failure& failure) {
    EXPECT_STREQ(failure.what(), "a whole number grew beyond what it can hold");
  }
}

}  // namespace
}  // namespace orvane
