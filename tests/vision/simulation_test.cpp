#include "vision/simulation.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(TheSimulation, LeavesEveryGreyAsItIs) {
  for (const Eye eye : kEyes) {
    for (int grey = 0; grey < 256; ++grey) {
      EXPECT_EQ(Simulated(eye, Rgb(grey, grey, grey)), Rgb(grey, grey, grey)) << NameOf(eye);
    }
  }
}

TEST(TheSimulation, ColoursGoToLightAndBack) {
  for (int part = 0; part < 256; ++part) {
    const Colour colour = Rgb(part, 255 - part, 128);
    EXPECT_EQ(ColourOf(LightOf(colour)), colour);
  }
}

// 128 is 0.50196 of 255, and ((0.50196 + 0.055) / 1.055) ^ 2.4 = 0.2159; near black it is straight.
TEST(TheSimulation, WorksOnLightAndNotOnNumbers) {
  EXPECT_NEAR(LightOf(Rgb(128, 0, 0)).Red, 0.2159, 0.0001);
  EXPECT_NEAR(LightOf(Rgb(10, 0, 0)).Red, 10 / 255.0 / 12.92, 1e-9);
}

// The first column of each matrix, with values below 0 cut off.
TEST(TheSimulation, OfPureRedIsTheMatricesFirstColumn) {
  const Light red{1, 0, 0};

  const Light protan = Simulated(Eye::Protan, red);
  EXPECT_DOUBLE_EQ(protan.Red, 0.152286);
  EXPECT_DOUBLE_EQ(protan.Green, 0.114503);
  EXPECT_DOUBLE_EQ(protan.Blue, 0);
  const Light deutan = Simulated(Eye::Deutan, red);
  EXPECT_DOUBLE_EQ(deutan.Red, 0.367322);
  EXPECT_DOUBLE_EQ(deutan.Green, 0.280085);
  const Light tritan = Simulated(Eye::Tritan, red);
  EXPECT_DOUBLE_EQ(tritan.Red, 1);
  EXPECT_DOUBLE_EQ(tritan.Green, 0);
  EXPECT_DOUBLE_EQ(tritan.Blue, 0.004733);
}

// To an eye without red or green cones, red and green of the same brightness differ little; to one
// without blue cones they differ much.
TEST(TheSimulation, RedAndGreenComeTogetherForProtanAndDeutanOnly) {
  const auto spread = [](Eye eye) {
    const Light light = Simulated(eye, LightOf(Rgb(230, 60, 40)));
    const Light other = Simulated(eye, LightOf(Rgb(60, 180, 40)));
    return std::abs((light.Red - light.Green) - (other.Red - other.Green));
  };
  EXPECT_LT(spread(Eye::Protan), 0.15);
  EXPECT_LT(spread(Eye::Deutan), 0.15);
  EXPECT_GT(spread(Eye::Tritan), 0.8);
}

}  // namespace
}  // namespace orvane
