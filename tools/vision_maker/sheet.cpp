#include "vision_maker/sheet.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "core/loader.h"
#include "desk/actions.h"
#include "draw/redraw_chain.h"
#include "no_platform/no_platform.h"
#include "raster/raster.h"
#include "shell/start_up.h"
#include "vision/display_filter.h"
#include "vision/simulation.h"

namespace orvane::vision {
namespace {

constexpr int kWhole = 400;                // pixels of the whole picture
constexpr int kWidth = 240, kHeight = 64;  // of its middle, which is shown
constexpr int kGap = 6;
constexpr std::uint32_t kPaper = 0xFFFFFFFFu;

// A zigzag of one element after another, Angstrom. No such molecule is stable; it is a row of
// colours.
std::string SevenAtoms() {
  std::string text;
  int serial = 0;
  for (const char letter : {'C', 'N', 'O', 'S', 'P', 'H', 'R'}) {
    char record[96];
    std::snprintf(record, sizeof record, "ATOM%7d  %c   %3s %c%4d    %8.3f%8.3f%8.3f ", serial + 1,
                  letter, "ALA", 'A', 1, 1.5 * serial, serial % 2 == 0 ? 0.0 : 0.8, 0.0);
    text += record;
    ++serial;
  }
  return text;
}

Bitmap Seven() {
  NoPlatform platform;
  const auto desk = StartDesk(platform);
  desk->main.Show();
  desk->molecule.MolText = SevenAtoms();
  LoadMolecule(*desk);
  desk->molecule.MoleculeReady = 1;
  desk->drawing.BallsOn = 1;
  desk->drawing.BallSize = 6;
  desk->drawing.BondWidth = 5;
  RedrawView(*desk);
  const auto picture = desk->main.Picture1.Image();
  Raster raster;
  return raster.Paint(*picture, static_cast<double>(kWhole) / picture->Width);
}

Colour ColourOfWord(std::uint32_t word) {
  return Rgb(static_cast<int>(word >> 16 & 255u), static_cast<int>(word >> 8 & 255u),
             static_cast<int>(word & 255u));
}

std::uint32_t WordOfColour(Colour colour) {
  return 0xFF000000u | static_cast<std::uint32_t>(Red(colour)) << 16 |
         static_cast<std::uint32_t>(Green(colour)) << 8 | static_cast<std::uint32_t>(Blue(colour));
}

Bitmap SeenBy(Eye eye, Bitmap view) {
  for (std::uint32_t& word : view.Words) {
    word = WordOfColour(Simulated(eye, ColourOfWord(word)));
  }
  return view;
}

void Put(Bitmap& sheet, const Bitmap& view, int column, int row) {
  const int left = kGap + column * (kWidth + kGap), top = kGap + row * (kHeight + kGap);
  const int right = (kWhole - kWidth) / 2, down = (kWhole - kHeight) / 2;
  for (int y = 0; y < kHeight; ++y) {
    std::copy_n(view.Words.begin() + (y + down) * view.Width + right, kWidth,
                sheet.Words.begin() + (top + y) * sheet.Width + left);
  }
}

}  // namespace

Bitmap Sheet() {
  Bitmap sheet{kGap + 3 * (kWidth + kGap), kGap + 4 * (kHeight + kGap), {}};
  sheet.Words.assign(static_cast<std::size_t>(sheet.Width) * static_cast<std::size_t>(sheet.Height),
                     kPaper);
  const Bitmap plain = Seven();
  for (const Eye eye : kEyes) {
    Bitmap filtered = plain;
    DisplayFilter(eye).Apply(filtered.Words.data(), filtered.Words.size());
    const int column = static_cast<int>(IndexOf(eye));
    Put(sheet, plain, column, 0);
    Put(sheet, SeenBy(eye, plain), column, 1);
    Put(sheet, filtered, column, 2);
    Put(sheet, SeenBy(eye, filtered), column, 3);
  }
  return sheet;
}

}  // namespace orvane::vision
