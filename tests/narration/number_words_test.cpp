#include "narration/number_words.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(NumberWords, AreAsShortAsTheyCanBe) {
  EXPECT_EQ(NumberWords(289), "289");
  EXPECT_EQ(NumberWords(69.98), "69.98");
  EXPECT_EQ(NumberWords(-38.648), "−38.648");
  EXPECT_EQ(LengthWords(1.5), "1.5 Å");
}

TEST(DegreeWords, HaveOneDecimalAndATrueMinus) {
  EXPECT_EQ(DegreeWords(109.02), "109.0°");
  EXPECT_EQ(DegreeWords(-64.96), "−65.0°");
  EXPECT_EQ(DegreeWords(0.26), "0.3°");
}

TEST(DegreeWords, HaveNoMinusBeforeZeroAndOnlyOneHalfTurn) {
  EXPECT_EQ(DegreeWords(-0.04), "0.0°");
  EXPECT_EQ(DegreeWords(-180), "180.0°");
  EXPECT_EQ(DegreeWords(-179.98), "180.0°");
  EXPECT_EQ(DegreeWords(-179.9), "−179.9°");
}

}  // namespace
}  // namespace orvane
