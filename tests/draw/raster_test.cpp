#include "draw/raster.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "draw/small_picture.h"

namespace orvane {
namespace {

// Pictures of a few pixels in white on black, so that a pixel's red is its cover. 128 is a half:
// 255 * 128 / 256 is 127.5, and goes up.

TEST(RasterTest, AnEmptyPictureIsItsBackColour) {
  SmallPicture picture(3, 2);
  picture.BackColor = Rgb(1, 2, 3);

  for (const std::uint32_t word : Raster().Paint(picture).Words) EXPECT_EQ(word, 0xFF010203u);
}

TEST(RasterTest, ALineOfWidth1OnPixelCentresIsOnePixelWideAndHasBothEnds) {
  SmallPicture picture(7, 3);
  picture.Line(1, 1, 4, 1, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0   0   0   0   0\n"
            "  0 255 255 255 255   0   0\n"
            "  0   0   0   0   0   0   0\n");
}

TEST(RasterTest, AnUprightLineIsALyingOneTurned) {
  SmallPicture picture(3, 5);
  picture.Line(1, 3, 1, 1, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0\n"
            "  0 255   0\n"
            "  0 255   0\n"
            "  0 255   0\n"
            "  0   0   0\n");
}

TEST(RasterTest, ALineBetweenTwoRowsCoversHalfOfEach) {
  SmallPicture picture(5, 4);
  picture.Line(-9, 1.5, 99, 1.5, 1);

  EXPECT_EQ(Reds(Raster().Paint(picture)),
            "  0   0   0   0   0\n"
            "128 128 128 128 128\n"
            "128 128 128 128 128\n"
            "  0   0   0   0   0\n");
}

TEST(RasterTest, ALineOfWidth2OnACentreCoversHalfOfTheRowsBesideIt) {
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

TEST(RasterTest, ALongBroadLineKeepsItsSoftEdges) {
  // Width 6 about row 10 reaches from 7 to 13, whose pixels are covered by half. Upright likewise.
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

TEST(RasterTest, AWidthOfNothingIsDrawnLikeWidth1) {
  SmallPicture none(5, 3), one(5, 3);
  none.Line(0, 0, 4, 2, 0);
  one.Line(0, 0, 4, 2, 1);

  EXPECT_EQ(Raster().Paint(none).Words, Raster().Paint(one).Words);
}

TEST(RasterTest, EvenlyWideInEveryDirection) {
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

TEST(RasterTest, EndsAreRound) {
  // A pen of width 5 reaches 2.5 beyond the end. The pixel 2 to the right lies wholly within, the
  // one 3 to the right does not begin before 2.5; the corner 2, 2 lies at 2.83, of which
  // 2.5 + 0.5 - 2.83 = 0.17 is within: 44 of 256.
  SmallPicture picture(12, 9);
  picture.Line(-20, 4, 4, 4, 5);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(RedAt(bitmap, 6, 4), 255);
  EXPECT_EQ(RedAt(bitmap, 7, 4), 0);
  EXPECT_EQ(RedAt(bitmap, 6, 6), 44);
}

TEST(RasterTest, HalvesOfABondMeetInACleanEdge) {
  // Both halves on one row, red up to x = 4 and green from there. Behind the joint no red is left,
  // before it no green, and the ground shines through nowhere.
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

TEST(RasterTest, HalvesOfADoubleBondMeetCleanlyThoughTheOtherLineComesBetween) {
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

TEST(RasterTest, ABendIsRoundAndHasNoNotch) {
  SmallPicture picture(12, 12);
  picture.Line(-9, 6, 6, 6, 5);
  picture.Line(6, 6, 6, 29, 5);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_GT(RedAt(bitmap, 7, 4), 200);  // the outer side of the bend, 2.24 from its point
}

TEST(RasterTest, ALaterStrokeCoversAnEarlierOne) {
  SmallPicture picture(3, 3);
  picture.Line(0, 1, 2, 1, 1, Rgb(255, 0, 0));
  picture.Line(1, 0, 1, 2, 1, Rgb(0, 0, 255));

  EXPECT_EQ(WordAt(Raster().Paint(picture), 1, 1), 0xFF0000FFu);
}

TEST(RasterTest, ADottedLineIsThreePixelsAndThreePixelsGap) {
  // Dots run from -0.5 beside nothing: the first begins in the middle of pixel 0, so of the pixels
  // 0 and 3 half is covered, of 6 and 9 too.
  SmallPicture picture(10, 1);
  picture.Line(0, 0, 20, 0, 1, kWhite, 2);

  EXPECT_EQ(Reds(Raster().Paint(picture)), "128 255 255 128   0   0 128 255 255 128\n");
}

TEST(RasterTest, OnlyAPenOfWidth1IsDotted) {
  SmallPicture dotted(9, 5), solid(9, 5);
  dotted.Line(0, 2, 9, 2, 2, kWhite, 2);
  solid.Line(0, 2, 9, 2, 2);

  EXPECT_EQ(Raster().Paint(dotted).Words, Raster().Paint(solid).Words);
}

TEST(RasterTest, ADottedLineOfNoLengthIsADot) {
  SmallPicture picture(3, 3);
  picture.Line(1, 1, 1, 1, 1, kWhite, 2);

  EXPECT_EQ(RedAt(Raster().Paint(picture), 1, 1), 255);
}

TEST(RasterTest, ACircleIsFilledUpToItsOutlineAndEndsBehindIt) {
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

TEST(RasterTest, ACircleIsTheSameFromAllSides) {
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

TEST(RasterTest, AnEmptyCircleShowsWhatIsBelow) {
  SmallPicture picture(11, 11);
  picture.BackColor = Rgb(0, 0, 255);
  picture.Circle(5, 5, 3, Rgb(255, 0, 0), kWhite, 1);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 5, 5), 0xFF0000FFu);
  EXPECT_EQ(WordAt(bitmap, 8, 5), 0xFFFFFFFFu);
}

TEST(RasterTest, ABallMovesInQuartersOfAPixel) {
  const auto painted = [](float x) {
    SmallPicture picture(11, 11);
    picture.Circle(x, 5, 3, Rgb(255, 0, 0), kWhite);
    return Raster().Paint(picture).Words;
  };

  EXPECT_EQ(painted(5.0f), painted(5.1f));
  EXPECT_EQ(painted(5.25f), painted(5.3f));
  EXPECT_NE(painted(5.0f), painted(5.25f));
}

TEST(RasterTest, ABallAtTheEdgeIsTheSameBallCut) {
  SmallPicture whole(40, 40), cut(40, 40);
  whole.Circle(20, 20, 6.3f, Rgb(255, 0, 0), kWhite);
  cut.Circle(1, 38, 6.3f, Rgb(255, 0, 0), kWhite);
  const Bitmap first = Raster().Paint(whole), second = Raster().Paint(cut);

  for (int y = 25; y < 40; ++y) {
    for (int x = 0; x < 15; ++x) EXPECT_EQ(WordAt(second, x, y), WordAt(first, x + 19, y - 18));
  }
}

TEST(RasterTest, ALargeCircleIsDrawnWithoutASprite) {
  SmallPicture picture(300, 300);
  picture.Circle(150, 150, 120, Rgb(255, 0, 0), kWhite);
  const Bitmap bitmap = Raster().Paint(picture);

  EXPECT_EQ(WordAt(bitmap, 150, 150), 0xFFFF0000u);
  EXPECT_EQ(WordAt(bitmap, 270, 150), 0xFFFFFFFFu);
  EXPECT_EQ(WordAt(bitmap, 272, 150), 0xFF000000u);
}

TEST(RasterTest, ALargeCircleHasNoGapBetweenRimAndCore) {
  // Of a ball of 20 pixels at a scale of 4 only the size differs from a sprite's. Down its middle
  // and across it: filled up to 79.5 - 0.5, then the outline.
  SmallPicture picture(60, 60);
  picture.Circle(30, 30, 20, Rgb(255, 0, 0), Rgb(255, 0, 0));
  const Bitmap bitmap = Raster().Paint(picture, 4);

  for (int y = 0; y < 240; ++y) {
    for (int x = 0; x < 240; ++x) {
      // The centre is at (30 + 0.5) * 4 - 0.5 and the outline ends 2 behind the radius of 80.
      const double distance = std::hypot(x - 121.5, y - 121.5);
      if (distance > 81.5 && distance < 82.5) continue;
      EXPECT_EQ(RedAt(bitmap, x, y), distance < 82 ? 255 : 0) << x << " " << y;
    }
  }
}

TEST(RasterTest, AtScale2ALineIsTwicePixelsWide) {
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

TEST(RasterTest, AtScale2ABallIsOneOfTwiceTheSize) {
  // Surface centre 4 is the corner between pixels 8 and 9 of the canvas, 8.5.
  SmallPicture small(9, 9), large(18, 18);
  small.Circle(4, 4, 3, Rgb(255, 0, 0), kWhite);
  large.Circle(8.5f, 8.5f, 6, Rgb(255, 0, 0), kWhite, 0, 2);

  EXPECT_EQ(Raster().Paint(small, 2).Words, Raster().Paint(large).Words);
}

TEST(RasterTest, APenThatScaleMakesFineGoesFaintButNotBelowThreeQuarters) {
  // A pen of 1 at scale 0.5 would be half a pixel. The surface's row 0.5 is the canvas's row 0.
  SmallPicture picture(8, 2);
  picture.Line(-9, 0.5f, 99, 0.5f, 1);

  // 0.75 of 256 is 192, and 255 * 192 / 256 is 191.25.
  EXPECT_EQ(Reds(Raster().Paint(picture, 0.5)), "191 191 191 191\n");
}

TEST(RasterTest, ATextStandsBelowAndToTheRightOfItsPlace) {
  SmallPicture picture(30, 30);
  picture.Print(10, 8, "H");
  const Bitmap bitmap = Raster().Paint(picture);

  int left = 30, right = -1, top = 30, bottom = -1;
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 30; ++x) {
      if (RedAt(bitmap, x, y) < 64) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  // The cell of an H of 11 pixels is 0.722 * 11 = 7.94 wide; its capitals are 0.716 * 11 = 7.9
  // high and stand on the line 0.905 * 11 = 10 below the top.
  EXPECT_EQ(top, 8 + 10 - 8);
  EXPECT_EQ(bottom, 8 + 10 - 1);
  EXPECT_GE(left, 10);
  EXPECT_LE(right, 10 + 7);
}

TEST(RasterTest, BlanksMoveATextByTheirWidth) {
  // A blank is 0.278 of 11 pixels wide, so nine of them are 27.5: at twice the size whole pixels.
  SmallPicture plain(60, 20), moved(60, 20);
  plain.Print(29.5f, 2, "N");
  moved.Print(2, 2, "         N");
  const Bitmap first = Raster().Paint(plain, 2), second = Raster().Paint(moved, 2);

  int differing = 0;
  for (std::size_t word = 0; word < first.Words.size(); ++word) {
    const int step =
        static_cast<int>(first.Words[word] & 255u) - static_cast<int>(second.Words[word] & 255u);
    differing += std::abs(step) > 24;
  }
  EXPECT_EQ(differing, 0);
  EXPECT_NE(Reds(first).find("255"), std::string::npos);
}

TEST(RasterTest, ATextCutByTheEdgeIsTheSameTextCut) {
  SmallPicture whole(60, 30), cut(20, 30);
  whole.Print(25, 10, "CA1 H4");
  cut.Print(5, 10, "CA1 H4");
  const Bitmap first = Raster().Paint(whole), second = Raster().Paint(cut);

  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 20; ++x) EXPECT_EQ(WordAt(second, x, y), WordAt(first, x + 20, y));
  }
}

TEST(RasterTest, ABackdropLiesAtTheTopLeftAtItsOwnSize) {
  SmallPicture picture(3, 2);
  picture.BackColor = Rgb(9, 9, 9);
  picture.Backdrop = std::make_shared<Bitmap>(Bitmap{2, 1, {0xFF112233u, 0xFF445566u}});

  EXPECT_EQ(Raster().Paint(picture).Words,
            (std::vector<std::uint32_t>{0xFF112233u, 0xFF445566u, 0xFF090909u,  //
                                        0xFF090909u, 0xFF090909u, 0xFF090909u}));
}

TEST(RasterTest, ABackdropScalesWithThePicture) {
  SmallPicture picture(4, 2);
  picture.Backdrop =
      std::make_shared<Bitmap>(Bitmap{4,
                                      2,
                                      {0xFF000000u, 0xFF404040u, 0xFFFFFFFFu, 0xFFFFFFFFu,  //
                                       0xFF000000u, 0xFF404040u, 0xFFFFFFFFu, 0xFFFFFFFFu}});
  Raster raster;

  // Halved, a tent of four pixels with weights 1 3 3 1: (0 * 4 + 0x40 * 3 + 255 * 1) / 8 would take
  // the pixel left of the image too; without it 0 * 3 + 64 * 3 + 255 of 7 is 63.9.
  EXPECT_EQ(WordAt(raster.Paint(picture, 0.5), 0, 0), 0xFF404040u);
  // Doubled, pixel 2 is a quarter of the way from the first to the second: 64 / 4 * 3... of the
  // two nearest centres, 0.25 and 0.75: 0 * 0.25 + 64 * 0.75 is 48 for pixel 2.
  EXPECT_EQ(WordAt(raster.Paint(picture, 2), 0, 0), 0xFF000000u);
  EXPECT_EQ(WordAt(raster.Paint(picture, 2), 2, 1), 0xFF303030u);
}

TEST(RasterTest, WhatIsKeptBetweenPaintsDoesNotShow) {
  SmallPicture picture(60, 40);
  picture.Circle(20, 20, 5.85f, Rgb(0, 240, 80), 0);
  picture.Print(30, 10, "  CA ");
  picture.Backdrop = std::make_shared<Bitmap>(Bitmap{1, 1, {0xFF112233u}});
  Raster raster;
  const auto first = raster.Paint(picture, 1.5).Words;
  raster.Paint(picture, 0.7);

  EXPECT_EQ(raster.Paint(picture, 1.5).Words, first);
  EXPECT_EQ(Raster().Paint(picture, 1.5).Words, first);
}

TEST(RasterTest, OnlyTheCanvasIsWritten) {
  SmallPicture picture(8, 8);
  picture.Line(-5, -5, 20, 20, 6);
  picture.Circle(7, 7, 3, Rgb(255, 0, 0), kWhite);
  picture.Circle(100, 7, 200, Rgb(255, 0, 0), kWhite);
  picture.Print(3, -2, "WWW");
  std::vector<std::uint32_t> words(12 * 10, 7u);
  Raster().Paint(picture, 1, &words[12 + 2], 8, 8, 12);

  for (int y = 0; y < 10; ++y) {
    for (int x = 0; x < 12; ++x) {
      const bool inside = x >= 2 && x < 10 && y >= 1 && y < 9;
      EXPECT_EQ(words[static_cast<std::size_t>(12 * y + x)] == 7u, !inside) << x << " " << y;
    }
  }
}

TEST(RasterTest, WildPlacesAreSkippedOrCutAndNeverTakeLong) {
  const float infinite = std::numeric_limits<float>::infinity();
  const float nan = std::numeric_limits<float>::quiet_NaN();
  const float wild[] = {0,     -0.0f, 1e-30f, 179.5f,   -3e3f,     1e6f,
                        -1e9f, 1e30f, -3e38f, infinite, -infinite, nan};
  for (const double scale : {1.0, 0.4694, 4.0}) {
    SmallPicture picture(360, 360);
    for (const float a : wild) {
      for (const float b : wild) {
        for (const float c : wild) {
          picture.Line(a, b, c, 100, 6);
          picture.Line(a, 10, b, c, 1, kWhite, 2);
          picture.Line(50, a, b, c, 0);
        }
        picture.Circle(a, 20, b, 0, kWhite);
        picture.Circle(20, a, b, 0, kWhite, 1, 6);
        picture.Print(a, b, "N");
      }
    }
    EXPECT_EQ(Raster().Paint(picture, scale).Width, std::lround(360 * scale));
  }
}

TEST(RasterTest, ALineFromFarOutsideCrossesTheSurfaceWhereItShould) {
  SmallPicture picture(9, 5);
  picture.Line(-3e6f, 2, 3e6f, 2, 1);
  const Bitmap bitmap = Raster().Paint(picture);

  for (int x = 0; x < 9; ++x) {
    EXPECT_EQ(RedAt(bitmap, x, 2), 255);
    EXPECT_EQ(RedAt(bitmap, x, 1), 0);
  }
}

TEST(RasterTest, AScaleThatIsNoneGivesThePlainColour) {
  SmallPicture picture(2, 2);
  picture.Line(0, 0, 1, 1, 3);
  std::uint32_t words[4];
  for (const double scale : {0.0, -1.0, std::nan("")}) {
    Raster().Paint(picture, scale, words, 2, 2, 2);
    for (const std::uint32_t word : words) EXPECT_EQ(word, 0xFF000000u);
  }
}

}  // namespace
}  // namespace orvane
