// The 33 swatches of the colour panel: where each stands and the colour that it is.
#pragma once

#include <array>

#include "runtime/colour.h"

namespace orvane {

struct Swatch {
  int Column, Row;
  Colour Face;  // the BackColor of P_Clr(index), which is what the logic reads
};

inline constexpr int kSwatchCount = 33;
inline constexpr int kRedSwatch = 21;  // pens of the red-green picture
inline constexpr int kGreenSwatch = 20;

// Eleven columns by three rows; index = place in this table. 1 and 8 are the same colour.
// clang-format off
inline constexpr std::array<Swatch, kSwatchCount> kSwatches = {{
    { 0, 0, Rgb(181, 200, 200)},  // 0
    { 2, 0, Rgb(192, 192,   0)},
    { 3, 0, Rgb(128, 128, 128)},
    { 4, 0, Rgb( 64,  64,  64)},
    { 5, 0, Rgb(  0,   0,   0)},
    {10, 0, Rgb(128,   0,   0)},
    { 9, 0, Rgb(128,  64,   0)},
    { 3, 2, Rgb(128, 128,   0)},
    { 2, 2, Rgb(192, 192,   0)},
    { 4, 2, Rgb(  0, 128,   0)},
    { 1, 2, Rgb(  0, 192,   0)},
    { 1, 1, Rgb(  0,   0, 128)},  // 11
    { 2, 1, Rgb(  0,   0, 192)},
    { 3, 1, Rgb(  0,   0, 255)},
    { 4, 1, Rgb(128, 128, 255)},
    { 5, 1, Rgb(192, 192, 255)},
    {10, 1, Rgb(255, 192, 255)},
    { 7, 1, Rgb(255, 128, 255)},
    { 8, 1, Rgb(192,   0, 192)},
    { 9, 1, Rgb(128,   0, 128)},
    { 0, 2, Rgb(  0, 255,   0)},  // 20
    {10, 2, Rgb(255,   0,   0)},  // 21
    { 9, 2, Rgb(255, 128, 128)},  // 22
    { 8, 2, Rgb(255, 192, 192)},
    { 7, 2, Rgb(255, 224, 192)},
    { 6, 2, Rgb(255, 255,   0)},
    { 0, 1, Rgb(192, 255, 192)},
    { 5, 2, Rgb(255, 255, 128)},
    { 7, 0, Rgb(255, 128,   0)},
    { 8, 0, Rgb(192,  64,   0)},
    { 1, 0, Rgb(255, 255, 255)},  // 30
    { 6, 0, Rgb(255, 192, 128)},
    { 6, 1, Rgb(192, 255, 255)},
}};
// clang-format on

// Twips inside the panel.
inline constexpr int kSwatchFirst = 120, kSwatchPitch = 360, kSwatchSide = 255;

}  // namespace orvane
