// Small scenes whose pixels are kept. They are the same to the byte on every machine.
//
// If you change the look of the picture on purpose, write the pictures again, look at them, and
// commit them with the change:
//   ORVANE_WRITE_GOLDEN=1 build/dev/bin/orvane_tests --gtest_filter='*Golden*'
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>

#include "raster/canvas.h"
#include "raster/raster.h"
#include "raster/small_picture.h"

namespace orvane {
namespace {

constexpr Colour kGreen = Rgb(0, 240, 80);
constexpr Colour kRed = Rgb(240, 0, 0);
constexpr Colour kBlue = Rgb(60, 60, 240);

// Bonds with balls, labels, a double bond and a hydrogen bond, as the atom family paints them.
SmallPicture SticksAndBalls() {
  SmallPicture picture(64, 48);
  picture.Line(12, 12, 20.3f, 17.1f, 3, kGreen);
  picture.Line(20.3f, 17.1f, 28.6f, 22.2f, 3, kBlue);
  picture.Print(12, 12, "  CA ");
  picture.Circle(12, 12, 4.85f, kGreen, 0);
  picture.Line(28.6f, 22.2f, 31.4f, 30.7f, 2, kBlue);
  picture.Line(30.6f, 24.2f, 33.4f, 32.7f, 2, kBlue);
  picture.Line(31.4f, 30.7f, 34.2f, 39.2f, 2, kRed);
  picture.Line(33.4f, 32.7f, 36.2f, 41.2f, 2, kRed);
  picture.Line(34.2f, 39.2f, 46.1f, 34.4f, 1, kRed, 2);
  picture.Line(46.1f, 34.4f, 58, 29.6f, 1, kBlue, 2);
  picture.Print(28.6f, 22.2f, "  N  ");
  picture.Circle(28.6f, 22.2f, 4.54f, kBlue, 0);
  picture.Circle(34.2f, 39.2f, 7.4f, kRed, 0);
  picture.Circle(56, 40, 5, kRed, kWhite, 1);
  return picture;
}

// Lines of all widths in many directions, over a backdrop of four colours.
SmallPicture Fan() {
  SmallPicture picture(64, 48);
  auto backdrop = std::make_shared<Bitmap>();
  backdrop->Width = 40;
  backdrop->Height = 30;
  for (int y = 0; y < 30; ++y) {
    for (int x = 0; x < 40; ++x) {
      backdrop->Words.push_back(WordOf(Rgb(6 * x, 8 * y, (x / 10 + y / 10) % 2 * 160)));
    }
  }
  picture.Backdrop = backdrop;
  picture.BackColor = kWhite;
  const float ends[][2] = {{62, 24}, {58, 40}, {36, 46}, {20, 44},
                           {4, 30},  {2, 12},  {26, 3},  {50, 6}};
  int width = 1;
  for (const auto& [x, y] : ends) picture.Line(32, 24, x, y, width++, kBlue);
  picture.Line(-1000, -700, 2000, 1500, 1, kRed);
  return picture;
}

std::string Ppm(const Bitmap& bitmap) {
  std::string text =
      "P6\n" + std::to_string(bitmap.Width) + " " + std::to_string(bitmap.Height) + "\n255\n";
  for (const std::uint32_t word : bitmap.Words) {
    for (const int shift : {16, 8, 0}) text += static_cast<char>((word >> shift) & 255u);
  }
  return text;
}

struct GoldenRow {
  const char* Name;
  SmallPicture (*Scene)();
  double Scale;
};
constexpr GoldenRow kGolden[] = {
    {"sticks_and_balls", SticksAndBalls, 1},
    {"sticks_and_balls_half", SticksAndBalls, 169.0 / 360},
    {"sticks_and_balls_projector", SticksAndBalls, 2.165},
    {"fan", Fan, 1},
    {"fan_half", Fan, 0.5},
    {"fan_double", Fan, 2},
};

class GoldenPicture : public testing::TestWithParam<GoldenRow> {};

TEST_P(GoldenPicture, IsTheSameToTheByte) {
  const std::string file =
      std::string(ORVANE_SOURCE_DIR "/tests/raster/golden/") + GetParam().Name + ".ppm";
  const std::string painted = Ppm(Raster().Paint(GetParam().Scene(), GetParam().Scale));
  if (std::getenv("ORVANE_WRITE_GOLDEN") != nullptr) {
    std::ofstream(file, std::ios::binary) << painted;
    GTEST_SKIP() << "written anew: " << file;
  }

  std::ifstream stream(file, std::ios::binary);
  const std::string kept{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  ASSERT_FALSE(kept.empty()) << "no file " << file;
  EXPECT_TRUE(painted == kept) << "the pixels differ from " << file;
}

INSTANTIATE_TEST_SUITE_P(Scenes, GoldenPicture, testing::ValuesIn(kGolden),
                         [](const auto& row) { return std::string(row.param.Name); });

}  // namespace
}  // namespace orvane
