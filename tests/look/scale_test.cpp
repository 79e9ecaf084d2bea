#include "look/scale.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(Scale, AtOneHundredPerCentFifteenTwipsAreAPixel) {
  const Scale scale;

  EXPECT_EQ(scale.Device(Place{60, 330, 1290, 300}), (PixelBox{4, 22, 86, 20}));
}

// At 125 per cent a pixel of the plan is 1.25 pixels: corners 5 and 5 + 25 = 30, then 33.75 and
// 58.75.
TEST(Scale, CornersAreRoundedAndWidthsFollow) {
  const Scale scale{1, 1.25};

  const PixelBox first = scale.Device(Place{60, 0, 300, 300});
  const PixelBox second = scale.Device(Place{405, 0, 300, 300});

  EXPECT_EQ(first.Left, 5);
  EXPECT_EQ(first.Width, 25);
  EXPECT_EQ(second.Left, 34);
  EXPECT_EQ(second.Left + second.Width, 59);
}

TEST(Scale, NeighboursThatTouchInTwipsTouchOnTheScreen) {
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 2.165}) {
    const Scale scale{1, ratio};
    const PixelBox heading = scale.Device(Place{6315, 2055, 2085, 255});
    const PixelBox list = scale.Device(Place{6315, 2310, 2085, 1155});
    EXPECT_EQ(heading.Top + heading.Height, list.Top) << ratio;
  }
}

TEST(Scale, AnEdgeIsNeverThinnerThanAPixelAndAlwaysWhole) {
  EXPECT_EQ((Scale{1, 1.0}).Edge(), 1);
  EXPECT_EQ((Scale{1, 1.25}).Edge(), 1);
  EXPECT_EQ((Scale{1, 2.0}).Edge(), 2);
  EXPECT_EQ((Scale{0.4, 1.0}).Edge(), 1);
}

TEST(Scale, TheSkinsRectangleCoversTheFaceAndWhatIsPaintedRoundIt) {
  const Scale scale{1, 1.5};

  const PixelSpot spot = PixelSpotOf(scale, {60, 60, 300, 300}, 6);

  // 4 to 24 pixels are 6 to 36 device pixels. Add 9 on each side, and divide by 1.5.
  EXPECT_EQ(spot.Face, (PixelBox{6, 6, 30, 30}));
  EXPECT_EQ(spot.Hull, (PixelBox{-2, -2, 32, 32}));
}

}  // namespace
}  // namespace orvane
