// The 33 swatches of the colour panel: where each stands and its colour.
#pragma once

#include <array>
#include <string_view>

#include "runtime/colour.h"

namespace orvane {

struct Swatch {
  int Column, Row;
  Colour Face;  // the BackColor of P_Clr(index), which is what the logic reads
  std::string_view Name;
};

inline constexpr int kSwatchCount = 33;
inline constexpr int kRedSwatch = 21;  // pens of the red-green picture
inline constexpr int kGreenSwatch = 20;

// Eleven columns by three rows; index = place in this table. 1 and 8 are the same colour.
// clang-format off
inline constexpr std::array<Swatch, kSwatchCount> kSwatches = {{
    { 0, 0, Rgb(181, 200, 200), "pale grey"},  // 0
    { 2, 0, Rgb(192, 192,   0), "dark yellow"},
    { 3, 0, Rgb(128, 128, 128), "grey"},
    { 4, 0, Rgb( 64,  64,  64), "dark grey"},
    { 5, 0, Rgb(  0,   0,   0), "black"},
    {10, 0, Rgb(128,   0,   0), "dark red"},
    { 9, 0, Rgb(128,  64,   0), "brown"},
    { 3, 2, Rgb(128, 128,   0), "olive"},
    { 2, 2, Rgb(192, 192,   0), "dark yellow"},
    { 4, 2, Rgb(  0, 128,   0), "dark green"},
    { 1, 2, Rgb(  0, 192,   0), "green"},
    { 1, 1, Rgb(  0,   0, 128), "dark blue"},  // 11
    { 2, 1, Rgb(  0,   0, 192), "medium blue"},
    { 3, 1, Rgb(  0,   0, 255), "blue"},
    { 4, 1, Rgb(128, 128, 255), "light blue"},
    { 5, 1, Rgb(192, 192, 255), "pale blue"},
    {10, 1, Rgb(255, 192, 255), "pale magenta"},
    { 7, 1, Rgb(255, 128, 255), "light magenta"},
    { 8, 1, Rgb(192,   0, 192), "magenta"},
    { 9, 1, Rgb(128,   0, 128), "purple"},
    { 0, 2, Rgb(  0, 255,   0), "bright green"},  // 20
    {10, 2, Rgb(255,   0,   0), "red"},  // 21
    { 9, 2, Rgb(255, 128, 128), "light red"},  // 22
    { 8, 2, Rgb(255, 192, 192), "pink"},
    { 7, 2, Rgb(255, 224, 192), "pale orange"},
    { 6, 2, Rgb(255, 255,   0), "yellow"},
    { 0, 1, Rgb(192, 255, 192), "pale green"},
    { 5, 2, Rgb(255, 255, 128), "light yellow"},
    { 7, 0, Rgb(255, 128,   0), "orange"},
    { 8, 0, Rgb(192,  64,   0), "rust"},
    { 1, 0, Rgb(255, 255, 255), "white"},  // 30
    { 6, 0, Rgb(255, 192, 128), "light orange"},
    { 6, 1, Rgb(192, 255, 255), "pale cyan"},
}};
// clang-format on

// Twips inside the panel.
inline constexpr int kSwatchFirst = 120, kSwatchPitch = 360, kSwatchSide = 255;

}  // namespace orvane
