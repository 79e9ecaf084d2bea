#include "draw/backgrounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

#include "background_maker/background_maker.h"
#include "desk_fixture.h"
#include "draw/elements.h"
#include "runtime/failure.h"

namespace orvane {
namespace {

// The luminance of a colour on an ordinary screen, relative to white.
double Luminance(double red, double green, double blue) {
  const auto linear = [](double channel) {
    const double share = channel / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(red) + 0.7152 * linear(green) + 0.0722 * linear(blue);
}

double Luminance(Colour colour) { return Luminance(Red(colour), Green(colour), Blue(colour)); }

// (brighter + 0.05) / (darker + 0.05): 1 cannot be seen, 21 is black on white.
double Contrast(double brighter, double darker) { return (brighter + 0.05) / (darker + 0.05); }

double LuminanceOfWord(std::uint32_t word) {
  return Luminance(word >> 16 & 255, word >> 8 & 255, word & 255);
}

double BrightestPixel(const Bitmap& bitmap) {
  const std::set<std::uint32_t> shades(bitmap.Words.begin(), bitmap.Words.end());
  double brightest = 0;
  for (const std::uint32_t shade : shades) brightest = std::max(brightest, LuminanceOfWord(shade));
  return brightest;
}

TEST(Backgrounds, AreFiveSquaresOfOpaquePixels) {
  Colours colours;
  for (int n = 0; n < kBackgroundCount; ++n) {
    const auto picture = BackgroundPicture(colours, n);
    EXPECT_EQ(picture->Width, 368);
    EXPECT_EQ(picture->Height, 368);
    ASSERT_EQ(picture->Words.size(), 368u * 368u);
    EXPECT_TRUE(
        std::ranges::all_of(picture->Words, [](std::uint32_t word) { return word >> 24 == 0xFF; }));
  }
}

TEST(Backgrounds, AreWhatTheMakerDraws) {
  Colours colours;
  for (int n = 0; n < kBackgroundCount; ++n) {
    std::ifstream file(std::string(ORVANE_SOURCE_DIR) + "/src/draw/backgrounds/bgr" +
                           std::to_string(n + 1) + ".gif",
                       std::ios::binary);
    std::ostringstream kept;
    kept << file.rdbuf();
    EXPECT_TRUE(kept.str() == backgrounds::BackgroundFile(n)) << n;
    EXPECT_TRUE(BackgroundPicture(colours, n)->Words == backgrounds::DrawBackground(n).Words) << n;
  }
}

TEST(Backgrounds, NoneIsDecodedBeforeOneIsAskedFor) {
  DeskAtWork work;
  const auto decoded = [&] {
    return std::ranges::count_if(work.desk.colours.BakImg,
                                 [](const auto& p) { return p != nullptr; });
  };
  SelectRow(work.desk, work.desk.main.Pro_Lst, 1);
  EXPECT_EQ(decoded(), 0);
  Click(work.desk, work.desk.main.Bgr4);
  EXPECT_EQ(decoded(), 1);
}

TEST(Backgrounds, AreDecodedWhenFirstAskedForAndKept) {
  Colours colours;
  EXPECT_EQ(colours.BakImg[2], nullptr);
  const auto picture = BackgroundPicture(colours, 2);
  EXPECT_EQ(BackgroundPicture(colours, 2), picture);
  EXPECT_EQ(colours.BakImg[2], picture);
  EXPECT_EQ(colours.BakImg[0], nullptr);
}

TEST(Backgrounds, ThereIsNoSixth) {
  Colours colours;
  EXPECT_THROW(BackgroundPicture(colours, 5), Failure);
  EXPECT_THROW(BackgroundPicture(colours, -1), Failure);
}

// The outline of anything that has to be recognised should have a contrast of 3. The blue of
// nitrogen has 3.1 on plain black, so a background that is not black cannot give it 3. It keeps
// 2.5, four fifths of what black gives it.
TEST(Backgrounds, EveryElementStandsOutFromEveryPixel) {
  Colours colours;
  for (int n = 0; n < kBackgroundCount; ++n) {
    const double ground = BrightestPixel(*BackgroundPicture(colours, n));
    for (const ElementRow& element : kElements) {
      const double least = element.Letter == 'N' ? 2.5 : 3.0;
      EXPECT_GE(Contrast(Luminance(element.Ink), ground), least)
          << "picture " << n << ", element " << element.Letter;
    }
  }
}

TEST(Backgrounds, TheColoursOfTheStartStandOutFromEveryPixel) {
  Colours colours;
  for (int n = 0; n < kBackgroundCount; ++n) {
    const double ground = BrightestPixel(*BackgroundPicture(colours, n));
    for (const Colour colour : {colours.PenColour, colours.LabelColour, colours.PlaneColour}) {
      EXPECT_GE(Contrast(Luminance(colour), ground), 3.0) << "picture " << n;
    }
  }
}

// The largest difference between a pixel and the one beside it or below it.
double SharpestEdge(const Bitmap& bitmap) {
  double most = 1;
  for (int i = 0; i < bitmap.Width * (bitmap.Height - 1); ++i) {
    const double here = LuminanceOfWord(bitmap.Words[static_cast<std::size_t>(i)]);
    for (const int next : {i + 1, i + bitmap.Width}) {
      if (next == i + 1 && next % bitmap.Width == 0) continue;  // begins the next row
      const double there = LuminanceOfWord(bitmap.Words[static_cast<std::size_t>(next)]);
      most = std::max(most, Contrast(std::max(here, there), std::min(here, there)));
    }
  }
  return most;
}

// Half of the contrast of the faintest element, so that nothing in a picture looks like a stroke.
TEST(Backgrounds, HaveNoEdgeThatCouldPassForAStroke) {
  Colours colours;
  for (int n = 0; n < kBackgroundCount; ++n) {
    EXPECT_LT(SharpestEdge(*BackgroundPicture(colours, n)), 1.25) << "picture " << n;
  }
}

TEST(Backgrounds, HaveFiveMoods) {
  Colours colours;
  std::set<std::uint32_t> middles;
  for (int n = 0; n < kBackgroundCount; ++n) {
    const auto picture = BackgroundPicture(colours, n);
    const std::set<std::uint32_t> shades(picture->Words.begin(), picture->Words.end());
    EXPECT_GT(shades.size(), 8u) << "picture " << n << " is all but plain";
    middles.insert(picture->Words[368 * 100 + 100]);
  }
  EXPECT_EQ(middles.size(), 5u);
}

}  // namespace
}  // namespace orvane
