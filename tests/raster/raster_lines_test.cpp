#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

#include "raster/raster.h"
#include "raster/small_picture.h"

namespace orvane {
namespace {

// Pictures of a few pixels in white on black, so that a pixel's red is its coverage. 128 is a half:
// 255 * 128 / 256 is 127.5, and is rounded up.

TEST(RasterLines, ALineOfWidth1OnPixelCentresIsOnePixelWideAndHasBothEnds) {
  SmallPicture picture(7, 3);
  picture.Line(1, 1, 4, 1, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0   0   0   0   0\n"
            "  0 255 255 255 255   0   0\n"
            "  0   0   0   0   0   0   0\n");
}

TEST(RasterLines, AVerticalLineIsAHorizontalOneTurned) {
  SmallPicture picture(3, 5);
  picture.Line(1, 3, 1, 1, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0\n"
            "  0 255   0\n"
            "  0 255   0\n"
            "  0 255   0\n"
            "  0   0   0\n");
}

TEST(RasterLines, ALineBetweenTwoRowsCoversHalfOfEach) {
  SmallPicture picture(5, 4);
  picture.Line(-9, 1.5, 99, 1.5, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0   0   0\n"
            "128 128 128 128 128\n"
            "128 128 128 128 128\n"
            "  0   0   0   0   0\n");
}

TEST(RasterLines, ALineOfWidth2OnACentreCoversHalfOfTheRowsBesideIt) {
  // From a pixel above to a pixel below its middle: the whole of its own row, half of the others.
  SmallPicture picture(4, 5);
  picture.Line(-9, 2, 99, 2, 2);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0   0\n"
            "128 128 128 128\n"
            "255 255 255 255\n"
            "128 128 128 128\n"
            "  0   0   0   0\n");
}

TEST(RasterLines, ALongBroadLineKeepsItsSoftEdges) {
  // Width 6 about row 10 reaches from 7 to 13, whose pixels are half covered. The same for upright.
  SmallPicture lying(60, 21), upright(21, 60);
  lying.Line(-9, 10, 99, 10, 6);
  upright.Line(10, -9, 10, 99, 6);
  const Bitmap first = Raster().Paint(lying), second = Raster().Paint(upright);

  for (int along = 0; along < 60; ++along) {
    for (int across = 0; across < 21; ++across) {
      const int distance = std::abs(across - 10);
      const int expected = distance < 3 ? 255 : distance == 3 ? 128 : 0;
      ASSERT_EQ(RedAt(first, along, across), expected);
      ASSERT_EQ(RedAt(second, across, along), expected);
    }
  }
}

TEST(RasterLines, AWidthOfNothingIsDrawnLikeWidth1) {
  SmallPicture none(5, 3), one(5, 3);
  none.Line(0, 0, 4, 2, 0);
  one.Line(0, 0, 4, 2, 1);

  EXPECT_EQ(Raster().Paint(none).Words, Raster().Paint(one).Words);
}

TEST(RasterLines, EvenlyWideInEveryDirection) {
  // Thickness 3 down a column, with a slope of 3 in 4, whose cosine is 4 / 5, is 3.75 pixels. The
  // pixels of a column are 0.8 apart across the line and see 2 - distance of it, 1 at most. With a
  // pixel on its middle that is 1 + 2 (1 + 0.4) = 3.8, with two beside it 2 (1 + 0.8) = 3.6, with
  // a quarter, distances 0.2 1 1.8 and 0.6 1.4, 1 + 1 + 0.2 + 1 + 0.6 = 3.8.
  SmallPicture picture(40, 40);
  picture.Line(0, 5, 40, 35, 3);
  const Bitmap bitmap = Raster().Paint(picture);

  for (int x = 10; x < 30; ++x) {
    double sum = 0;
    for (int y = 0; y < 40; ++y) sum += RedAt(bitmap, x, y) / 255.0;
    EXPECT_NEAR(sum, x % 4 == 2 ? 3.6 : 3.8, 0.02) << "column " << x;
  }
}

TEST(RasterLines, EndsAreRound) {
  // A pen of width 5 reaches 2.5 beyond the end. The pixel 2 to the right lies wholly inside; the
  // one 3 to the right begins only at 2.5. The corner 2, 2 lies at 2.83, and 2.5 + 0.5 - 2.83 =
  // 0.17 of it is inside: 44 of 256.
  SmallPicture picture(12, 9);
  picture.Line(-20, 4, 4, 4, 5);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(RedAt(bitmap, 6, 4), 255);
  EXPECT_EQ(RedAt(bitmap, 7, 4), 0);
  EXPECT_EQ(RedAt(bitmap, 6, 6), 44);
}

TEST(RasterLines, HalvesOfABondMeetInACleanEdge) {
  // Both halves are on one row, red up to x = 4 and green from there. After the joint there is no
  // red, before it no green, and the background shows through nowhere.
  SmallPicture picture(9, 5);
  picture.Line(-20, 2, 4, 2, 3, Rgb(255, 0, 0));
  picture.Line(4, 2, 29, 2, 3, Rgb(0, 255, 0));
  const Bitmap bitmap = Raster().Paint(picture);

  for (const int y : {1, 2, 3}) {
    EXPECT_EQ(WordAt(bitmap, 3, y), 0xFFFF0000u);
    EXPECT_EQ(WordAt(bitmap, 4, y), 0xFF808000u);  // the edge is in the middle of this pixel
    EXPECT_EQ(WordAt(bitmap, 5, y), 0xFF00FF00u);
  }
}

TEST(RasterLines, HalvesOfADoubleBondMeetCleanlyEvenIfTheOtherLineComesBetween) {
  SmallPicture picture(9, 9);
  picture.Line(-20, 2, 4, 2, 3, Rgb(255, 0, 0));
  picture.Line(-18, 7, 6, 7, 3, Rgb(255, 0, 0));
  picture.Line(4, 2, 29, 2, 3, Rgb(0, 255, 0));
  picture.Line(6, 7, 31, 7, 3, Rgb(0, 255, 0));
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 3, 2), 0xFFFF0000u);
  EXPECT_EQ(WordAt(bitmap, 4, 2), 0xFF808000u);
  EXPECT_EQ(WordAt(bitmap, 6, 7), 0xFF808000u);
}

