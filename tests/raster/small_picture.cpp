#include "raster/small_picture.h"

#include <cstdio>

namespace orvane {

void SmallPicture::Line(float x1, float y1, float x2, float y2, int width, Colour ink, int style) {
  Strokes.push_back({.Kind = StrokeKind::Line,
                     .Width = static_cast<std::uint8_t>(width),
                     .Style = static_cast<std::uint8_t>(style),
                     .X1 = x1,
                     .Y1 = y1,
                     .X2 = x2,
                     .Y2 = y2,
                     .Ink = ink});
}

void SmallPicture::Circle(float x, float y, float radius, Colour fill, Colour ink, int style,
                          int width) {
  Strokes.push_back({.Kind = StrokeKind::Circle,
                     .Width = static_cast<std::uint8_t>(width),
                     .Style = static_cast<std::uint8_t>(style),
                     .X1 = x,
                     .Y1 = y,
                     .X2 = radius,
                     .Ink = ink,
                     .Fill = fill});
}

void SmallPicture::Print(float x, float y, const std::string& text, Colour ink) {
  Strokes.push_back({.Kind = StrokeKind::Print,
                     .X1 = x,
                     .Y1 = y,
                     .Ink = ink,
                     .Text = static_cast<std::uint32_t>(Texts.size())});
  Texts.push_back(text);
}

std::uint32_t WordAt(const Bitmap& bitmap, int x, int y) {
  return bitmap.Words.at(static_cast<std::size_t>(y * bitmap.Width + x));
}

int RedAt(const Bitmap& bitmap, int x, int y) {
  return static_cast<int>((WordAt(bitmap, x, y) >> 16) & 255u);
}

std::string Reds(const Bitmap& bitmap) {
  std::string text;
  for (int y = 0; y < bitmap.Height; ++y) {
    for (int x = 0; x < bitmap.Width; ++x) {
      char number[8];
      std::snprintf(number, sizeof number, x == 0 ? "%3d" : " %3d", RedAt(bitmap, x, y));
      text += number;
    }
    text += '\n';
  }
  return text;
}

}  // namespace orvane
