#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "look/palette.h"

namespace orvane {
namespace {

using namespace palette;

// Relative luminance and contrast, as defined for reading on screens.
double Light(Argb colour) {
  const auto part = [&](int shift) {
    const double v = static_cast<double>((colour >> shift) & 0xFFU) / 255.0;
    return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

double Contrast(Argb a, Argb b) {
  const double one = Light(a), other = Light(b);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

struct Pair {
  const char* What;
  Argb Over, Under;
  double Least;
};

constexpr double kText = 4.5, kOff = 3, kLine = 3;

constexpr Pair kPairs[] = {
    {"ink on ground", kInk, kGround, kText},
    {"ink on band", kInk, kBand, kText},
    {"ink on a raised face", kInk, kFace, kText},
    {"ink under the pointer", kInk, kHover, kText},
    {"ink on a held button", kInk, kPress, kText},
    {"ink on the result", kInk, kResult, kText},
    {"quiet ink on ground", kInk2, kGround, kText},
    {"deep on tint", kDeep, kTint, kText},
    {"deep on press", kDeep, kPress, kText},
    {"a list key", kDeep, kFace, kText},
    {"a chosen row", kFace, kAccent, kText},
    {"the heading of the desk", kAccent, kFace, kText},
    {"text on dark", kOnDark, kDarkPanel, kText},
    {"quiet text on dark", kQuietOnDark, kBezel, kText},
    {"a link on dark", kAccentOnDark, kBezel, kText},
    {"a tooltip", kOnDark, kBezel, kText},
    {"what is off limits", kDisabled, kDisabledFace, kOff},
    {"the ring on ground", kAccent, kGround, kLine},
    {"the ring on tint", kAccent, kTint, kLine},
    {"the ring on a bar", kAccent, kTrack, kLine},
    {"the edge of a text box", kEdge, kGround, kLine},
    {"the lower edge of a button", kEdge, kGround, kLine},
    {"the thumb of a bar", kThumb, kTrack, kLine},
    {"the thumb of a list", kThumb, kFace, kLine},
};

TEST(Contrast, EveryPairOfColoursCanBeRead) {
  for (const Pair& pair : kPairs) {
    EXPECT_GE(Contrast(pair.Over, pair.Under), pair.Least) << pair.What;
  }
}

TEST(Contrast, WhiteOnBlackHasTheLargestContrast) {
  EXPECT_NEAR(Contrast(0xFFFFFFFF, 0xFF000000), 21, 1e-9);
}

}  // namespace
}  // namespace orvane
