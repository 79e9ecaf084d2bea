// Circles with an outline: small ones are sprites, made once and copied.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "raster/canvas.h"

namespace orvane {

// Sizes are in canvas pixels. The outline is drawn along the circle, half of it inside.
struct Ball {
  double Radius = 0;
  double Width = 1;  // of the outline
  Colour Ink = 0;    // of the outline
  Colour Fill = 0;
  bool Filled = true;

  friend bool operator==(const Ball&, const Ball&) = default;
};

// A ball in its square. Its core is copied and its edge is mixed, four pixels at a time.
struct Sprite {
  struct Row {
    int First = 0, Last = 0;  // the pixels touched, and one past the last
    int Solid = 0;            // the first that hides what is below; Last if none does
    int Copied = 0;           // pixels from there on that are copied
  };
  struct Four {
    Channels Ink;  // weighted by its cover
    Halves8 Rest;  // what is left of the background
  };

  int Side = 0;  // pixels to a row and to a column
  int Left = 0;  // of the square, from the pixel of the centre; its top is the same
  std::vector<Row> Rows;
  std::vector<std::uint32_t> Words;  // pixels of the whole square; the top byte is the cover
  std::vector<Four> Edges;           // row by row, those before the copied pixels and those after
};

// The balls drawn lately, each at 4 by 4 places within a pixel.
class BallSprites {
 public:
  // Draws a ball around a point; a whole number is the centre of a pixel.
  void Draw(const Canvas& canvas, double x, double y, const Ball& ball);

 private:
  static constexpr int kPhases = 4;
  struct Set {
    Ball Of;
    std::unique_ptr<Sprite> At[kPhases * kPhases];
  };
  Set& SetOf(const Ball& ball);

  std::vector<std::unique_ptr<Set>> sets_;  // the common ones first
  std::size_t words_ = 0;                   // in all sprites
};

}  // namespace orvane
