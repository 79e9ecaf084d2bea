#include "vision/colour_difference.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

struct Published {
  Lab First, Second;
  double Difference;
};

// From the test data of G. Sharma, W. Wu, E. N. Dalal, Color Research & Application 30 (2005): each
// takes a different path through the formula.
const Published kPublished[] = {
    {{50.0000, 2.6772, -79.7751}, {50.0000, 0.0000, -82.7485}, 2.0425},    // blue: the turn
    {{50.0000, -1.3802, -84.2814}, {50.0000, 0.0000, -82.7485}, 1.0000},   // the same
    {{50.0000, 0.0000, 0.0000}, {50.0000, -1.0000, 2.0000}, 2.3669},       // one of them grey
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0009}, 7.1792},      // hues nearly opposite
    {{50.0000, 2.4900, -0.0010}, {50.0000, -2.4900, 0.0011}, 7.2195},      // the other way round
    {{50.0000, 2.5000, 0.0000}, {50.0000, 0.0000, -2.5000}, 4.3065},       //
    {{50.0000, 2.5000, 0.0000}, {73.0000, 25.0000, -18.0000}, 27.1492},    // far apart
    {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},  //
    {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082},       // near black
};

TEST(TheDifference, IsThatOfThePublishedPairsInBothOrders) {
  for (const Published& pair : kPublished) {
    EXPECT_NEAR(Difference(pair.First, pair.Second), pair.Difference, 0.00005);
    EXPECT_NEAR(Difference(pair.Second, pair.First), pair.Difference, 0.00005);
  }
}

TEST(TheDifference, OfAColourFromItselfIsZero) {
  EXPECT_DOUBLE_EQ(SeenDifference(Eye::Deutan, Rgb(60, 60, 240), Rgb(60, 60, 240)), 0);
}

TEST(TheDifference, OfBlackAndWhiteIsAHundredToEveryEye) {
  for (const Eye eye : kEyes) {
    EXPECT_NEAR(SeenDifference(eye, Rgb(0, 0, 0), Rgb(255, 255, 255)), 100, 0.01);
  }
}

}  // namespace
}  // namespace orvane
