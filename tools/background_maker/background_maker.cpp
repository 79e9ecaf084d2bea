#include "background_maker/background_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gif_lib.h>
#include <vector>

#include "draw/backgrounds.h"

namespace orvane::backgrounds {
namespace {

// A shade with fractions of a step, 0 to 255 in each channel. All shades are dark: the blue of
// nitrogen is itself dark, and a projector makes the black of every picture lighter.
struct Shade {
  double Red, Green, Blue;
};

Shade Between(const Shade& from, const Shade& to, double share) {
  const double s = std::clamp(share, 0.0, 1.0);
  return {from.Red + s * (to.Red - from.Red), from.Green + s * (to.Green - from.Green),
          from.Blue + s * (to.Blue - from.Blue)};
}

// A smooth step from 0 to 1.
double Ease(double share) {
  const double s = std::clamp(share, 0.0, 1.0);
  return s * s * (3.0 - 2.0 * s);
}

constexpr double kMiddle = kBackgroundSide / 2.0;

// 0 in the middle, 1 half way along an edge, 1.41 in a corner.
double FromMiddle(double x, double y) {
  const double dx = (x - kMiddle) / kMiddle;
  const double dy = (y - kMiddle) / kMiddle;
  return std::sqrt(dx * dx + dy * dy);
}

// The rest of a value after whole periods are taken off, from 0 to below `period`.
double Within(double value, double period) { return value - period * std::floor(value / period); }

// How much of a pixel is covered by a line about a pixel and a half wide, this far from its middle.
double LineCover(double distance) { return std::clamp(1.25 - distance, 0.0, 1.0); }

// Deep slate, lit from above.
Shade Slate(double, double y) {
  return Between({21, 27, 33}, {4, 6, 9}, Ease(y / kBackgroundSide));
}

// Graph paper at night: every fourth line a little stronger.
Shade GraphPaper(double x, double y) {
  constexpr double kPitch = 23;  // sixteen to a side
  const auto to_line = [](double along, double period) {
    const double rest = Within(along, period);
    return std::min(rest, period - rest);
  };
  const double thin = LineCover(std::min(to_line(x, kPitch), to_line(y, kPitch)));
  const double strong = LineCover(std::min(to_line(x, 4 * kPitch), to_line(y, 4 * kPitch)));
  const Shade paper = Between({7, 12, 14}, {3, 5, 7}, FromMiddle(x, y));
  return Between(Between(paper, {11, 19, 21}, thin), {19, 27, 29}, strong);
}

// A warm glow in the middle of a dark room.
Shade Vignette(double x, double y) {
  return Between({36, 22, 21}, {5, 3, 5}, Ease(FromMiddle(x, y) / 1.25));
}

// A honeycomb that appears towards the edges and leaves the middle to the molecule.
Shade Honeycomb(double x, double y) {
  constexpr double kCell = 46;  // between two opposite sides
  const double row = std::sqrt(3.0);
  const double u = x / kCell;
  const double v = y / kCell;
  // The middles of the cells lie on two interleaved rectangular grids; the nearer one counts.
  const double ax = Within(u, 1) - 0.5, ay = Within(v, row) - row / 2;
  const double bx = Within(u - 0.5, 1) - 0.5, by = Within(v - row / 2, row) - row / 2;
  const bool first = ax * ax + ay * ay < bx * bx + by * by;
  const double gx = std::fabs(first ? ax : bx);
  const double gy = std::fabs(first ? ay : by);
  const double to_side = kCell * (0.5 - std::max(gx, 0.5 * gx + 0.5 * row * gy));
  const double share = LineCover(to_side) * (0.25 + 0.75 * Ease(FromMiddle(x, y) / 1.2));
  return Between(Between({5, 12, 11}, {2, 6, 6}, FromMiddle(x, y)), {10, 29, 25}, share);
}

// The last light over a dark plain, with haze where they meet, so that no line crosses a molecule.
Shade NightHorizon(double, double y) {
  constexpr double kHorizon = 262;  // below the middle, where the molecule turns
  constexpr double kHaze = 28;
  const double height = std::min(1.0, y / kHorizon);
  const Shade sky = Between({2, 3, 9}, {15, 21, 50}, height * height);
  const double below = (y - kHorizon) / (0.5 * (kBackgroundSide - kHorizon));
  const Shade plain = Between({5, 8, 18}, {1, 2, 4}, below);
  return Between(sky, plain, Ease((y - kHorizon + kHaze / 2) / kHaze));
}

// In the order of the menu, "Bgr &1" first.
constexpr std::array<Shade (*)(double x, double y), kBackgroundCount> kPictures = {
    Slate, GraphPaper, Vignette, Honeycomb, NightHorizon};

// Dark shades are so far apart that their edges show as contours on a large screen. A fixed pattern
// of thresholds hides them. The bits of its rows and columns interleave, so that neighbours differ
// much.
double Threshold(int x, int y) {
  int rank = 0;
  for (int bit = 0; bit < 3; ++bit) {
    const int column = (x >> bit) & 1;
    const int row = (y >> bit) & 1;
    rank = 4 * rank + 2 * (column ^ row) + row;
  }
  return (rank + 0.5) / 64;
}

std::uint32_t Word(const Shade& shade, double threshold) {
  const auto channel = [threshold](double value) {
    return static_cast<std::uint32_t>(std::floor(value + threshold));
  };
  return 0xFF000000u | channel(shade.Red) << 16 | channel(shade.Green) << 8 | channel(shade.Blue);
}

int AppendTo(GifFileType* file, const GifByteType* bytes, int count) {
  static_cast<std::string*>(file->UserData)
      ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(count));
  return count;
}

GifColorType ColourOf(std::uint32_t word) {
  return {static_cast<GifByteType>(word >> 16), static_cast<GifByteType>(word >> 8),
          static_cast<GifByteType>(word)};
}

}  // namespace

Bitmap DrawBackground(int index) {
  Bitmap bitmap{kBackgroundSide, kBackgroundSide, {}};
  const auto picture = kPictures.at(static_cast<std::size_t>(index));
  for (int y = 0; y < kBackgroundSide; ++y) {
    for (int x = 0; x < kBackgroundSide; ++x) {
      bitmap.Words.push_back(Word(picture(x + 0.5, y + 0.5), Threshold(x, y)));
    }
  }
  return bitmap;
}

std::string BackgroundFile(int index) {
  const Bitmap picture = DrawBackground(index);
  std::vector<std::uint32_t> shades = picture.Words;
  std::ranges::sort(shades);
  shades.erase(std::unique(shades.begin(), shades.end()), shades.end());
  std::array<GifColorType, 256> colours{};
  if (shades.size() > colours.size()) return {};
  std::ranges::transform(shades, colours.begin(), ColourOf);

  std::string bytes;
  ColorMapObject* map = GifMakeMapObject(static_cast<int>(colours.size()), colours.data());
  GifFileType* file = EGifOpen(&bytes, AppendTo, nullptr);
  EGifPutScreenDesc(file, picture.Width, picture.Height, 8, 0, map);
  EGifPutImageDesc(file, 0, 0, picture.Width, picture.Height, false, nullptr);
  for (const std::uint32_t word : picture.Words) {
    const auto shade = std::ranges::lower_bound(shades, word);
    EGifPutPixel(file, static_cast<int>(shade - shades.begin()));
  }
  EGifCloseFile(file, nullptr);
  GifFreeMapObject(map);
  return bytes;
}

}  // namespace orvane::backgrounds