TEST(RasterLines, ABendIsRoundAndHasNoNotch) {
  SmallPicture picture(12, 12);
  picture.Line(-9, 6, 6, 6, 5);
  picture.Line(6, 6, 6, 29, 5);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_GT(RedAt(bitmap, 7, 4), 200);  // the outer side of the bend, 2.24 from its point
}

TEST(RasterLines, ALaterStrokeCoversAnEarlierOne) {
  SmallPicture picture(3, 3);
  picture.Line(0, 1, 2, 1, 1, Rgb(255, 0, 0));
  picture.Line(1, 0, 1, 2, 1, Rgb(0, 0, 255));

  EXPECT_EQ(WordAt(Raster().Paint(picture), 1, 1), 0xFF0000FFu);
}

TEST(RasterLines, ADottedLineHasDotsOfThreePixelsAndGapsOfThree) {
  // The first dot begins in the middle of pixel 0, with nothing before it. So the pixels 0 and 3
  // are half covered, and 6 and 9 too.
  SmallPicture picture(10, 1);
  picture.Line(0, 0, 20, 0, 1, kWhite, 2);

  EXPECT_EQ(Reds(Raster().Paint(picture)), "128 255 255 128   0   0 128 255 255 128\n");
}

TEST(RasterLines, OnlyAPenOfWidth1IsDotted) {
  SmallPicture dotted(9, 5), solid(9, 5);
  dotted.Line(0, 2, 9, 2, 2, kWhite, 2);
  solid.Line(0, 2, 9, 2, 2);

  EXPECT_EQ(Raster().Paint(dotted).Words, Raster().Paint(solid).Words);
}

TEST(RasterLines, ADottedLineOfNoLengthIsADot) {
  SmallPicture picture(3, 3);
  picture.Line(1, 1, 1, 1, 1, kWhite, 2);

  EXPECT_EQ(RedAt(Raster().Paint(picture), 1, 1), 255);
}

TEST(RasterLines, AtScale2ALineIsTwicePixelsWide) {
  // Row 1 of the surface is rows 2 and 3 of the canvas.
  SmallPicture picture(5, 3);
  picture.Line(-9, 1, 99, 1, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture, 2)),
            "  0   0   0   0   0   0   0   0   0   0\n"
            "  0   0   0   0   0   0   0   0   0   0\n"
            "255 255 255 255 255 255 255 255 255 255\n"
            "255 255 255 255 255 255 255 255 255 255\n"
            "  0   0   0   0   0   0   0   0   0   0\n"
            "  0   0   0   0   0   0   0   0   0   0\n");
}

TEST(RasterLines, APenMadeFineByTheScaleFadesButNotBelowThreeQuarters) {
  // A pen of 1 at scale 0.5 would be half a pixel. The surface's row 0.5 is the canvas's row 0.
  SmallPicture picture(8, 2);
  picture.Line(-9, 0.5f, 99, 0.5f, 1);

  // 0.75 of 256 is 192, and 255 * 192 / 256 is 191.25.
  EXPECT_EQ(Reds(Raster().Paint(picture, 0.5)), "191 191 191 191\n");
}

TEST(RasterLines, ALineFromFarOutsideCrossesTheSurfaceWhereItShould) {
  SmallPicture picture(9, 5);
  picture.Line(-3e6f, 2, 3e6f, 2, 1);
  const Bitmap bitmap = Raster().Paint(picture);

  for (int x = 0; x < 9; ++x) {
    EXPECT_EQ(RedAt(bitmap, x, 2), 255);
    EXPECT_EQ(RedAt(bitmap, x, 1), 0);
  }
}

}  // namespace
}  // namespace orvane
