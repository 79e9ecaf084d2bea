// Where pixels are made, in memory that the caller owns, and how ink is mixed into four of them at
// a time. The mixing uses whole numbers, so it is the same on every machine.
#pragma once

#include <cstdint>
#include <cstring>

#include "runtime/colour.h"

namespace orvane {

// Rows of 0xFFRRGGBB pixels from the top left.
struct Canvas {
  std::uint32_t* Words = nullptr;
  int Width = 0, Height = 0;
  int Stride = 0;  // pixels from one row to the next

  std::uint32_t* Row(int y) const { return Words + static_cast<std::ptrdiff_t>(y) * Stride; }
};

constexpr std::uint32_t WordOf(Colour colour) {
  return 0xFF000000u | (colour & 255u) << 16 | (colour & 0xFF00u) | ((colour >> 16) & 255u);
}

// Four pixels side by side; the compiler has registers for them.
using Words4 [[gnu::vector_size(16)]] = std::uint32_t;
using Halves8 [[gnu::vector_size(16)]] = std::uint16_t;

inline Words4 Load(const std::uint32_t* words) {
  Words4 four;
  std::memcpy(&four, words, sizeof four);
  return four;
}
inline void Store(std::uint32_t* words, Words4 four) { std::memcpy(words, &four, sizeof four); }

// The channels of four pixels, 16 bits each: blue and red, then green and the opaque byte.
struct Channels {
  Halves8 BlueRed, GreenTop;
};
inline Channels Split(Words4 four) {
  return {(Halves8)(four & 0x00FF00FFu), (Halves8)((four >> 8) & 0x00FF00FFu)};
}

// A cover of 0 to 256 in both halves of each pixel: for blue and red, or for green and the top
// byte.
inline Halves8 InBoth(Words4 cover) { return (Halves8)(cover | cover << 16); }

// Ink times its cover, plus the half that rounds to the nearest.
inline Channels Weighted(const Channels& ink, Halves8 cover) {
  return {ink.BlueRed * cover + 128, ink.GreenTop * cover + 128};
}

// Keeps `rest` of 256 of what is there and adds the weighted ink of the other part.
inline Words4 Mix(Words4 under, const Channels& weighted_ink, Halves8 rest) {
  const Channels old = Split(under);
  return (Words4)((old.BlueRed * rest + weighted_ink.BlueRed) >> 8) |
         (Words4)((old.GreenTop * rest + weighted_ink.GreenTop) & 0xFF00);
}

// Calls mix(words, step) for every four pixels of a row from `first` up to `last`; `step` is 0, 4
// and so on. The pixels past the row's end are borrowed ones, so nothing is written outside it.
template <class MixFour>
inline void ForFours(const Canvas& canvas, int y, int first, int last, MixFour&& mix) {
  std::uint32_t* row = canvas.Row(y);
  int x = first;
  for (; x < last && x + 4 <= canvas.Width; x += 4) mix(row + x, x - first);
  if (x < last) {
    std::uint32_t four[4] = {};
    const std::size_t left = static_cast<std::size_t>(canvas.Width - x) * sizeof *row;
    std::memcpy(four, row + x, left);
    mix(four, x - first);
    std::memcpy(row + x, four, left);
  }
}

}  // namespace orvane
