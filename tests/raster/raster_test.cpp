#include "raster/raster.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "raster/small_picture.h"

namespace orvane {
namespace {

// Pictures of a few pixels in white on black, so that a pixel's red is its coverage. 128 is a half:
// 255 * 128 / 256 is 127.5, and is rounded up.

TEST(RasterTest, AnEmptyPictureIsItsBackColour) {
  SmallPicture picture(3, 2);
  picture.BackColor = Rgb(1, 2, 3);

  for (const std::uint32_t word : Raster().Paint(picture).Words) EXPECT_EQ(word, 0xFF010203u);
}

TEST(RasterTest, ATextIsPrintedBelowAndToTheRightOfItsPlace) {
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
  // The cell of an H of 11 pixels is 0.722 * 11 = 7.94 wide. Capitals are 0.716 * 11 = 7.9 high,
  // and their base line is 0.905 * 11 = 10 below the top.
  EXPECT_EQ(top, 8 + 10 - 8);
  EXPECT_EQ(bottom, 8 + 10 - 1);
  EXPECT_GE(left, 10);
  EXPECT_LE(right, 10 + 7);
}

TEST(RasterTest, BlanksMoveATextByTheirWidth) {
  // A blank is 0.278 of 11 pixels wide, so nine are 27.5: whole pixels at twice the size.
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

TEST(RasterTest, WildCoordinatesAreSkippedOrCutAndNeverTakeLong) {
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

TEST(RasterTest, AnImpossibleScaleGivesThePlainColour) {
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
