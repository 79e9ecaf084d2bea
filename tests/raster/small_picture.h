// Pictures built stroke by stroke, and their pixels as text.
#pragma once

#include <string>

#include "raster/picture.h"

namespace orvane {

inline constexpr Colour kWhite = kPalette15;

struct SmallPicture : Picture {
  SmallPicture(int width, int height) {
    Width = width;
    Height = height;
  }

  void Line(float x1, float y1, float x2, float y2, int width, Colour ink = kWhite, int style = 0);
  void Circle(float x, float y, float radius, Colour fill, Colour ink, int style = 0,
              int width = 1);
  void Print(float x, float y, const std::string& text, Colour ink = kWhite);
};

std::uint32_t WordAt(const Bitmap& bitmap, int x, int y);
int RedAt(const Bitmap& bitmap, int x, int y);

// One row of three-digit numbers for each row of pixels.
std::string Reds(const Bitmap& bitmap);

}  // namespace orvane
