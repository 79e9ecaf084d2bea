#include <cmath>
#include <gtest/gtest.h>

#include "raster/raster.h"
#include "raster/small_picture.h"

namespace orvane {
namespace {

TEST(RasterCircles, ACircleIsFilledUpToItsOutlineAndEndsAfterIt) {
  // Radius 3 and a pen of 1: red up to 2.5 from the centre, white to 3.5, then nothing.
  SmallPicture picture(11, 11);
  picture.Circle(5, 5, 3, Rgb(255, 0, 0), kWhite);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 5, 5), 0xFFFF0000u);
  EXPECT_EQ(WordAt(bitmap, 7, 5), 0xFFFF0000u);
  EXPECT_EQ(WordAt(bitmap, 8, 5), 0xFFFFFFFFu);
  EXPECT_EQ(WordAt(bitmap, 5, 2), 0xFFFFFFFFu);
  EXPECT_EQ(WordAt(bitmap, 9, 5), 0xFF000000u);
  EXPECT_EQ(WordAt(bitmap, 8, 8), 0xFF000000u);  // at 4.24
}

TEST(RasterCircles, ACircleIsTheSameFromAllSides) {
  SmallPicture picture(15, 15);
  picture.Circle(7, 7, 4.85, Rgb(255, 0, 0), kWhite);
  const Bitmap bitmap = Raster().Paint(picture);

  for (int y = 0; y < 15; ++y) {
    for (int x = 0; x < 15; ++x) {
      EXPECT_EQ(WordAt(bitmap, x, y), WordAt(bitmap, 14 - x, y));
      EXPECT_EQ(WordAt(bitmap, x, y), WordAt(bitmap, y, x));
    }
  }
}

TEST(RasterCircles, AnEmptyCircleShowsWhatIsBelow) {
  SmallPicture picture(11, 11);
  picture.BackColor = Rgb(0, 0, 255);
  picture.Circle(5, 5, 3, Rgb(255, 0, 0), kWhite, 1);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 5, 5), 0xFF0000FFu);
  EXPECT_EQ(WordAt(bitmap, 8, 5), 0xFFFFFFFFu);
}

TEST(RasterCircles, ABallMovesInQuartersOfAPixel) {
  const auto painted = [](float x) {
    SmallPicture picture(11, 11);
    picture.Circle(x, 5, 3, Rgb(255, 0, 0), kWhite);
    return Raster().Paint(picture).Words;
  };

  EXPECT_EQ(painted(5.0f), painted(5.1f));
  EXPECT_EQ(painted(5.25f), painted(5.3f));
  EXPECT_NE(painted(5.0f), painted(5.25f));
}

TEST(RasterCircles, ABallAtTheEdgeIsTheSameBallCut) {
  SmallPicture whole(40, 40), cut(40, 40);
  whole.Circle(20, 20, 6.3f, Rgb(255, 0, 0), kWhite);
  cut.Circle(1, 38, 6.3f, Rgb(255, 0, 0), kWhite);
  const Bitmap first = Raster().Paint(whole), second = Raster().Paint(cut);

  for (int y = 25; y < 40; ++y) {
    for (int x = 0; x < 15; ++x) EXPECT_EQ(WordAt(second, x, y), WordAt(first, x + 19, y - 18));
  }
}

TEST(RasterCircles, ALargeCircleIsDrawnWithoutASprite) {
  SmallPicture picture(300, 300);
  picture.Circle(150, 150, 120, Rgb(255, 0, 0), kWhite);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 150, 150), 0xFFFF0000u);
  EXPECT_EQ(WordAt(bitmap, 270, 150), 0xFFFFFFFFu);
  EXPECT_EQ(WordAt(bitmap, 272, 150), 0xFF000000u);
}

TEST(RasterCircles, ALargeEmptyCircleShowsWhatIsBelow) {
  SmallPicture picture(300, 300);
  picture.BackColor = Rgb(0, 0, 255);
  picture.Circle(150, 150, 120, Rgb(255, 0, 0), kWhite, 1);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 150, 150), 0xFF0000FFu);
  EXPECT_EQ(WordAt(bitmap, 200, 180), 0xFF0000FFu);
  EXPECT_EQ(WordAt(bitmap, 270, 150), 0xFFFFFFFFu);
}

TEST(RasterCircles, ALargeCircleHasNoGapBetweenRimAndCore) {
  // A ball of 20 pixels at a scale of 4 differs from a sprite only in its size. Both down its
  // middle and across it, it is filled up to 79.5 - 0.5; then comes the outline.
  SmallPicture picture(60, 60);
  picture.Circle(30, 30, 20, Rgb(255, 0, 0), Rgb(255, 0, 0));
  const Bitmap bitmap = Raster().Paint(picture, 4);

  for (int y = 0; y < 240; ++y) {
    for (int x = 0; x < 240; ++x) {
      // The centre is at (30 + 0.5) * 4 - 0.5 and the outline ends 2 beyond the radius of 80.
      const double distance = std::hypot(x - 121.5, y - 121.5);
      if (distance > 81.5 && distance < 82.5) continue;
      EXPECT_EQ(RedAt(bitmap, x, y), distance < 82 ? 255 : 0) << x << " " << y;
    }
  }
}

TEST(RasterCircles, AtScale2ABallIsOneOfTwiceTheSize) {
  // Surface centre 4 is the corner between pixels 8 and 9 of the canvas, 8.5.
  SmallPicture small(9, 9), large(18, 18);
  small.Circle(4, 4, 3, Rgb(255, 0, 0), kWhite);
  large.Circle(8.5f, 8.5f, 6, Rgb(255, 0, 0), kWhite, 0, 2);

  EXPECT_EQ(Raster().Paint(small, 2).Words, Raster().Paint(large).Words);
}

}  // namespace
}  // namespace orvane
