#include "raster/track.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace orvane {
namespace {

constexpr int kSide = 60;

using Way = void (*)(const Canvas&, const Track&, Ends);

std::vector<std::uint32_t> Drawn(Way way, const Track& track, Ends ends) {
  std::vector<std::uint32_t> words(kSide * kSide, 0xFF204060u);
  way({words.data(), kSide, kSide, kSide}, track, ends);
  return words;
}

TEST(Tracks, AreTheSameWithNarrowAndWideRegisters) {
  if (!HasWideRegisters()) GTEST_SKIP() << "this processor has no wide registers";
  std::mt19937 random(7);
  const auto between = [&](double low, double high) {
    return low + (high - low) * static_cast<double>(random()) / 4294967296.0;
  };
  for (const Ends ends : {kRound, kFlatStart, kFlatEnd, kFlat, kDashed}) {
    for (int count = 0; count < 400; ++count) {
      const int quarters = count / 16;
      const double angle = count % 16 == 0 ? M_PI / 2 * quarters : between(0, 2 * M_PI);
      const Track track{.X = between(-8, kSide + 8),
                        .Y = between(-8, kSide + 8),
                        .AlongX = std::cos(angle),
                        .AlongY = std::sin(angle),
                        .Length = between(0, 50),
                        .Skipped = between(0, 6),
                        .Width = between(0.5, 24),
                        .Dash = 3,
                        .Ink = Rgb(255, 200, 0)};
      ASSERT_EQ(Drawn(DrawTrackNarrow, track, ends), Drawn(DrawTrackWide, track, ends))
          << "ends " << ends << ", number " << count;
    }
  }
}

TEST(Tracks, AreTheSameWhereverTheyLieOnTheCanvas) {
  // A track that keeps clear of the edges is drawn without checking them. Moved by whole pixels to
  // the right edge, it shows the same pixels as far as they are on the canvas.
  for (const Ends ends : {kRound, kFlatStart, kFlatEnd, kFlat, kDashed}) {
    Track track{.X = 20, .Y = 20.25, .AlongX = 0.8, .AlongY = 0.6, .Length = 15, .Width = 5};
    track.Dash = 3;
    track.Ink = kPalette15;
    const auto free = Drawn(DrawTrack, track, ends);
    track.X += 24;
    const auto cut = Drawn(DrawTrack, track, ends);
    for (int y = 0; y < kSide; ++y) {
      for (int x = 24; x < kSide; ++x) {
        const auto at = static_cast<std::size_t>(y * kSide + x);
        const int step = static_cast<int>(cut[at] & 255u) - static_cast<int>(free[at - 24] & 255u);
        ASSERT_LE(std::abs(step), 1) << "ends " << ends << " at " << x << " " << y;
      }
    }
  }
}

TEST(Tracks, OfAnyWidthHaveNoHoleInTheirCore) {
  for (double width = 3; width < 40; width += 1.7) {
    for (double angle = 0; angle < 6.28; angle += 0.21) {
      const Track track{.X = 30,
                        .Y = 30,
                        .AlongX = std::cos(angle),
                        .AlongY = std::sin(angle),
                        .Length = 18,
                        .Width = width,
                        .Ink = kPalette15};
      const auto words = Drawn(DrawTrack, track, kRound);
      for (double along = 0; along <= 18; along += 0.5) {
        const auto x = static_cast<int>(std::lround(30 + along * track.AlongX));
        const auto y = static_cast<int>(std::lround(30 + along * track.AlongY));
        ASSERT_EQ(words[static_cast<std::size_t>(y * kSide + x)], 0xFFFFFFFFu) << x << " " << y;
      }
    }
  }
}

}  // namespace
}  // namespace orvane
